#include "gedcom/reader.h"

#include "gedcom/families.h"
#include "gedcom/islands.h"
#include "gedcom/places.h"
#include "gedcom/record_reader.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {

void Reader::ProcessGedcom() {
    const ScopedFlag wait(app_.bWaitCursor);
    const char* stage = "InitIndexes";
    std::int16_t counter = 0;
    app_.trail.GuardElse(
        "ProcessGedcom",
        [&] {
            Prepare(stage, counter);
            ReadLines();
        },
        [&] {
            app_.trail.ErrorLog(Concat({stage, "/", Decimal(counter), "/", TrimRight(lines.sLine)}));
            throw ProgramEnd{};
        });
}

void Reader::Prepare(const char*& stage, std::int16_t& counter) {
    app_.ProgressBar1.Set(0);
    app_.InitIndexes();
    lines.ResetRecords();
    stage = "LvwSort";
    for (Table* table : {&app_.lvwIn, &app_.lvwFamily, &app_.lvwXref, &app_.lvwFamilyXref, &app_.lvwKinship,
                         &app_.lvwPaths, &app_.lvwRelatives}) {
        table->SetSorted(false);
        table->Clear();
    }
    app_.deaths.Clear();
    islandSizes.clear();
    app_.lvwKinship.Tip = app_.lvwKinship.BaseTip();
    for (counter = 1; counter <= kMaxColumns; ++counter) app_.lMaxLenIn[ColumnId::OfIndex(counter)] = 0;
    stage = "ReadLines";
}

void Reader::ReadLines() {
    Links links(app_);
    findings = {};
    app_.bCalendarsRead = app_.chkCalendars.Checked();
    RecordReader records(app_, lines, links, findings);
    std::int32_t result = lines.Read1Line();
    result = ReadRecords(records, result);
    constexpr std::int32_t kEndedByLevel = 1;
    if (result == kEndedByLevel) findings.endingLine = static_cast<std::int32_t>(lines.LineNumber());
    Finish(links);
}

/// What follows a record is the current line already; every other line is passed over one by one.
std::int32_t Reader::ReadRecords(RecordReader& records, std::int32_t result) {
    const ScopedFlag canStop(app_.bCanStop);
    while (result == 0 && !app_.bAbort) {
        app_.ports.events.Yield();
        if (lines.iLevel > lines.iBaseLevel + 1) {
            result = SkipDeeperLines();
            continue;
        }
        lines.iBaseLevel = lines.iLevel;
        if (lines.iLevel == 0 && lines.sTag == "INDI") {
            result = records.ReadIndividual();
        } else if (lines.iLevel == 0 && lines.sTag == "FAM" && app_.chkProcFamilies.Checked()) {
            result = records.ReadFamilyRecord();
        } else {
            if (lines.iLevel == 1 && lines.sTag == "CHAR" && !AcceptCharset()) break;
            result = lines.Read1Line();
        }
    }
    return result;
}

std::int32_t Reader::SkipDeeperLines() {
    std::int32_t result = 0;
    while (result == 0 && lines.iLevel > lines.iBaseLevel + 1 && !app_.bAbort) {
        app_.ports.events.Yield();
        result = lines.Read1Line();
    }
    return result;
}

bool Reader::AcceptCharset() {
    if (lines.TakeCharset()) return true;
    const BoxAnswer answer =
        app_.Box(" - Charset"_t, Concat({lines.sValue, " : Jeu de caractères non supporté"_t}),
                 BoxButtons::OkCancel, BoxIcon::Exclamation, BoxTopic::Charset);
    if (answer != BoxAnswer::Cancel) return true;
    app_.bAbort = true;
    return false;
}

void Reader::Finish(Links& links) {
    app_.pnlLines.Set(Concat({"Ligne(s) GEDCOM : "_t, Decimal(std::int64_t{lines.lNrLines} + 1)}));
    app_.ProgressBar1.Set(100);
    app_.pnlIndividuals.Set(Concat({Decimal(lines.lNrNames), " Individu(s)"_t}));
    if (!app_.bAbort) {
        ReadFamily(links);
        islandSizes = CalcIslands(app_, CalcXrefIds(app_, app_.lvwXref, Xref::IDIndi1));
        app_.pnlMessage.Set("Lecture terminée"_t);
        SetInDates(app_);
    }
    app_.chkInvertNames.SetChecked(false);
    app_.chkUpperNames.SetChecked(false);
}

void Reader::ReadFamily(Links& links) {
    if (!app_.chkProcFamilies.Checked() || app_.bAbort) return;
    XrefFamily(app_, links);
    CopyFamilyXref2Xref(app_, links);
    app_.bFamiliesRead = true;
    if (OnFamiliesRead) OnFamiliesRead();
}

}  // namespace swiftroll::modReadGedcom

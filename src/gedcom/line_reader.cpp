#include "gedcom/line_reader.h"

#include <limits>

#include "charset/utf16_text.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

// Positions are told in 32-bit numbers.
constexpr std::int64_t kLongestFile = std::int64_t{1} << 31;

/// The line error from which on its box can answer for all that follow.
constexpr int kManyLineErrors = 10;

/// Whether the line begins with level 0, whatever junk stands before it.
bool IsLevel0(TextView line) {
    const auto blank = line.find(' ');
    if (blank == TextView::npos) return false;
    const TextView head = line.substr(0, blank);
    const auto digit = head.find_first_of("0123456789");
    return digit != TextView::npos && head.substr(digit).find_first_not_of('0') == TextView::npos;
}

}  // namespace

bool LineReader::InitGedcom(TextView sFile) {
    return app_.trail.GuardElse(
        "InitGedcom",
        [&] {
            // Before the opening, so that a change in the midst of the read is one.
            FileRead origin{Text(sFile), app_.ports.files.Stamp(sFile)};
            auto file = app_.ports.files.Open(sFile, Files::Mode::Read);
            if (!TakeLength(*file, sFile)) return false;
            std::unique_ptr<charset::Decoder> decoder;
            if (app_.chkDecodeCharset.Checked()) {
                // A pipe, which has no stamp, cannot be opened once more: nobody may be left who writes it.
                decoder = std::make_unique<charset::Decoder>(
                    origin.stamp ? app_.ports.files.Open(sFile, Files::Mode::Read) : nullptr);
                if (decoder->Found().IsUtf16())
                    file = charset::Utf16Text(*file, decoder->Found().charset).Open();
                if (!TakeLength(*file, sFile)) return false;
            }
            decoder_ = std::move(decoder);
            scanner_.emplace(std::move(file));
            origin_ = std::move(origin);
            iLevel = iBaseLevel = 0;
            lNrLines = lNrNames = 0;
            lineErrors_ = 0;
            goesOnUnasked_ = false;
            return true;
        },
        [&] {
            app_.Box(" - InitGed"_t, Concat({"Le fichier "_t, sFile, " n'existe pas."_t}), BoxButtons::Ok,
                     BoxIcon::Exclamation, BoxTopic::UnreadableInput);
        });
}

bool LineReader::TakeLength(File& file, TextView sFile) {
    lProgressTotal = file.Length();
    if (lProgressTotal <= kLongestFile) return true;
    app_.Box(" - InitGed"_t,
             Concat({"Le fichier "_t, sFile, " dépasse 2 Gio et ne peut pas être lu."_t, kLineEnd,
                     "Exportez-en une partie depuis votre logiciel de généalogie."_t}),
             BoxButtons::Ok, BoxIcon::Exclamation, BoxTopic::UnreadableInput);
    return false;
}

bool LineReader::TakeCharset() {
    if (decoder_ != nullptr) return decoder_->Declare(sValue);
    return sValue == "ASCII" || sValue == "ANSI";
}

std::array<std::unique_ptr<File>, 2> LineReader::OpenTwice(TextView sFile) const {
    const auto open = [&] { return app_.ports.files.Open(sFile, Files::Mode::Read); };
    if (decoder_ == nullptr || !decoder_->Found().IsUtf16()) return {open(), open()};
    const charset::Utf16Text text(*open(), decoder_->Found().charset);
    return {text.Open(), text.Open()};
}

void LineReader::ResetRecords() {
    lPrevPos = lCurPos = 1;
    head = {1, 1};
    subn = {0, 0};
    sPrevTag.clear();
    sPrevXref.clear();
    colRecords_ = std::make_unique<KeyedCollection<RecordRange>>();
}

std::int32_t LineReader::Read1Line() {
    for (;;) {
        bool failed = false, goOn = false;
        const std::int32_t result = app_.trail.GuardElse(
            "Read1Line", [&] { return ReadAndSplit(); },
            [&] {
                failed = true;
                goOn = AskToGoOn(app_.trail.LastFailure());
            });
        if (!failed) return result;
        if (!goOn) {
            NoteRecordEnd(scanner_->LinePosition());
            return -1;
        }
    }
}

bool LineReader::AskToGoOn(const Failure& failure) {
    ++lineErrors_;
    const BoxAnswer answer = goesOnUnasked_ ? BoxAnswer::OkToAll : ShowLineError(failure);
    app_.pnlMessage.Set("Erreur !"_t);
    goesOnUnasked_ = answer == BoxAnswer::OkToAll;
    if (answer != BoxAnswer::Cancel) return true;
    app_.bAbort = true;
    return false;
}

BoxAnswer LineReader::ShowLineError(const Failure& failure) {
    return app_.Box(" - Erreur Ligne"_t,
                    Concat({Decimal(failure.Number()), ": ", failure.What(), kLineEnd, "Ligne ",
                            Decimal(lNrLines), kLineEnd, Decoded(TrimRight(sLine))}),
                    lineErrors_ < kManyLineErrors ? BoxButtons::OkCancel : BoxButtons::OkCancelOkToAll,
                    BoxIcon::Question, BoxTopic::LineError, BoxAnswer::Ok);
}

std::int32_t LineReader::ReadAndSplit() {
    if (!scanner_) return -1;
    // The scanner is free to move what it held.
    sLine = sXrefDef = sTag = sValue = {};
    if (!scanner_->Next()) {
        // The record still open ends at a dropped last line that would have begun another one, such as the
        // "0 TRLR" of a file with bare line feeds, or at the end of the file.
        sLine = scanner_->Line();
        NoteRecordEnd(IsLevel0(sLine) ? scanner_->LinePosition() : scanner_->ReadPosition() + 1);
        sLine = {};
        Close();
        return -1;
    }
    sLine = scanner_->Line();
    ++lNrLines;
    if (lNrLines % 1000 == 999) ShowProgress();
    if (const auto failure = Split()) throw Failure(*failure);
    if (iLevel == 0) {
        if (!NoteRecordStart(scanner_->LinePosition()) && !AskToGoOn(Failure(FailureKind::DuplicateKey)))
            return -1;
    } else if (!hasOneDigit) {
        NoteRecordEnd(scanner_->LinePosition());
    }
    return hasOneDigit ? 0 : 1;
}

void LineReader::ShowProgress() {
    app_.pnlLines.Set(Concat({"Ligne(s) GEDCOM : "_t, Decimal(std::int64_t{lNrLines} + 1)}));
    constexpr std::int64_t kUnit = 128;
    const std::int64_t wholeUnits = scanner_->ReadPosition() / kUnit * kUnit;
    app_.ProgressBar1.Show(static_cast<double>(wholeUnits), static_cast<double>(lProgressTotal));
}

bool LineReader::NoteRecordStart(std::int64_t position) {
    lPrevPos = lCurPos;
    lCurPos = position;
    const RecordRange closed{lPrevPos, lCurPos};
    if (sPrevTag == "HEAD") head = closed;
    if (sPrevTag == "SUBN") subn = closed;
    bool isNew = true;
    if (!sPrevXref.empty()) {
        sRecordKey_.assign(sPrevTag).append(1, ' ').append(sPrevXref);
        isNew = colRecords_->Add(sRecordKey_, closed);
    }
    sPrevTag = sTag;
    sPrevXref = sXrefDef;
    return isNew;
}

void LineReader::NoteRecordEnd(std::int64_t position) {
    sTag = sXrefDef = sValue = {};
    const bool isNew = NoteRecordStart(position);
    if (!isNew && !app_.bAbort) AskToGoOn(Failure(FailureKind::DuplicateKey));
}

}  // namespace swiftroll::modReadGedcom

#include "check/check_file.h"

#include "check/ancestor_circles.h"
#include "check/charset_check.h"
#include "check/file_pass.h"
#include "check/island_sizes.h"
#include "check/life_checks.h"
#include "check/link_checks.h"
#include "check/spellings.h"
#include "tables/columns.h"
#include "text/edit.h"

namespace swiftroll::modCheck {
namespace {

/// The name of an individual, the label of a family, or the empty text.
Text NameOf(const TableSet& tables, TextView id) {
    if (id.empty() || tables.lvwIn.Count() == 0) return {};
    const RowKey key(tables.lvwIn.Store().FindInterned(id));
    if (key.IsEmpty()) return {};
    if (const auto person = tables.lvwIn.Find(key)) {
        const TextView last = person->Cell(In::LastName), first = person->Cell(In::FirstName);
        return Concat({last, last.empty() || first.empty() ? "" : ", ", first});
    }
    const auto family = tables.lvwFamily.Find(key);
    const bool hasName =
        family && !(family->Ref(Family::Husb).IsEmpty() && family->Ref(Family::Wife).IsEmpty());
    return hasName ? Text(family->Cell(Family::Fam)) : Text();
}

/// The rules that need the whole file. They let no event in, so that the tables stay as they are.
void CheckWhole(Application& app, const FileRecords& records, Findings& findings) {
    const auto describe = [&app](TextView id) {
        const Text name = NameOf(app, id);
        return name.empty() ? Text(id) : Concat({name, " (", id, ")"});
    };
    int done = 0;
    const auto showStep = [&] {
        constexpr int kSteps = 6;
        app.ProgressBar1.Show(++done, kSteps);
    };
    CheckReferences(records, findings);
    showStep();
    CheckLinks(records, findings);
    showStep();
    CheckAncestorCircles(records, findings, describe);
    showStep();
    CheckFamilies(records, CheckPersons(app, records, findings), findings);
    showStep();
    CheckSpellings(app, records, findings);
    showStep();
    if (app.bFamiliesRead) CheckIslands(app, records, findings, describe);
    showStep();
}

}  // namespace

Report CheckFile(Application& app, const modReadGedcom::LineReader& lines) {
    // Another read may come in the midst, and have another file.
    const Text file = lines.Origin().sFile;
    Report report{file, {}, false};
    app.bAbort = false;
    app.pnlMessage.Set("Contrôle du fichier..."_t);
    const std::uint32_t clearings = app.lvwIn.Clearings();
    std::optional<charset::FoundCharset> found;
    std::optional<charset::Decoder> decoder;
    if (lines.FoundCharset() != nullptr) {
        found = *lines.FoundCharset();
        decoder.emplace(app.ports.files.Open(file, Files::Mode::Read));
    }
    FileRecords records;
    FilePass pass(app, decoder ? &*decoder : nullptr, report.findings, records);
    const bool isThrough = pass.Run(std::move(lines.OpenTwice(file).front()));
    if (found && found->toldBy == charset::ToldBy::Nothing &&
        decoder->Look().charset != charset::Charset::Ascii) {
        // Only what no list shows, such as notes, goes beyond ASCII.
        found->charset = decoder->Found().charset;
        found->toldBy = decoder->Found().toldBy;
    }
    CheckCharset(found, pass.Declared(), report.findings);
    report.isComplete = isThrough && app.lvwIn.Clearings() == clearings;
    if (report.isComplete) CheckWhole(app, records, report.findings);
    report.findings.Finish([&app](TextView id) { return NameOf(app, id); });
    app.ProgressBar1.Set(0);
    return report;
}

}  // namespace swiftroll::modCheck

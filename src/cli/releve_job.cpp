#include "releve_job.h"

#include <algorithm>

#include "job_parser.h"
#include "list/sort_keys.h"
#include "session.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/output_format.h"

namespace swiftroll::cli {
namespace {

/// What can be said for a format: "html|texte|xml".
std::string FormatWords() {
    std::string words;
    for (const modGenFileFromModel::OutputFormat& format : modGenFileFromModel::OutputFormats()) {
        words += (words.empty() ? "" : "|") + std::string(format.word);
    }
    return words;
}

/// The number of the format that the command line names, or else of the one that the extension of the output
/// belongs to; HTML for any other extension. @throws UsageError
int FormatOf(const Session& session, const ReleveOptions& arguments) {
    const auto formats = modGenFileFromModel::OutputFormats();
    int format = modGenFileFromModel::kHtmlFormat;
    const Text name = LowerCaseAscii(FileNamePart(session.dialogs.outputFile));
    for (std::size_t i = 0; i < formats.size(); ++i) {
        const Text& extension = session.main.txtOutExtension[i].Get();
        if (name.ends_with("." + LowerCaseAscii(extension))) format = static_cast<int>(i);
    }
    if (!arguments.format.empty()) {
        const auto chosen =
            std::ranges::find(formats, arguments.format, &modGenFileFromModel::OutputFormat::word);
        if (chosen == formats.end()) throw UsageError("format inconnu : " + arguments.format);
        format = static_cast<int>(chosen - formats.begin());
    }
    const int withStylesheet = modGenFileFromModel::StylesheetFormat();
    if (arguments.withStylesheet && format != withStylesheet) {
        const TextView word = formats[static_cast<std::size_t>(withStylesheet)].word;
        throw UsageError("--xsl ne va qu'avec le format " + std::string(word));
    }
    return format;
}

/// A row of the list is marked when an individual of its group is.
void MarkGroups(frmMain& main) {
    for (std::int32_t i = 1; i <= main.lvwIn.Count(); ++i) {
        const Row row = main.lvwIn.Item(i);
        if (!row.Marked()) continue;
        auto group = main.lvwOut.Find(TextView(modCalcOut::MakeSortKeyIn(main.positions, row)));
        if (group) group->SetSelected(true);
    }
}

}  // namespace

std::string ReleveJob::Help() const {
    return R"(  swiftroll-cli releve FICHIER.ged -o SORTIE [--format )" + FormatWords() +
           R"(] [--modele FICHIER] [--xsl] [--marques]
      écrit le Relevé-vif ; « -o - » l'envoie à l'écran. Sans --format, l'extension de SORTIE décide.
      --xsl écrit aussi la feuille de style à côté du XML, --marques n'écrit que les lignes marquées.
)";
}

void ReleveJob::Declare(JobParser& parser) {
    parser.Output(options_.output);
    parser.Option("--format", options_.format);
    parser.Option("--modele", options_.model);
    parser.Flag("--xsl", options_.withStylesheet);
    parser.Flag("--marques", options_.markedOnly);
}

void ReleveJob::SetDefaults(frmMain& main) { main.chkGenerXSL.SetChecked(options_.withStylesheet); }

void ReleveJob::Prepare(Session& session) {
    frmMain& main = session.main;
    Text& output = session.dialogs.outputFile;
    session.dialogs.recalculates = true;
    session.dialogs.writesMarkedOnly = options_.markedOnly;
    output = FileNameToText(options_.output);
    main.cboSaveSwift.SetListIndex(FormatOf(session, options_));
    if (!options_.model.empty()) main.cboFileModel.SetText(FileNameToText(options_.model));
    stylesheet_ = main.writing.StylesheetOf(output);
    if (stylesheet_.empty()) return;
    if (output == kStandardOutput) throw UsageError("--xsl demande un fichier de sortie");
    if (stylesheet_ == output) {
        throw UsageError("la sortie a le nom de sa feuille de style : " + options_.output);
    }
}

bool ReleveJob::MayRun(Session& session) {
    return session.MayWrite(session.dialogs.outputFile) &&
           (stylesheet_.empty() || session.MayWrite(stylesheet_));
}

void ReleveJob::Do(Session& session) {
    if (session.IsStopped()) return;
    MarkGroups(session.main);
    session.main.cmdSaveSwift.Click();
    if (!session.main.writing.bWriteComplete) {
        session.Refuse(Concat({"Erreur d'écriture dans le fichier "_t, session.dialogs.outputFile, "."}));
    }
    session.stopped = session.IsStopped();
}

}  // namespace swiftroll::cli

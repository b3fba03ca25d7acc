#include "releve_job.h"

#include <algorithm>

#include "list/sort_keys.h"
#include "shell/file_names.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::cli {
namespace {

constexpr int kXml = 2;

int FormatOf(const Session& session) {
    const std::string formats[] = {"html", "texte", "xml"};
    int format = 0;
    const Text name = LowerCaseAscii(FileNamePart(session.dialogs.outputFile));
    for (int i = 0; i < 3; ++i) {
        const Text& extension = session.main.txtOutExtension[static_cast<std::size_t>(i)].Get();
        if (name.ends_with("." + LowerCaseAscii(extension))) format = i;
    }
    const Arguments& arguments = session.arguments;
    if (!arguments.format.empty()) {
        const auto chosen = std::find(std::begin(formats), std::end(formats), arguments.format);
        if (chosen == std::end(formats)) throw UsageError("format inconnu : " + arguments.format);
        format = static_cast<int>(chosen - std::begin(formats));
    }
    if (arguments.withStylesheet && format != kXml) throw UsageError("--xsl ne va qu'avec le format xml");
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

void ReleveJob::Prepare(Session& session) {
    frmMain& main = session.main;
    Text& output = session.dialogs.outputFile;
    session.dialogs.recalculates = true;
    output = FileNameToText(session.arguments.output);
    main.cboSaveSwift.SetListIndex(FormatOf(session));
    if (!session.arguments.model.empty()) main.cboFileModel.SetText(FileNameToText(session.arguments.model));
    if (main.iOutFormat != kXml || !main.chkGenerXSL.Checked()) return;
    if (output == kStandardOutput) throw UsageError("--xsl demande un fichier de sortie");
    stylesheet_ = modCommon::ChangeExtension(output, main.txtModelExtension[kXml].Get());
    if (stylesheet_ == output) {
        throw UsageError("la sortie a le nom de sa feuille de style : " + session.arguments.output);
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
    if (!session.main.bWriteComplete) {
        session.Refuse(Concat({"Erreur d'écriture dans le fichier "_t, session.dialogs.outputFile, "."}));
    }
    session.stopped = session.IsStopped();
}

}  // namespace swiftroll::cli

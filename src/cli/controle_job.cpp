#include "controle_job.h"

#include "check/report_page.h"
#include "job_parser.h"
#include "row_printer.h"
#include "session.h"
#include "text/code_page.h"
#include "text/edit.h"

namespace swiftroll::cli {
namespace {

constexpr const char *kPage = "html", *kLines = "texte";

void PrintFindings(const FindingList& findings, File& file) {
    RowPrinter printer(file);
    for (const modCheck::FindingColumnTexts& column : modCheck::kFindingColumns) {
        if (column.column != modCheck::FindingColumn::Rule) printer.Raw("\t");
        printer.Raw(column.key);
    }
    printer.EndLine();
    for (std::size_t row = 0; row < findings.Count(); ++row) {
        for (const modCheck::FindingColumnTexts& column : modCheck::kFindingColumns) {
            if (column.column != modCheck::FindingColumn::Rule) printer.Raw("\t");
            printer.Cell(findings.Cell(row, column.column));
        }
        printer.EndLine();
    }
    printer.Finish();
}

}  // namespace

std::string ControleJob::Help() const {
    return R"(  swiftroll-cli controle FICHIER.ged [-o RAPPORT] [--format html|texte]
      contrôle le fichier et affiche les constats, un par ligne : Rule, Severity, Line, ID, Name, Text,
      séparés par des tabulations ; ou écrit une page HTML. Sans --format, l'extension de RAPPORT décide.
      Code 0 quand il n'y a ni erreur ni échec, les avertissements et informations ne comptant pas ; sinon 1.
)";
}

void ControleJob::Declare(JobParser& parser) {
    parser.Option("-o", output_);
    parser.Option("--format", format_);
}

void ControleJob::Check() {
    if (!format_.empty() && format_ != kPage && format_ != kLines)
        throw UsageError("format inconnu : " + format_);
}

void ControleJob::Prepare(Session&) {
    outputName_ = output_.empty() ? Text(kStandardOutput) : FileNameToText(output_);
    const Text name = LowerCaseAscii(outputName_);
    asPage_ = format_.empty() ? name.ends_with(".html") || name.ends_with(".htm") : format_ == kPage;
}

bool ControleJob::MayRun(Session& session) { return session.MayWrite(outputName_); }

void ControleJob::Do(Session& session) {
    if (session.IsStopped()) return;
    frmMain& main = session.main;
    main.mnuCheckFile.Click();
    session.stopped = session.IsStopped();
    const FindingList& findings = main.checkDialog.findings;
    if (!main.checkDialog.HasReport()) return;  // it was told why
    session.Write(outputName_, [&](File& file) {
        if (!asPage_) return PrintFindings(findings, file);
        modCheck::WriteReportPage(findings.Report(), main, session.clock.Now(), file);
    });
    if (findings.Report().findings.CountOf(modCheck::Severity::Error) > 0) session.failed = true;
}

}  // namespace swiftroll::cli

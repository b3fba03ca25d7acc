#include "shell/frm_check.h"

#include <algorithm>

#include "check/report_page.h"
#include "shell/ask_file.h"
#include "shell/file_as_read.h"
#include "shell/file_names.h"
#include "shell/jump.h"
#include "shell/work_notice.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

/// Lines of cells as the lists copy them: with tabs, or each column as wide as its widest text.
class CopiedLines {
  public:
    explicit CopiedLines(bool bTabs) : bTabs_(bTabs) {}
    using Cells = std::array<Text, modCheck::kFindingColumns.size()>;
    void Add(Cells cells) { lines_.push_back(std::move(cells)); }
    Text AsText() const {
        std::array<std::size_t, modCheck::kFindingColumns.size()> widths{};
        for (const Cells& cells : lines_) {
            for (std::size_t i = 0; i < cells.size(); ++i) widths[i] = std::max(widths[i], cells[i].size());
        }
        Text text;
        for (const Cells& cells : lines_) {
            for (std::size_t i = 0; i < cells.size(); ++i) {
                text += bTabs_ ? Concat({i == 0 ? "" : "\t", cells[i]}) : PadRight(cells[i], widths[i] + 1);
            }
            text += kLineEnd;
        }
        return text;
    }

  private:
    bool bTabs_;
    std::vector<Cells> lines_;
};

}  // namespace

frmCheck::frmCheck(Application& app, CheckCommands& commands, const modReadGedcom::LineReader& lines)
    : Window("frmCheck"),
      lblSummary(*this, {"lblSummary"}),
      cboKind(*this, {"cboKind", "Montrer"}, findings.Kinds()),
      cmdCopy(*this, {"cmdCopy", "Copier", "Copie les lignes sélectionnées, ou toutes."_t}),
      cmdSaveHtml(*this,
                  {"cmdSaveHtml", "Ecrire en HTML..."_t, "Ecrit tous les constats dans une page HTML."_t}),
      cmdCheckAgain(*this, {"cmdCheckAgain", "Contrôler à nouveau"_t}),
      app_(app),
      lines_(lines) {
    Caption = "Contrôle du fichier"_t;
    commands.mnuCheckFile.Operation = [this] { mnuCheckFile_Click(); };
    cmdCheckAgain.Operation = [&commands] { commands.mnuCheckFile.Click(); };
    cboKind.OnClick = [this] { findings.ShowKind(static_cast<std::size_t>(cboKind.ListIndex())); };
    cmdCopy.Operation = [this] { cmdCopy_Click(); };
    cmdSaveHtml.Operation = [this] { cmdSaveHtml_Click(); };
}

void frmCheck::mnuCheckFile_Click() {
    if (isChecking_) return;
    const ScopedFlag checking(isChecking_), wait(app_.bWaitCursor);
    app_.trail.GuardElse(
        "mnuCheckFile_Click", [this] { Check(); }, [this] { TellFailure(); });
}

void frmCheck::Check() {
    const FileAsRead state = StateOf(lines_.Origin(), app_.ports.files);
    if (state == FileAsRead::NotReadableAgain) {
        return Refuse("Ce fichier GEDCOM ne peut pas être relu :"_t,
                      "Copiez-le dans un fichier du disque, puis lisez la copie."_t);
    }
    if (state == FileAsRead::Changed) {
        return Refuse("Le fichier GEDCOM a changé depuis sa lecture :"_t,
                      "Relisez-le, puis recommencez le contrôle."_t);
    }
    ShowReport(modCheck::CheckFile(app_, lines_));
    if (!findings.Report().isComplete) TellEnd(app_, "Contrôle interrompu"_t, {}, false);
    Show();
}

void frmCheck::TellFailure() {
    const FailureKind kind = app_.trail.LastFailure().Kind();
    if (kind != FailureKind::FileNotFound && kind != FailureKind::FileAccess)
        return app_.trail.ErrorLog(lines_.Origin().sFile);
    Refuse("Le fichier GEDCOM ne peut plus être lu :"_t, "Vérifiez qu'il est encore là, puis relisez-le."_t);
}

void frmCheck::Refuse(TextView why, TextView whatToDo) {
    app_.Box(" - Contrôle du fichier"_t,
             Concat({why, kLineEnd, lines_.Origin().sFile, kLineEnd, kLineEnd, whatToDo}), BoxButtons::Ok,
             BoxIcon::Exclamation);
}

void frmCheck::ShowReport(modCheck::Report report) {
    findings.SetReport(std::move(report));
    selectedRows.clear();
    cboKind.SetItems(findings.Kinds());
    cboKind.SetListIndex(0);
    lblSummary.Caption = modCheck::SummaryOf(findings.Report());
    if (findings.Report().isComplete) app_.pnlMessage.Set(lblSummary.Caption);
}

void frmCheck::GoTo(std::size_t row) {
    app_.trail.Guard(
        "GoTo",
        [&] {
            const TextView id = findings.Report().findings.Get(findings.At(row).id);
            JumpTo(app_, app_.lvwIn.Find(id) ? app_.lvwIn : app_.lvwFamily, id);
        },
        [] { return Text(); });
}

void frmCheck::cmdCopy_Click() {
    app_.trail.Guard(
        "cmdCopy_Click",
        [this] {
            CopiedLines lines(app_.optTabSpace.Index() == 0);
            CopiedLines::Cells cells;
            const auto addRow = [&](std::size_t row) {
                for (std::size_t i = 0; i < cells.size(); ++i)
                    cells[i] = findings.Cell(row, modCheck::kFindingColumns[i].column);
                lines.Add(cells);
            };
            if (app_.chkIncludeHeaders.Checked()) {
                for (std::size_t i = 0; i < cells.size(); ++i)
                    cells[i] = modCheck::kFindingColumns[i].caption;
                lines.Add(cells);
            }
            for (const std::size_t row : selectedRows) addRow(row);
            for (std::size_t row = 0; selectedRows.empty() && row < findings.Count(); ++row) addRow(row);
            app_.ports.clipboard.SetText(lines.AsText());
        },
        [] { return Text(); });
}

void frmCheck::cmdSaveHtml_Click() {
    const Text proposed = modCommon::ChangeExtension(findings.Report().file, "controle.html");
    Text chosen;
    app_.trail.Guard(
        "cmdSaveHtml_Click",
        [&] {
            if (!AskFile(app_,
                         FileRequestOf(true, "Choisissez la page HTML à écrire"_t, proposed, "HTML", "html"),
                         chosen)) {
                return;
            }
            if (app_.ports.files.AreSame(chosen, findings.Report().file)) {
                app_.Box(" - Contrôle du fichier"_t,
                         Concat({"La page écraserait le fichier GEDCOM lu :"_t, kLineEnd, chosen, kLineEnd,
                                 kLineEnd, "Rien n'a été écrit. Choisissez un autre nom."_t}),
                         BoxButtons::Ok, BoxIcon::Exclamation);
                return;
            }
            modCheck::WriteReportPage(findings.Report(), app_, app_.ports.clock.Now(),
                                      *app_.ports.files.Open(chosen, Files::Mode::Write));
            app_.pnlMessage.Set(Concat({"Page écrite : "_t, chosen}));
        },
        [&] { return chosen; });
}

}  // namespace swiftroll

// The command that writes a GEDCOM extract, and the name of its file.
#include "extract/extract_writer.h"
#include "shell/file_names.h"
#include "shell/frm_main.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {

void frmMain::BindExtract() {
    cmdSaveGed.Operation = mnuSaveGed.Operation = [this] { cmdSaveGed_Click(); };
    cmdSelectDirGedOut.Operation = [this] {
        SelectFile(cboGedOut, true, {"Choisissez le fichier GEDCOM à sauver"_t, "Gedcom", "ged"});
    };
    cmdCopyGedIn2GedOut.Operation = mnuCopyGedIn2GedOut.Operation = [this] { cmdCopyGedIn2GedOut_Click(); };
}

void frmMain::cmdSaveGed_Click() {
    cmdSelectDirGedOut.Click();
    if (bDialogCancelled) return;
    const Text input = cboGedIn.Get(), output = cboGedOut.Get();
    if (ports.files.AreSame(input, output)) {
        Box(" - Extrait GEDCOM"_t,
            Concat({"L'extrait écraserait le fichier GEDCOM lu :"_t, kLineEnd, output, kLineEnd, kLineEnd,
                    "Rien n'a été écrit. Choisissez un autre nom pour la sortie."_t}),
            BoxButtons::Ok, BoxIcon::Exclamation);
        return;
    }
    const char* step = "Open";
    std::unique_ptr<File> out;
    std::optional<modSaveGed::ExtractWriter> writer;
    const ScopedFlag wait(bWaitCursor);
    trail.GuardElse(
        "cmdSaveGed_Click",
        [&] {
            // The input first: without it, nothing of an older output is lost.
            modSaveGed::ExtractWriter::Input in{ports.files.Open(input, Files::Mode::Read),
                                                ports.files.Open(input, Files::Mode::Read)};
            out = ports.files.Open(output, Files::Mode::Write);
            writer.emplace(*this, modReadGedcom.lines, input, std::move(in), *out);
            step = "Write";
            writer->Write();
            step = "Close";
            out->Close();
            pnlMessage.Set(Concat({"Extrait écrit : "_t, Decimal(writer->Individuals()), " individu(s), ",
                                   Decimal(writer->Families()), " famille(s)"}));
        },
        [&] {
            const Text report = Concat({input, "/", output, "/", step});
            trail.ErrorLog(report);
            try {
                // The output stays as far as it was written.
                if (writer) writer->Finish();
            } catch (const Failure&) {
                // The failure that began it was told.
            }
        });
}

void frmMain::ChangeGedOutExtension() {
    const Text name = cboGedOut.Get().empty() ? cboGedIn.Get() : cboGedOut.Get();
    cboGedOut.SetText(modCommon::ChangeExtension(name, "Extrait.ged"));
}

void frmMain::cmdCopyGedIn2GedOut_Click() {
    cboGedOut.SetText("");
    ChangeGedOutExtension();
    cboGedOut.TakeFocus();
    cboGedOut.LoseFocus();
}

}  // namespace swiftroll

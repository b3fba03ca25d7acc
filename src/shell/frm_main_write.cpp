// The command that writes the Relevé-vif, and how the names of its files follow its format.
#include "shell/file_names.h"
#include "shell/frm_main.h"
#include "shell/history.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/output_format.h"

namespace swiftroll {

using modGenFileFromModel::OutputFormat;
using modGenFileFromModel::OutputFormats;
using modGenFileFromModel::StylesheetFormat;

namespace {

const OutputFormat& FormatOf(int iFormat) { return OutputFormats()[static_cast<std::size_t>(iFormat)]; }

}  // namespace

void frmMain::BindWriting() {
    cmdSaveSwift.Operation = mnuSaveSwift.Operation = [this] { cmdSaveSwift_Click(); };
    cboSaveSwift.OnClick = [this] { cboSaveSwift_Click(); };
    optOutExtension.OnClick = [this] { optOutExtension_Click(optOutExtension.Index()); };
    chkGenerXSL.OnClick = [this] { chkGenerXSL_Click(); };
    int i = 0;
    for (TextBox& field : txtOutExtension) {
        field.OnGotFocus = [this, &field] { sPrevExtension_ = field.Get(); };
        field.OnLostFocus = [this, i] { txtOutExtension_LostFocus(i); };
        ++i;
    }
    cmdCopyGedIn2SwiftOut.Operation =
        mnuCopyGedIn2SwiftOut.Operation = [this] { cmdCopyGedIn2SwiftOut_Click(); };
}

void frmMain::cmdSaveSwift_Click() {
    trail.Guard(
        "cmdSaveSwift_Click",
        [this] {
            const BoxAnswer answer =
                Box(" - Création Relevé-vif"_t,
                    Concat({"Voulez-vous TOUT sortir, ou uniquement les lignes sélectionnées ?"_t, kLineEnd,
                            kLineEnd, "Oui = Toutes les lignes"_t, kLineEnd,
                            "Non = Uniquement les lignes sélectionnées"_t}),
                    BoxButtons::YesNoCancel, BoxIcon::Question, BoxTopic::WriteAllRows);
            if (answer == BoxAnswer::Cancel) return;
            cmdSelectDirSwiftOut.Click();
            if (!bDialogCancelled) WriteSwiftFile(answer == BoxAnswer::No);
        },
        [this] {
            return Concat({cboSwiftOut.Get(), "/", cboFileModel.Get()});
        });
}

void frmMain::WriteSwiftFile(bool bSelectedOnly) {
    const OutputFormat& format = FormatOf(cboSaveSwift.ListIndex());
    const Text out = cboSwiftOut.Get(), model = cboFileModel.Get(), sXslFile = StylesheetOf(out);
    bWriteComplete = true;
    if (format.NeedsModel(!sXslFile.empty()) && ModelIsMissing(model)) return;
    const modReadGedcom::LineReader& lines = modReadGedcom.lines;
    const modGenFileFromModel::ListOrigin origin{cboGedIn.Get(), lines.lNrNames, lines.lNrLines};
    bWriteComplete = format.write({*this, *this, *this, origin, ports.files, ports.clock, *this}, format,
                                  {out, model, sXslFile, bSelectedOnly});
}

Text frmMain::StylesheetOf(TextView sOutFile) const {
    const int format = cboSaveSwift.ListIndex();
    if (format != StylesheetFormat() || !chkGenerXSL.Checked()) return {};
    return modCommon::ChangeExtension(sOutFile, txtModelExtension[static_cast<std::size_t>(format)].Get());
}

bool frmMain::ModelIsMissing(TextView sFile) {
    if (ports.files.Exists(sFile)) return false;
    Box(" - NoModel"_t, Concat({"Le fichier modèle"_t, kLineEnd, sFile, kLineEnd, "n'existe pas."_t}));
    return true;
}

void frmMain::optOutExtension_Click(int Index) {
    iOutFormat = Index;
    lblModel.Caption = "Fichier modèle "_t;
    lblOut.Caption = "Sortie Relevé-vif"_t;
    const OutputFormat& format = FormatOf(Index);
    if (format.NeedsModel(false)) lblModel.Caption += format.name;
    if (format.hasStylesheet && chkGenerXSL.Checked()) {
        lblModel.Caption += " XSL";
        lblOut.Caption += " + XSL";
    }
    txtINDEX.Enabled = format.hasIndex;
    chkGenerXSL.Enabled = format.hasStylesheet;
    if (cboSaveSwift.ListIndex() != Index) {
        cboSaveSwift.SetListIndex(Index);
        return;  // its handler comes back here and does the rest
    }
    if (bFormLoading) return;
    ChangeSwiftOutExtension();
    FileCombo_LostFocus(cboSwiftOut);
    ChangeKinshipExtension();
    FileCombo_LostFocus(cboKinship);
    ChangeModelExtension();
    FileCombo_LostFocus(cboFileModel);
}

void frmMain::cboSaveSwift_Click() {
    if (bFormLoading) return;
    cmdSaveSwift.Caption = cboSaveSwift.Get();
    optOutExtension.SetIndex(cboSaveSwift.ListIndex());
}

void frmMain::chkGenerXSL_Click() {
    const int format = StylesheetFormat();
    txtModelExtension[static_cast<std::size_t>(format)].Enabled = chkGenerXSL.Checked();
    optOutExtension_Click(format);
}

void frmMain::txtOutExtension_LostFocus(int Index) {
    TextBox& field = txtOutExtension[static_cast<std::size_t>(Index)];
    if (field.Get().empty()) field.SetText(FormatOf(Index).outExtension);
    // Passing through the field does not choose its format.
    if (field.Get() == sPrevExtension_) return;
    sPrevExtension_ = field.Get();
    optOutExtension_Click(Index);
}

const Text& frmMain::OutExtension() const {
    return txtOutExtension[static_cast<std::size_t>(optOutExtension.Index())].Get();
}

const Text& frmMain::ModelExtension() const {
    return txtModelExtension[static_cast<std::size_t>(optOutExtension.Index())].Get();
}

void frmMain::ChangeSwiftOutExtension() {
    const Text name = cboSwiftOut.Get().empty() ? cboGedIn.Get() : cboSwiftOut.Get();
    cboSwiftOut.SetText(modCommon::ChangeExtension(name, OutExtension()));
}

void frmMain::ChangeModelExtension() {
    cboFileModel.SetText(modCommon::ChangeExtension(cboFileModel.Get(), ModelExtension()));
}

void frmMain::ChangeKinshipExtension() {
    cboKinship.SetText(modCommon::ChangeExtension(cboKinship.Get(),
                                                  txtOutExtension[modGenFileFromModel::kHtmlFormat].Get()));
}

void frmMain::cmdCopyGedIn2SwiftOut_Click() {
    cboSwiftOut.SetText("");
    ChangeSwiftOutExtension();
    cboSwiftOut.TakeFocus();
    cboSwiftOut.LoseFocus();
}

}  // namespace swiftroll

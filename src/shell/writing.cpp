#include "shell/writing.h"

#include "list/calc_output.h"
#include "shell/file_names.h"
#include "shell/settings/history.h"
#include "shell/work_notice.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/output_format.h"

namespace swiftroll {

using modGenFileFromModel::OutputFormat;
using modGenFileFromModel::OutputFormats;
using modGenFileFromModel::StylesheetFormat;

namespace {

std::int64_t MarkedRows(const Table& table) {
    std::int64_t count = 0;
    for (std::int32_t i = 1; i <= table.Count(); ++i) count += table.Item(i).Marked() ? 1 : 0;
    return count;
}

const OutputFormat& FormatOf(int iFormat) { return OutputFormats()[static_cast<std::size_t>(iFormat)]; }

}  // namespace

Writing::Writing(Application& app, WritingCommands& commands, const Command& cmdSelectDirSwiftOut,
                 const modReadGedcom::LineReader& lines, FileCombos& fileCombos)
    : app_(app),
      commands_(commands),
      cmdSelectDirSwiftOut_(cmdSelectDirSwiftOut),
      lines_(lines),
      fileCombos_(fileCombos) {
    commands_.cmdSaveSwift.Operation = commands_.mnuSaveSwift.Operation = [this] { cmdSaveSwift_Click(); };
    app_.cboSaveSwift.OnClick = [this] { cboSaveSwift_Click(); };
    app_.optOutExtension.OnClick = [this] { optOutExtension_Click(app_.optOutExtension.Index()); };
    app_.chkGenerXSL.OnClick = [this] { chkGenerXSL_Click(); };
    int i = 0;
    for (TextBox& field : app_.txtOutExtension) {
        field.OnGotFocus = [this, &field] { sPrevExtension_ = field.Get(); };
        field.OnLostFocus = [this, i] { txtOutExtension_LostFocus(i); };
        ++i;
    }
    commands_.cmdCopyGedIn2SwiftOut.Operation =
        commands_.mnuCopyGedIn2SwiftOut.Operation = [this] { cmdCopyGedIn2SwiftOut_Click(); };
}

void Writing::cmdSaveSwift_Click() {
    app_.trail.Guard(
        "cmdSaveSwift_Click",
        [this] {
            const BoxAnswer answer =
                app_.Box(" - Création Relevé-vif"_t,
                         Concat({"Voulez-vous TOUT sortir, ou uniquement les lignes sélectionnées ?"_t,
                                 kLineEnd, kLineEnd, "Oui = Toutes les lignes"_t, kLineEnd,
                                 "Non = Uniquement les lignes sélectionnées"_t}),
                         BoxButtons::YesNoCancel, BoxIcon::Question, BoxTopic::WriteAllRows);
            if (answer == BoxAnswer::Cancel) return;
            cmdSelectDirSwiftOut_.Click();
            if (!app_.bDialogCancelled) WriteSwiftFile(answer == BoxAnswer::No);
        },
        [this] {
            return Concat({app_.cboSwiftOut.Get(), "/", app_.cboFileModel.Get()});
        });
}

void Writing::WriteSwiftFile(bool bSelectedOnly) {
    const OutputFormat& format = FormatOf(app_.cboSaveSwift.ListIndex());
    const Text out = app_.cboSwiftOut.Get(), model = app_.cboFileModel.Get(), sXslFile = StylesheetOf(out);
    bWriteComplete = true;
    if (format.NeedsModel(!sXslFile.empty()) && ModelIsMissing(model)) return;
    modCalcOut::HideInList(app_, app_, modPrivacy::Living(app_, app_, app_.ports.clock));
    const modGenFileFromModel::ListOrigin origin{app_.cboGedIn.Get(), lines_.lNrNames, lines_.lNrLines};
    const std::int64_t rows = bSelectedOnly ? MarkedRows(app_.lvwOut) : app_.lvwOut.Count();
    using modGenFileFromModel::Written;
    const Written written = format.write({app_, app_, app_, origin, app_.ports.files, app_.ports.clock, app_},
                                         format, {out, model, sXslFile, bSelectedOnly});
    bWriteComplete = written != Written::FailureUntold;
    if (written == Written::Whole) {
        TellWritten(app_, fileCombos_, "Relevé écrit"_t, {Counted(rows, "ligne", "lignes")}, out);
    }
}

Text Writing::StylesheetOf(TextView sOutFile) const {
    const int format = app_.cboSaveSwift.ListIndex();
    if (format != StylesheetFormat() || !app_.chkGenerXSL.Checked()) return {};
    return modCommon::ChangeExtension(sOutFile,
                                      app_.txtModelExtension[static_cast<std::size_t>(format)].Get());
}

Text Writing::ModelDoubt() const {
    const OutputFormat& format = FormatOf(app_.cboSaveSwift.ListIndex());
    const TextView name = FileNamePart(app_.cboFileModel.Get());
    if (name.empty() || !format.NeedsModel(app_.chkGenerXSL.Checked())) return {};
    const Text ending = "." + modCommon::ModelExtension(app_);
    if (LowerCaseAscii(name).ends_with(LowerCaseAscii(ending))) return {};
    return Concat({"Ce fichier n'a pas l'extension « "_t, ending, " » des modèles "_t, format.name,
                   " : choisissez un autre modèle, ou un autre format."_t});
}

bool Writing::ModelIsMissing(TextView sFile) {
    if (app_.ports.files.Exists(sFile)) return false;
    app_.Box(" - NoModel"_t, Concat({"Le fichier modèle"_t, kLineEnd, sFile, kLineEnd, "n'existe pas."_t}));
    return true;
}

void Writing::ShowFormat() {
    app_.bFormLoading = true;  // no file name follows the format yet
    optOutExtension_Click(app_.optOutExtension.Index());
    app_.bFormLoading = false;
    commands_.cmdSaveSwift.Caption = app_.cboSaveSwift.Get();
}

void Writing::optOutExtension_Click(int Index) {
    app_.iOutFormat = Index;
    app_.lblModel.Caption = "Fichier modèle "_t;
    app_.lblOut.Caption = "Sortie Relevé-vif"_t;
    const OutputFormat& format = FormatOf(Index);
    if (format.NeedsModel(false)) app_.lblModel.Caption += format.name;
    if (format.hasStylesheet && app_.chkGenerXSL.Checked()) {
        app_.lblModel.Caption += " XSL";
        app_.lblOut.Caption += " + XSL";
    }
    app_.txtINDEX.Enabled = format.hasIndex;
    app_.chkGenerXSL.Enabled = app_.chkStrictXml.Enabled = format.hasStylesheet;
    if (app_.cboSaveSwift.ListIndex() != Index) {
        app_.cboSaveSwift.SetListIndex(Index);
        return;  // its handler comes back here and does the rest
    }
    if (app_.bFormLoading) return;
    modCommon::ChangeSwiftOutExtension(app_);
    fileCombos_.FileCombo_LostFocus(app_.cboSwiftOut);
    modCommon::ChangeKinshipExtension(app_);
    fileCombos_.FileCombo_LostFocus(app_.cboKinship);
    if (!format.model) return;  // the model keeps its name for the formats that have one
    modCommon::ChangeModelExtension(app_);
    fileCombos_.FileCombo_LostFocus(app_.cboFileModel);
}

void Writing::cboSaveSwift_Click() {
    if (app_.bFormLoading) return;
    commands_.cmdSaveSwift.Caption = app_.cboSaveSwift.Get();
    app_.optOutExtension.SetIndex(app_.cboSaveSwift.ListIndex());
}

void Writing::chkGenerXSL_Click() {
    const int format = StylesheetFormat();
    app_.txtModelExtension[static_cast<std::size_t>(format)].Enabled = app_.chkGenerXSL.Checked();
    optOutExtension_Click(format);
}

void Writing::txtOutExtension_LostFocus(int Index) {
    TextBox& field = app_.txtOutExtension[static_cast<std::size_t>(Index)];
    if (field.Get().empty()) field.SetText(FormatOf(Index).outExtension);
    // Passing through the field does not choose its format.
    if (field.Get() == sPrevExtension_) return;
    sPrevExtension_ = field.Get();
    optOutExtension_Click(Index);
}

void Writing::cmdCopyGedIn2SwiftOut_Click() {
    app_.cboSwiftOut.SetText("");
    modCommon::ChangeSwiftOutExtension(app_);
    app_.cboSwiftOut.TakeFocus();
    app_.cboSwiftOut.LoseFocus();
}

}  // namespace swiftroll

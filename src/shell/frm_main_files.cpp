// The file dialogs and the rules of the file combos.
#include "shell/frm_main.h"
#include "shell/history.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

void frmMain::BindFiles() {
    for (ComboBox* combo : {&cboGedIn, &cboGedOut, &cboSwiftOut, &cboFileModel, &cboKinship}) {
        combo->OnGotFocus = [this, combo] { sPrevFile_ = combo->Get(); };
        combo->OnLostFocus = [this, combo] { FileCombo_LostFocus(*combo); };
    }
    cmdSelectDirGedIn.Operation = [this] {
        SelectFile(cboGedIn, false, {"Choisissez le fichier GEDCOM à charger"_t, "Gedcom", "ged"});
    };
    cmdSelectDirSwiftOut.Operation = [this] {
        const Text& caption = optOutExtension.Captions()[static_cast<std::size_t>(optOutExtension.Index())];
        SelectFile(cboSwiftOut, true,
                   {"Choisissez le fichier SwiftRoll à écrire"_t, caption, OutExtension()});
    };
    cmdSelectDirModel.Operation = [this] {
        const Text& caption = optOutExtension.Captions()[static_cast<std::size_t>(optOutExtension.Index())];
        const Text filterName = Concat({"Fichiers ", caption});
        SelectFile(cboFileModel, false,
                   {"Choisissez le fichier modèle sur lequel se baser"_t, filterName, ModelExtension()});
    };
}

void frmMain::SelectFile(ComboBox& combo, bool bSave, const FileRole& role) {
    SetFocus(combo);
    bDialogCancelled = !trail.Guard(
        "GetFile", [&] { return GetFile(combo, bSave, role); }, [&] { return combo.Get(); });
}

bool frmMain::GetFile(ComboBox& combo, bool bSave, const FileRole& role) {
    Dialogs::FileRequest request{bSave, Text(role.title), combo.Get(), {}, role.extension};
    if (request.fileName.ends_with(':') || request.fileName.ends_with('\\') ||
        request.fileName.ends_with('/')) {
        request.fileName += "*." + role.extension;
    }
    request.filter =
        Concat({role.filterName, " (*.", role.extension, ")|*.", role.extension, "|Tous (*.*)|*.*"});
    Text chosen;
    BoxAnswer answer = BoxAnswer::Yes;
    do {
        if (!ports.dialogs.AskFile(request, chosen)) return false;
    } while (bSave && !MayOverwrite(chosen, answer));
    combo.SetText(chosen);
    return answer == BoxAnswer::Yes;
}

/// Asks about a file that exists; false to show the dialog again.
bool frmMain::MayOverwrite(TextView sFile, BoxAnswer& answer) {
    answer = BoxAnswer::Yes;
    if (ports.files.Exists(sFile)) {
        answer =
            Box(" - Fichier existant"_t,
                Concat({"Le fichier existe déjà"_t, kLineEnd, sFile, kLineEnd, "Voulez-vous l'écraser ?"_t}),
                BoxButtons::YesNoCancel, BoxIcon::Question, BoxTopic::OverwriteFile);
    }
    return answer != BoxAnswer::No;
}

void frmMain::FileCombo_LostFocus(ComboBox& cbo) {
    if (CheckFileCbo(cbo)) modCommon::cboAdd(cbo);
    if (&cbo == &cboGedIn && cboSwiftOut.Get().empty()) ChangeSwiftOutExtension();
}

bool frmMain::CheckFileCbo(ComboBox& cbo) {
    const Text text = cbo.Get();
    if (text.empty()) return true;
    const std::pair<const ComboBox*, TextView> roles[] = {{&cboGedIn, "Gedcom en entrée"_t},
                                                          {&cboGedOut, "Gedcom en sortie"_t},
                                                          {&cboSwiftOut, "Relevé-vif"_t},
                                                          {&cboFileModel, "Modèle HTML"_t},
                                                          {&cboKinship, "HTML des liens de parentés"_t}};
    TextView sRole;
    for (const auto& [other, role] : roles) {
        if (other != &cbo && other->Get() == text) sRole = role;
    }
    if (sRole.empty()) return true;
    if (bStarting) {
        cbo.SetText("");
        return false;
    }
    Box(" - CheckFileCbo"_t,
        Concat({"Vous allez écraser le fichier "_t, sRole, kLineEnd, "(Même nom de fichier)"_t}),
        BoxButtons::Ok, BoxIcon::Exclamation);
    cbo.SetText(sPrevFile_ == text ? Text() : sPrevFile_);
    SetFocus(cbo);
    return false;
}

}  // namespace swiftroll

#include "shell/file_combos.h"

#include "shell/file_names.h"
#include "shell/settings/history.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {

using namespace modCommon;

FileCombos::FileCombos(Application& app, FileCommands& commands, DisplayCommands& displays) : app_(app) {
    for (ComboBox* combo :
         {&app_.cboGedIn, &app_.cboGedOut, &app_.cboSwiftOut, &app_.cboFileModel, &app_.cboKinship}) {
        combo->OnGotFocus = [this, combo] { sPrevFile_ = combo->Get(); };
        combo->OnLostFocus = [this, combo] { FileCombo_LostFocus(*combo); };
    }
    commands.cmdSelectDirGedIn.Operation = [this] {
        SelectFile(app_.cboGedIn, false, {"Choisissez le fichier GEDCOM à charger"_t, "Gedcom", "ged"});
    };
    commands.cmdSelectDirSwiftOut.Operation = [this] {
        const Text& caption =
            app_.optOutExtension.Captions()[static_cast<std::size_t>(app_.optOutExtension.Index())];
        SelectFile(app_.cboSwiftOut, true,
                   {"Choisissez le fichier SwiftRoll à écrire"_t, caption, OutExtension(app_)});
    };
    commands.cmdSelectDirModel.Operation = [this] {
        const Text& caption =
            app_.optOutExtension.Captions()[static_cast<std::size_t>(app_.optOutExtension.Index())];
        const Text filterName = Concat({"Fichiers ", caption});
        SelectFile(app_.cboFileModel, false,
                   {"Choisissez le fichier modèle sur lequel se baser"_t, filterName, ModelExtension(app_)});
    };
    const std::pair<Command&, ComboBox&> opened[] = {{displays.cmdDisplayGedIn, app_.cboGedIn},
                                                     {displays.cmdDisplayGedOut, app_.cboGedOut},
                                                     {displays.cmdDisplaySwiftOut, app_.cboSwiftOut},
                                                     {displays.cmdDisplayModel, app_.cboFileModel},
                                                     {displays.cmdDisplayKinship, app_.cboKinship}};
    for (const auto& [command, combo] : opened) {
        command.Operation = [this, file = &combo] { OpenFile(file->Get()); };
    }
}

void FileCombos::Reveal(const ComboBox& combo) {
    if (&combo != &app_.cboGedIn) app_.chkOutputFiles.SetChecked(true);
}

void FileCombos::SelectFile(ComboBox& combo, bool bSave, const FileRole& role) {
    Reveal(combo);
    app_.SetFocus(combo);
    app_.bDialogCancelled = !app_.trail.Guard(
        "GetFile", [&] { return GetFile(combo, bSave, role); }, [&] { return combo.Get(); });
}

bool FileCombos::GetFile(ComboBox& combo, bool bSave, const FileRole& role) {
    Text chosen;
    const Text name = ProposedName(combo.Get(), app_.cboGedIn.Get());
    const bool goesOn = AskFile(
        app_, FileRequestOf(bSave, role.title, name, role.filterName, role.extension, role.others), chosen);
    if (!chosen.empty()) combo.SetText(chosen);
    return goesOn;
}

void FileCombos::FileCombo_LostFocus(ComboBox& cbo) {
    if (CheckFileCbo(cbo)) cboAdd(cbo);
    if (&cbo == &app_.cboGedIn && app_.cboSwiftOut.Get().empty()) ChangeSwiftOutExtension(app_);
}

bool FileCombos::CheckFileCbo(ComboBox& cbo) {
    const Text text = cbo.Get();
    if (text.empty()) return true;
    const std::pair<const ComboBox*, TextView> roles[] = {{&app_.cboGedIn, "Gedcom en entrée"_t},
                                                          {&app_.cboGedOut, "Gedcom en sortie"_t},
                                                          {&app_.cboSwiftOut, "Relevé-vif"_t},
                                                          {&app_.cboFileModel, "Modèle HTML"_t},
                                                          {&app_.cboKinship, "HTML des liens de parentés"_t}};
    TextView sRole;
    for (const auto& [other, role] : roles) {
        if (other != &cbo && other->Get() == text) sRole = role;
    }
    if (sRole.empty()) return true;
    if (app_.bStarting) {
        cbo.SetText("");
        return false;
    }
    app_.Box(" - CheckFileCbo"_t,
             Concat({"Vous allez écraser le fichier "_t, sRole, kLineEnd, "(Même nom de fichier)"_t}),
             BoxButtons::Ok, BoxIcon::Exclamation);
    cbo.SetText(sPrevFile_ == text ? Text() : sPrevFile_);
    Reveal(cbo);
    app_.SetFocus(cbo);
    return false;
}

void FileCombos::OpenFile(TextView sFile) {
    app_.trail.Guard(
        "OpenFile",
        [&] {
            constexpr int kNoAssociation = 31;
            int number = 0;
            const auto refuse = [&](int why) {
                app_.Box(" - Fichier Erreur"_t, Concat({"Erreur d'ouverture du Fichier :"_t, kLineEnd, sFile,
                                                        kLineEnd, "Erreur = ", Decimal(why)}));
            };
            switch (app_.ports.desktop.Open(sFile, number)) {
                case Desktop::OpenResult::Opened:
                    break;
                case Desktop::OpenResult::FileNotFound:
                    app_.Box(" - Fichier non trouvé"_t, Concat({"Fichier non trouvé :"_t, kLineEnd, sFile}));
                    break;
                case Desktop::OpenResult::NoProgram:
                    if (!app_.ports.desktop.ChooseProgram(sFile)) refuse(kNoAssociation);
                    break;
                case Desktop::OpenResult::Refused:
                    refuse(number);
                    break;
            }
        },
        [&] { return Text(sFile); });
}

}  // namespace swiftroll

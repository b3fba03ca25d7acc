// What belongs to the window itself: opening files, help, the end of the program.
#include "shell/frm_main.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {

void frmMain::BindWindow() {
    const std::pair<Command*, ComboBox*> displays[] = {{&cmdDisplayGedIn, &cboGedIn},
                                                       {&cmdDisplayGedOut, &cboGedOut},
                                                       {&cmdDisplaySwiftOut, &cboSwiftOut},
                                                       {&cmdDisplayModel, &cboFileModel},
                                                       {&cmdDisplayKinship, &cboKinship}};
    for (const auto& [command, combo] : displays) {
        command->Operation = [this, file = combo] { OpenFile(file->Get()); };
    }
    cmdHelp.Operation = mnuDoc.Operation = [this] { LaunchHTMLHelp(0); };
    cmdExit.Operation = mnuExit.Operation = [this] { cmdExit_Click(); };
    mnuAbout.Operation = [this] { frmSplash.Show(); };
    mnuContext2.Operation = [this] { mnuContext2_Click(); };
}

void frmMain::OpenFile(TextView sFile) {
    trail.Guard(
        "OpenFile",
        [&] {
            constexpr int kNoAssociation = 31;
            int number = 0;
            const auto refuse = [&](int why) {
                Box(" - Fichier Erreur"_t, Concat({"Erreur d'ouverture du Fichier :"_t, kLineEnd, sFile,
                                                   kLineEnd, "Erreur = ", Decimal(why)}));
            };
            switch (ports.desktop.Open(sFile, number)) {
                case Desktop::OpenResult::Opened:
                    break;
                case Desktop::OpenResult::FileNotFound:
                    Box(" - Fichier non trouvé"_t, Concat({"Fichier non trouvé :"_t, kLineEnd, sFile}));
                    break;
                case Desktop::OpenResult::NoProgram:
                    if (!ports.desktop.ChooseProgram(sFile)) refuse(kNoAssociation);
                    break;
                case Desktop::OpenResult::Refused:
                    refuse(number);
                    break;
            }
        },
        [&] { return Text(sFile); });
}

bool frmMain::LaunchHTMLHelp(int topic) {
    if (!ports.files.Exists(sHelpFile)) {
        pnlMessage.Set(Concat({"Le manuel n'a pas été trouvé : "_t, sHelpFile}));
        return false;
    }
    const bool isOpen = ports.desktop.OpenHelp(sHelpFile, topic);
    if (!isOpen) pnlMessage.Set(Concat({"Aucun programme n'a pu ouvrir le manuel : "_t, sHelpFile}));
    return isOpen;
}

void frmMain::mnuContext2_Click() {
    Box(" - Menu Contextuel"_t,
        Concat({"Un clic dans les listes avec le bouton droit de la souris"_t, kLineEnd,
                "permet la sélection d'individus dans la liste 'Entrée'"_t, kLineEnd,
                "ou dans la liste courante suivant différents critères"_t, kLineEnd,
                "en fonction de l'élément cliqué (Individu, Famille,...)."_t, kLineEnd,
                "Voir l'aide pour plus de détails"_t}));
}

void frmMain::cmdExit_Click() {
    LeaveFocus();  // a name that was just typed enters its history
    SaveAllControls();
    bExiting = true;
    for (Window* window : SecondaryWindows()) window->Hide();
    bEnded = true;
}

bool frmMain::Form_QueryUnload() {
    switch (Box(" - Abort"_t, "Voulez-vous sauvegarder les paramètres ?"_t, BoxButtons::YesNoCancel,
                BoxIcon::Question)) {
        case BoxAnswer::Yes:
            cmdExit_Click();
            return true;
        case BoxAnswer::No:
            bEnded = true;
            return true;
        default:
            return false;
    }
}

}  // namespace swiftroll

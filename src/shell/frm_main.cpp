#include "shell/frm_main.h"

#include "shell/file_names.h"
#include "shell/list_tips.h"
#include "shell/option_rules.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/output_format.h"

namespace swiftroll {

frmMain::frmMain(const Ports& applicationPorts)
    : Application(applicationPorts, modGenFileFromModel::FormatOptions()),
      MainCommands(static_cast<Window&>(*this)),
      reader(*this),
      kinshipSearch(*this),
      selection(*this),
      kinshipDialog(*this),
      about(*this),
      preview(*this),
      updates(*this),
      findDialog(*this, selection),
      checkDialog(*this, *this, reader.lines),
      relatives(*this),
      personPanel(*this, reader),
      savedSettings(*this, {{*this, All()},
                            {findDialog},
                            {checkDialog},
                            {preview},
                            {kinshipDialog},
                            {about},
                            {updates},
                            {relatives},
                            {personPanel}}),
      fileCombos(*this, *this, *this),
      drawing(*this, *this, kinshipSearch, fileCombos, preview),
      favorites(*this, mnuAddFavorite, cmdGotoFavorite),
      tabs(*this, mnuCopy, favorites, drawing),
      filters(*this, *this),
      marks(*this, *this),
      lists(*this, *this, selection, findDialog, tabs, filters, marks),
      columns(*this, *this, lists),
      typeAhead(filters),
      contextMenu(*this, *this, selection, lists, columns, marks),
      kinshipRequest(*this, *this, kinshipDialog, kinshipSearch, drawing),
      pathChoice(*this, kinshipSearch),
      kinshipPair(*this, *this, selection, lists, kinshipRequest),
      writing(*this, *this, cmdSelectDirSwiftOut, reader.lines, fileCombos),
      grouping(*this),
      reading_(*this, *this, reader, drawing),
      extract_(*this, *this, reader.lines, fileCombos),
      report_(*this, *this, updates, savedSettings),
      parameterSets_(*this, *this) {
    BindOptionRules(*this);
    cmdHelp.Operation = mnuDoc.Operation = [this] { LaunchHTMLHelp(0); };
    cmdStop.Operation = [this] { RequestAbort(); };
    cmdExit.Operation = mnuExit.Operation = [this] { cmdExit_Click(); };
    mnuAbout.Operation = [this] { about.Show(); };
    mnuAllKin.Operation = [this] {
        lists.OnActiveTable("mnuAllKin_Click", [this](Table& table) {
            if (const auto individual = selection.context.IndividualOf(table, lists.lHitRow)) {
                relatives.Open(*individual);
            }
        });
    };
    mnuContext2.Operation = [this] { mnuContext2_Click(); };
}

void frmMain::Form_Load(TextView sCommandLine) {
    const char* step = "";
    trail.GuardElse(
        "Form_Load",
        [&] {
            bStarting = true;
            InitPaths();
            step = "InitCTT";
            AttachTips(*this);
            step = "InitMisc";
            for (Panel* panel : {&pnlLines, &pnlIndividuals, &pnlFamilies}) panel->Set("");
            pnlMessage.Set(
                "=> N'oubliez pas de consulter la disponibilité de mises-à-jour via le menu "
                "\"Aide / Vérifier...\""_t);
            step = "GetAllControls";
            SetAllColumnIcons(*this);
            savedSettings.GetAllControls();
            cboLoad.SetListIndex(chkProcFamilies.Checked() ? 0 : 1);
            writing.ShowFormat();
            savedSettings.ShowNotice();
            step = "InitCombos";
            InitCombos();
            cboDrawKinship.SetListIndex(3);
            drawing.txtFont_Change();
            InitIndexes();
            step = "EndInit";
            const Text file(Trim(ReplaceAll(sCommandLine, "\"", "")));
            if (!file.empty()) {
                cboGedIn.SetText(file);
                fileCombos.FileCombo_LostFocus(cboGedIn);
            }
            // The check may have to wait for the network: the user can end the wait, and work meanwhile.
            bStarting = false;
            Show();
            if (chkCheckUpdates.Checked()) updates.GetUpdates(true);
            savedSettings.RepeatNotice();
        },
        [&] {
            trail.ErrorLog(
                Concat({step, "/0/", cboGedIn.Get(), "/", cboFileModel.Get(), "/", cboKinship.Get()}));
            throw ProgramEnd{};
        });
}

void frmMain::InitPaths() {
    sUserAppData = ports.folders.UserData();
    if (sUserAppData.empty()) {
        sUserAppData = ports.folders.Temporary();
    } else {
        sUserAppData = PathOf(sUserAppData, sProduct);
        ports.folders.Create(sUserAppData);
    }
    sUserMyDocuments = ports.folders.UserDocuments();
    if (sUserMyDocuments.empty()) sUserMyDocuments = ports.folders.Program();
    // The manual stands beside the program, or beside the installed models.
    sHelpFile = PathOf(PathOf(ports.folders.Program(), "help"), "index.html");
    if (!ports.files.Exists(sHelpFile)) {
        sHelpFile = PathOf(PathOf(PathOf(ports.folders.Models(), ".."), "help"), "index.html");
    }
}

void frmMain::InitCombos() {
    if (cboGedIn.Get().empty()) cboGedIn.SetText(PathOf(sUserMyDocuments, ".ged"));
    if (cboGedOut.Get().empty()) cboGedOut.SetText(PathOf(sUserMyDocuments, ".Extrait.ged"));
    if (cboSwiftOut.Get().empty() || cboSwiftOut.Get().starts_with('.')) cmdCopyGedIn2SwiftOut.Click();
    if (cboFileModel.Get().empty()) {
        cboFileModel.SetText(PathOf(ports.folders.Models(), "SwiftRoll.Modele.html"));
        modCommon::ChangeModelExtension(*this);
    }
    if (cboKinship.Get().empty()) {
        cboKinship.SetText(PathOf(sUserMyDocuments, "Kinship"));
        modCommon::ChangeKinshipExtension(*this);
    }
}

void frmMain::TakeGedIn(TextView sFile) {
    SetFocus(cboGedIn);
    cboGedIn.SetText(sFile);
    SetFocus(cmdLoad);  // the name enters the history
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
    savedSettings.SaveAllControls();
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

#include "shell/frm_main.h"

#include "gedcom/places.h"
#include "list/calc_output.h"
#include "shell/file_names.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/output_format.h"

namespace swiftroll {

frmMain::frmMain(const Ports& applicationPorts)
    : Application(applicationPorts, modGenFileFromModel::FormatOptions()),
      ListCommands(static_cast<Window&>(*this)),
      cmdLoad(*this, {"cmdLoad", "Lire Tout"_t, "Lit le fichier GEDCOM spécifié."_t}),
      mnuReadGedCom(*this, {"mnuReadGedCom", "Lire GedCom"_t}, "Ctrl+O"),
      cmdRecalcIn(*this,
                  {"cmdRecalcIn", "ReCalcule Lieu && Dates Min/Max dans \"Entrée\""_t,
                   "Recalcule les colonnes \"Lieu\"  det \"Date Min/Max\" dans le liste \"Entrée\""_t}),
      cmdCalcOutput(*this, {"cmdCalcOutput", "Recalcul Sortie"_t}, "F5"),
      mnuRecalcOut(*this, {"mnuRecalcOut", "Recalcul Sortie"_t}, "F5"),
      cmdSaveSwift(*this, {"cmdSaveSwift", "Ecrire en HTML"_t}),
      mnuSaveSwift(*this, {"mnuSaveSwift", "Ecrire Relevé-vif"_t}, "Ctrl+L"),
      cmdCopyGedIn2SwiftOut(*this, {"cmdCopyGedIn2SwiftOut", "V"}),
      mnuCopyGedIn2SwiftOut(*this, {"mnuCopyGedIn2SwiftOut", "Génère Nom du Fichier Relevé-vif en Sortie"_t}),
      cmdSelectDirGedIn(*this, {"cmdSelectDirGedIn", "..."}),
      cmdSelectDirSwiftOut(*this, {"cmdSelectDirSwiftOut", "..."}),
      cmdSelectDirModel(*this, {"cmdSelectDirModel", "..."}),
      cmdFindPath(*this,
                  {"cmdFindPath", "Rech. Parenté"_t,
                   "Recherche la parenté entre les 2 individus sélectionnés dans la liste en entrée."_t},
                  {}, false),
      mnuFindPath(*this, {"mnuFindPath", "Recherche Parenté"_t}, {}, false),
      cmdSaveGed(*this, {"cmdSaveGed", "Ecrire"_t}, {}, false),
      mnuSaveGed(*this, {"mnuSaveGed", "Ecrire Gedcom"_t}, "Ctrl+G"),
      cmdSelectDirGedOut(*this, {"cmdSelectDirGedOut", "..."}),
      cmdCopyGedIn2GedOut(*this, {"cmdCopyGedIn2GedOut", "V"}),
      mnuCopyGedIn2GedOut(*this, {"mnuCopyGedIn2GedOut", "Génère Nom du Fichier Gedcom en Sortie"_t}),
      mnuDrawKinship(*this, {"mnuDrawKinship", "Dessin des parentés"_t}, {}, false),
      cmdDrawKinship(*this, {"cmdDrawKinship", "Ecrire Toutes +"_t}, {}, false),
      cmdCopyTitle2kinship(*this,
                           {"cmdCopyTitle2kinship", ">",
                            "Crée un nom de fichier qui indique les 2 individus qui sont apparentés."_t},
                           {}, false),
      cmdPrintKinship(*this, {"cmdPrintKinship"}, {}, false),
      mnuDrawKinshipOne(*this, {"mnuDrawKinshipOne", "Dessin Une Parenté (Simple)"_t}),
      mnuDrawKinshipOneSpouse(*this, {"mnuDrawKinshipOneSpouse", "Dessin Une Parenté (avec conjoint)"_t}),
      mnuDrawKinshipAll(*this, {"mnuDrawKinshipAll", "Dessin Toutes Parentés (Simple)"_t}),
      mnuDrawKinshipAllSpouse(*this, {"mnuDrawKinshipAllSpouse", "Dessin Toutes Parentés (avec conjoint)"_t}),
      cmdSelectDirKinship(*this, {"cmdSelectDirKinship", "..."}),
      picTreeH(*this, {"picTreeH", {}, "Dessine les liens de parenté avec les ancêtres en haut."_t}),
      picTreeV(*this, {"picTreeV", {}, "Dessine les liens de parenté avec les ancêtres à gauche."_t}),
      cmdFont(*this, {"cmdFont", "Fonte..."}),
      cmdDisplayGedIn(*this, {"cmdDisplayGedIn"}),
      cmdDisplayGedOut(*this, {"cmdDisplayGedOut"}),
      cmdDisplaySwiftOut(*this, {"cmdDisplaySwiftOut"}),
      cmdDisplayModel(*this, {"cmdDisplayModel"}),
      cmdDisplayKinship(*this, {"cmdDisplayKinship"}),
      mnuFile(*this, {"mnuFile", "Fichier"}),
      mnuContext1(*this, {"mnuContext1", "Menu Contextuel"}),
      mnuContext2(*this, {"mnuContext2", "Click Droit dans les listes"}),
      mnuHelp(*this, {"mnuHelp", "Aide"}),
      cmdHelp(*this, {"cmdHelp", "Documentation"}),
      mnuDoc(*this, {"mnuDoc", "Documentation"}),
      mnuAbout(*this, {"mnuAbout", "A Propos"}, "F12"),
      cmdExit(*this, {"cmdExit", "Quitter"}),
      mnuExit(*this, {"mnuExit", "&Quitter"}),
      mnuCheckUpdate(*this, {"mnuCheckUpdate", "Vérifier si c'est la dernière version"_t}),
      PicturepicKeepUpdated(*this, {"PicturepicKeepUpdated", {}, "Vérifier si c'est la dernière version"_t}),
      mnuSaveParams(*this, {"mnuSaveParams", "Sauve && Envoie Param..."}),
      cmdSaveCells(*this, {"cmdSaveCells", {}, "Sauve les paramètres des cellules sous ce nom."_t}),
      cmdSaveColumns(*this,
                     {"cmdSaveColumns", {}, "Sauve les positions et largeurs des colonnes sous ce nom."_t}),
      cmdSavePlace(*this, {"cmdSavePlace", {}, "Sauve les paramètres des lieux sous ce nom."_t}),
      cmdGotoFavorite(*this,
                      {"cmdGotoFavorite", ">",
                       Concat({"Va à ce favori dans la liste."_t, kLineEnd, "+Shift = Le sélectionner"_t})}),
      mnuContext(ContextMenu()),
      modReadGedcom(*this),
      modKinship(*this),
      frmKinshipSelect(*this),
      frmSplash(*this),
      frmPreview(*this),
      frmUpdates(*this),
      modSelectionIn(*this),
      frmFind(*this, modSelectionIn) {
    DisableKinshipCommands();
    BindReading();
    BindWriting();
    BindFiles();
    BindOptionRules();
    BindLists();
    BindContextMenu();
    BindKinship();
    BindDrawing();
    BindExtract();
    BindWindow();
    BindReport();
    BindParameterSets();
    BindFavorites();
}

std::vector<Menu> frmMain::MenuBar() {
    return {{mnuFile,
             {{mnuReadGedCom},
              {mnuRecalcOut},
              {mnuSaveSwift},
              {mnuSaveGed},
              {mnuCopyGedIn2SwiftOut},
              {mnuCopyGedIn2GedOut},
              {mnuExit}}},
            {mnuContext1, {{mnuContext2}}},
            {mnuHelp, {{mnuDoc}, {mnuCheckUpdate}, {mnuSaveParams}, {mnuAbout}}}};
}

void frmMain::Form_Load(TextView sCommandLine) {
    const char* step = "";
    trail.GuardElse(
        "Form_Load",
        [&] {
            bStarting = true;
            InitPaths();
            step = "InitCTT";
            AttachTips();
            step = "InitMisc";
            for (Panel* panel : {&pnlLines, &pnlIndividuals, &pnlFamilies}) panel->Set("");
            pnlMessage.Set(
                "=> N'oubliez pas de consulter la disponibilité de mises-à-jour via le menu "
                "\"Aide / Vérifier...\""_t);
            step = "GetAllControls";
            SetAllColumnIcons(*this);
            RestoreSettings();
            step = "InitCombos";
            InitCombos();
            cboDrawKinship.SetListIndex(3);
            txtFont_Change();
            InitIndexes();
            step = "EndInit";
            const Text file(Trim(ReplaceAll(sCommandLine, "\"", "")));
            if (!file.empty()) {
                cboGedIn.SetText(file);
                FileCombo_LostFocus(cboGedIn);
            }
            // The check may have to wait for the network, and the user can end the wait.
            Show();
            if (chkCheckUpdates.Checked()) frmUpdates.GetUpdates(true);
            RepeatNotice();
            bStarting = false;
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
    if (cboSwiftOut.Get().empty() || cboSwiftOut.Get().starts_with('.')) cmdCopyGedIn2SwiftOut_Click();
    if (cboFileModel.Get().empty()) {
        cboFileModel.SetText(PathOf(ports.folders.Models(), "SwiftRoll.Modele.html"));
        ChangeModelExtension();
    }
    if (cboKinship.Get().empty()) {
        cboKinship.SetText(PathOf(sUserMyDocuments, "Kinship"));
        ChangeKinshipExtension();
    }
}

}  // namespace swiftroll

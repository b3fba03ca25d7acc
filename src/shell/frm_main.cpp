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
      MainCommands(static_cast<Window&>(*this)),
      mnuContext(TableMenu()),
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

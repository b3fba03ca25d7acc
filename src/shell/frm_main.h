#pragma once

#include <deque>

#include "app/application.h"
#include "gedcom/reader.h"
#include "kinship/search.h"
#include "selection/engine.h"
#include "shell/frm_kinship_select.h"
#include "shell/parameter_set.h"
#include "shell/settings_walk.h"

namespace swiftroll {

/// The main window without a screen: owner of all tables, options and commands. Loading it starts the
/// application. A window, the headless program and the tests are presentations that set its controls and
/// click its commands.
class frmMain : public Application {
  public:
    explicit frmMain(const Ports& applicationPorts);

    /// Starts the application; `sCommandLine` is the file to put in `cboGedIn`, quotes allowed, or empty.
    /// @throws ProgramEnd after the report of a failure
    void Form_Load(TextView sCommandLine);

    // Reading
    Command cmdLoad, mnuReadGedCom;
    Command cmdRecalcIn;
    // The list
    Command cmdCalcOutput, mnuRecalcOut;
    Command cmdSaveSwift, mnuSaveSwift;
    Command cmdCopyGedIn2SwiftOut, mnuCopyGedIn2SwiftOut;
    // Files
    Command cmdSelectDirGedIn, cmdSelectDirSwiftOut, cmdSelectDirModel;
    // Commands that depend on what was read
    Command cmdFindPath, mnuFindPath;
    // The extract
    Command cmdSaveGed, mnuSaveGed;
    Command cmdSelectDirGedOut;
    Command cmdCopyGedIn2GedOut, mnuCopyGedIn2GedOut;
    Command mnuDrawKinship, cmdDrawKinship, cmdCopyTitle2kinship, cmdPrintKinship;
    // Drawings
    Command mnuDrawKinshipOne, mnuDrawKinshipOneSpouse, mnuDrawKinshipAll, mnuDrawKinshipAllSpouse;
    Command cmdSelectDirKinship;
    Command picTreeH, picTreeV;
    Command cmdFont;
    // Parameter sets and favourites
    Command cmdSaveCells, cmdSaveColumns, cmdSavePlace;
    Command cmdGotoFavorite;

    /// Puts the current row of the current table among the favourites of the present tab.
    void mnuAddFavorite_Click();
    /// Saves all settings, as the end of the run does; a failure is reported, and the former ones stay.
    void SaveAllControls();

    /// Searches the kinship of two individuals by their identifiers, whatever is marked; refuses the same
    /// person twice, and two islands, as the command does; false then.
    bool FindPathBetween(TextView sFromId, TextView sToId);

    /// The row and the column of the last hit test in a table, from 0; -1 for none.
    std::int32_t lHitRow = -1, lHitCol = -1;
    /// Goes to the individual or the family that the cell under the last hit names.
    void lvwKinship_DblClick();

    /// Goes to a tab and gives its table the focus.
    void ShowTab(Tab tab);
    /// The last file written is whole; false when a step of an XML file failed, which no box tells.
    bool bWriteComplete = true;
    /// What the last read knows beside the tables.
    modReadGedcom::Reader modReadGedcom;
    /// The last kinship search.
    modKinship::Search modKinship;
    class frmKinshipSelect frmKinshipSelect;
    /// Marks in lvwIn what the marked rows of a table lead to.
    modSelectionIn::Engine modSelectionIn;

  private:
    void BindReading();
    void BindWriting();
    void BindFiles();
    void BindOptionRules();
    void BindKinship();
    void BindDrawing();
    void BindExtract();
    void BindParameterSets();
    void BindFavorites();

    std::vector<modCommon::SavedWindow> SavedWindows();
    void RestoreSettings();
    void ShowFavorites(Tab tab);
    void cboFavorites_GotFocus(std::size_t Index);
    void cboFavorites_LostFocus(std::size_t Index);
    void KeepOneFavorite(ComboBox& combo);
    void cmdGotoFavorite_Click();

    void AttachTips();
    void chkTips_Click();
    void InitPaths();
    void InitCombos();

    void cmdLoad_Click();
    void ReadFile();
    void cboLoad_Click();
    void chkProcFamilies_Click();
    void EnableFamilyCommands(bool enabled);
    void DisableKinshipCommands();

    void JumpTo(Table& target, Tab tab, TextView sKey);
    void RequestKinship(const std::function<void(TextView& step, std::int32_t& row)>& steps);
    void cmdFindPath_Click();
    void RefuseKinship(const KinshipChoices& choices);
    void FindPath(std::int32_t lFrom, std::int32_t lTo, TextView& step);

    void DrawKinshipAll(bool bSpouses, bool bAll);
    void DrawPaths(bool bSpouses, bool bAll);
    bool CheckWidths();
    void cmdCopyTitle2kinship_Click();
    void cmdFont_Click();
    void txtFont_Change();

    void cmdSaveGed_Click();
    void ChangeGedOutExtension();
    void cmdCopyGedIn2GedOut_Click();

    void cmdCalcOutput_Click();
    void cmdSaveSwift_Click();
    void WriteSwiftFile(bool bSelectedOnly);
    bool ModelIsMissing(TextView sFile);
    void optOutExtension_Click(int Index);
    void cboSaveSwift_Click();
    void chkGenerXSL_Click();
    void txtOutExtension_LostFocus(int Index);
    void ChangeSwiftOutExtension();
    void ChangeModelExtension();
    void ChangeKinshipExtension();
    void cmdCopyGedIn2SwiftOut_Click();

    struct FileRole {
        TextView title, filterName;
        Text extension;
    };
    bool GetFile(ComboBox& combo, bool bSave, const FileRole& role);
    bool MayOverwrite(TextView sFile, BoxAnswer& answer);
    void SelectFile(ComboBox& combo, bool bSave, const FileRole& role);
    bool CheckFileCbo(ComboBox& cbo);
    void FileCombo_LostFocus(ComboBox& cbo);
    const Text& OutExtension() const;
    const Text& ModelExtension() const;

    Text sPrevFile_;
    /// The key part of the favourites' combo that has the focus.
    Text sFavoriteKey_;
    std::deque<modCommon::ParameterSet> parameterSets_;
};

}  // namespace swiftroll

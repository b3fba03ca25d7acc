#pragma once

#include <deque>

#include "app/application.h"
#include "drawing/kinship_document.h"
#include "gedcom/reader.h"
#include "kinship/search.h"
#include "selection/engine.h"
#include "shell/frm_find.h"
#include "shell/frm_kinship_select.h"
#include "shell/frm_preview.h"
#include "shell/frm_splash.h"
#include "shell/main_commands.h"
#include "shell/parameter_set.h"
#include "shell/setting_parts.h"
#include "update/frm_updates.h"

namespace swiftroll {

enum class MouseButton { Left, Right };

/// A key as the tables know it.
struct ListKey {
    enum class Code { ContextMenu, F10, Letter, Other };
    Code code = Code::Other;
    char letter = 0;  // in capitals
    bool shift = false, ctrl = false, alt = false;
    /// Whether it opens the context menu.
    bool OpensMenu() const { return code == Code::ContextMenu || (code == Code::F10 && shift) || alt; }
};

/// The main window without a screen: owner of all tables, options and commands. Loading it starts the
/// application. A window, the headless program and the tests are presentations that set its controls and
/// click its commands.
class frmMain : public Application, public MainCommands {
  public:
    explicit frmMain(const Ports& applicationPorts);

    /// Starts the application; `sCommandLine` is the file to put in `cboGedIn`, quotes allowed, or empty.
    /// @throws ProgramEnd after the report of a failure
    void Form_Load(TextView sCommandLine);

    /// Opens the help at a topic, 0 for its beginning; false, and the message line tells it, when there is
    /// none.
    bool LaunchHTMLHelp(int topic);
    /// The user, or the system, closes the window: asks whether to save the settings. False when the user
    /// wants to go on.
    bool Form_QueryUnload();
    /// The windows beside the main one.
    std::vector<Window*> SecondaryWindows() {
        return {&frmSplash, &frmUpdates, &frmFind, &frmPreview, &frmKinshipSelect};
    }
    /// Puts the current row of the current table among the favourites of the present tab.
    void mnuAddFavorite_Click();
    /// Saves all settings, as the end of the run does; a failure is reported, and the former ones stay.
    void SaveAllControls();

    /// Searches the kinship of two individuals by their identifiers, whatever is marked; refuses the same
    /// person twice, and two islands, as the command does; false then.
    bool FindPathBetween(TextView sFromId, TextView sToId);

    // The lists
    /// A table has taken the focus: the list commands work on it from now on.
    void TableGotFocus(Table& table);
    /// Tells the row and the column that a button of the mouse, or a key of the menu, was pressed on, from 0;
    /// -1 for none.
    void HitTest(std::int32_t lRow, std::int32_t lCol);
    /// What the last hit test told, or the row that `mnuNextSelected` went to since.
    std::int32_t lHitRow = -1;
    ColumnId lHitCol;

    /// The context menu of the tables.
    Menu mnuContext;
    /// The button was released over the active table: the right one opens the context menu.
    void lvw_MouseUp(MouseButton button);
    /// Fits the menu to the cell of the last hit test.
    void ModifyContextMenu();
    /// Shows, or shows no more, which cells of the column the commands of the menu would work on. With them
    /// the clicked row becomes `Selected`, until the end if a command changed the marks meanwhile.
    void MarkSubItems(ColumnId iCol, bool bMark);
    /// A key that was pressed in the active table. Its commands work on the cell of the last hit test, which
    /// is made anew for a key that opens the menu, and for no other.
    void lvw_KeyDown(const ListKey& key);
    /// Goes to the individual or the family that the cell of the last hit test names; in lvwOut, marks the
    /// individuals of the marked groups.
    void lvw_DblClick(Table& table);
    /// Sorts by the column or, with Shift, switches it on or off for export.
    void lvw_ColumnClick(Table& table, Column& column);
    /// The marked rows of the active table as a text to drag.
    Text DragText();

    /// Brings a tab to the front and gives the focus to what it is for.
    void ShowTab(Tab tab) override;
    /// Gives the focus to what the present tab is for.
    void SSTab1_GotFocus();
    /// For the presentation, which moves its own focus after.
    std::function<void()> OnTabFocus;
    /// Puts the marked rows of the tab first, and tells how many there are.
    void SSTab1_DblClick();
    /// Opens the context menu without a cell.
    void SSTab1_RightClick();
    /// Tells how many rows of the active table are marked.
    void StatusBar1_DblClick();
    /// Puts the marked rows of the active table before the others.
    void PlaceSelected();

    /// The last file written is whole; false when a step of an XML file failed, which no box tells.
    bool bWriteComplete = true;
    /// The stylesheet that is written beside an output under the present options; empty for none.
    Text StylesheetOf(TextView sOutFile) const;
    /// What the last read knows beside the tables.
    modReadGedcom::Reader modReadGedcom;
    /// The last kinship search.
    modKinship::Search modKinship;
    class frmKinshipSelect frmKinshipSelect;
    class frmSplash frmSplash;
    class frmPreview frmPreview;
    class frmUpdates frmUpdates;
    /// Marks in lvwIn what the marked rows of a table lead to.
    modSelectionIn::Engine modSelectionIn;
    class frmFind frmFind;

  private:
    void BindReading();
    void BindWriting();
    void BindFiles();
    void BindOptionRules();
    void BindKinship();
    void BindDrawing();
    void BindExtract();
    void BindWindow();
    void BindReport();

    void mnuCheckUpdate_Click();
    void mnuSaveParams_Click();
    void SendReport();
    bool ExportSettings(TextView sRegFile);
    /// `step` follows how far the mail came, for the report of a failure.
    void SendMail(TextView sRegFile, TextView sLogFile, TextView& step);

    void OpenFile(TextView sFile);
    void mnuContext2_Click();
    void cmdExit_Click();
    void BindParameterSets();
    void BindFavorites();

    std::vector<modCommon::SavedWindow> SavedWindows();
    void RestoreSettings();
    /// Puts the notice about the store back before what the start wrote over it.
    void RepeatNotice();
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

    void BindLists();
    void BindContextMenu();
    void OnActiveTable(const char* sProc, const std::function<void(Table&)>& command,
                       TextView arguments = {});
    bool TabHasTable() const;
    void OfferPrinting();
    void DeselectAll(Table& table);
    void mnuNextSelected_Click();
    void mnuDeselectCurrent_Click();
    void mnuDeselectAll_Click();
    void mnuSelectAll_Click();
    void mnuInvertSelection_Click();
    void mnuColSelUnsel(TextView sPrefix);
    void mnuResetCol_Click();
    void mnuFind_Click();
    void mnuCopy_Click();
    std::optional<Text> MarkedLines();
    void JumpTo(Table& target, TextView sKey);

    /// A kinship request under way: its step and the row that it has come to, for the trail, and the wait
    /// cursor once it searches.
    struct KinshipRequest {
        TextView step;
        std::int32_t row = 0;
        std::optional<ScopedFlag> wait = {};
    };
    void RequestKinship(const std::function<void(KinshipRequest& request)>& steps);
    void cmdFindPath_Click();
    void RefuseKinship(const KinshipChoices& choices);
    void FindPath(std::int32_t lFrom, std::int32_t lTo, KinshipRequest& request);

    void DrawKinshipAll(bool bSpouses, bool bHtml, bool bAll);
    void DrawPaths(bool bSpouses, modKinshipOutput::KinshipDocument& document, bool bAll);
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
    /// The extension that the field with the focus began with, or was last settled at.
    Text sPrevExtension_;
    /// The key part of the favourites' combo that has the focus.
    Text sFavoriteKey_;
    std::deque<modCommon::ParameterSet> parameterSets_;
    /// What the windows held after the restore, or the last save: what differs from it is new.
    modCommon::SettingParts shownSettings_;
    /// The row that was clicked for the context menu, and whether it was `Selected` before.
    struct ClickedRow {
        Table* table = nullptr;
        std::int32_t row = -1;
        bool bClickedRowWasSelected = false;
    };
    ClickedRow clicked_;
};

}  // namespace swiftroll

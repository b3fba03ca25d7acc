#pragma once

#include "gedcom/reader.h"
#include "kinship/search.h"
#include "selection/engine.h"
#include "shell/context_menu.h"
#include "shell/favorites.h"
#include "shell/file_combos.h"
#include "shell/frm_check.h"
#include "shell/frm_find.h"
#include "shell/frm_kinship_select.h"
#include "shell/frm_preview.h"
#include "shell/frm_relatives.h"
#include "shell/frm_splash.h"
#include "shell/gedcom_extract.h"
#include "shell/grouping.h"
#include "shell/kinship_pair.h"
#include "shell/kinship_request.h"
#include "shell/lists.h"
#include "shell/parameter_sets.h"
#include "shell/path_choice.h"
#include "shell/path_drawing.h"
#include "shell/person_panel.h"
#include "shell/problem_report.h"
#include "shell/reading.h"
#include "shell/saved_settings.h"
#include "shell/tabs.h"
#include "shell/type_ahead.h"
#include "shell/writing.h"
#include "update/frm_updates.h"

namespace swiftroll {

/// The main window without a screen: owner of all tables, options and commands, with a class for each concern
/// that the commands belong to. Loading it starts the application. A window, the headless program and the
/// tests are presentations that set its controls and click its commands.
class frmMain : public Application, public MainCommands {
  public:
    explicit frmMain(const Ports& applicationPorts);

    /// Starts the application; `sCommandLine` is the file to put in `cboGedIn`, quotes allowed, or empty.
    /// @throws ProgramEnd after the report of a failure
    void Form_Load(TextView sCommandLine);
    /// The user, or the system, closes the window: asks whether to save the settings. False when the user
    /// wants to go on.
    bool Form_QueryUnload();
    /// Takes a file to be read, as when the user types its name and goes on to `cmdLoad`.
    void TakeGedIn(TextView sFile);
    /// Lets the first read order the columns of the Relevé-vif for a user who never did.
    void PlaceGroupsOfNewcomer() { reading_.PlaceGroupsOfNewcomer(); }
    /// Opens the help at a topic, 0 for its beginning; false, and the message line tells it, when there is
    /// none.
    bool LaunchHTMLHelp(int topic);

    /// Brings a tab to the front and gives the focus to what it is for.
    void ShowTab(Tab tab) override { tabs.ShowTab(tab); }
    /// The windows beside the main one.
    std::vector<Window*> SecondaryWindows() {
        return {&about, &updates, &findDialog, &checkDialog, &preview, &kinshipDialog, &relatives};
    }

    /// What the last read knows beside the tables.
    modReadGedcom::Reader reader;
    /// The last kinship search.
    modKinship::Search kinshipSearch;
    /// Marks in lvwIn what the marked rows of a table lead to.
    modSelectionIn::Engine selection;

    frmKinshipSelect kinshipDialog;
    frmSplash about;
    frmPreview preview;
    frmUpdates updates;
    frmFind findDialog;
    frmCheck checkDialog;
    frmRelatives relatives;
    PersonPanel personPanel;

    SavedSettings savedSettings;

    // The concerns. Each stands behind those that it works with.
    FileCombos fileCombos;
    PathDrawing drawing;
    Favorites favorites;
    Tabs tabs;
    ListFilters filters;
    MarkHistory marks;
    Lists lists;
    ListColumns columns;
    TypeAhead typeAhead;
    ContextMenu contextMenu;
    KinshipRequest kinshipRequest;
    PathChoice pathChoice;
    KinshipPair kinshipPair;
    Writing writing;
    Grouping grouping;

  private:
    void InitPaths();
    void InitCombos();
    void mnuContext2_Click();
    void cmdExit_Click();

    // What only commands lead to.
    Reading reading_;
    GedcomExtract extract_;
    ProblemReport report_;
    ParameterSets parameterSets_;
};

}  // namespace swiftroll

#pragma once

#include "shell/list_commands.h"

namespace swiftroll {

// The commands of the main window, a struct a concern. Each stands in the menu, beside the options that it
// works with, or both; the commands of one name without its beginning do the same.

struct ReadingCommands {
    explicit ReadingCommands(Window& window);

    Command cmdLoad, mnuReadGedCom;
    Command cmdRecalcIn;
    Command cmdCalcOutput, mnuRecalcOut;
};

struct CheckCommands {
    explicit CheckCommands(Window& window);

    Command mnuCheckFile;
};

struct WritingCommands {
    explicit WritingCommands(Window& window);

    Command cmdSaveSwift, mnuSaveSwift;
    Command cmdCopyGedIn2SwiftOut, mnuCopyGedIn2SwiftOut;
};

struct FileCommands {
    explicit FileCommands(Window& window);

    Command cmdSelectDirGedIn, cmdSelectDirSwiftOut, cmdSelectDirModel;
};

/// They need the families of a file.
struct KinshipCommands {
    explicit KinshipCommands(Window& window);

    Command cmdFindPath, mnuFindPath;
    Command mnuAllKin;
    /// The pair of the slots: its search and its turn; and what puts the person of a cell there.
    Command cmdFindPair, cmdSwapPair, mnuKinFrom, mnuKinTo;
};

struct ExtractCommands {
    explicit ExtractCommands(Window& window);

    Command cmdSaveGed, mnuSaveGed;
    Command cmdSelectDirGedOut;
    Command cmdCopyGedIn2GedOut, mnuCopyGedIn2GedOut;
};

struct DrawingCommands {
    explicit DrawingCommands(Window& window);

    Command mnuDrawKinship, cmdDrawKinship, cmdCopyTitle2kinship, cmdPrintKinship;
    Command mnuDrawKinshipOne, mnuDrawKinshipOneSpouse, mnuDrawKinshipAll, mnuDrawKinshipAllSpouse;
    Command cmdSelectDirKinship;
    Command picTreeH, picTreeV;
    Command cmdFont;
};

/// Opening files with the programs of the desktop.
struct DisplayCommands {
    explicit DisplayCommands(Window& window);

    Command cmdDisplayGedIn, cmdDisplayGedOut, cmdDisplaySwiftOut, cmdDisplayModel, cmdDisplayKinship;
};

/// The menu bar, help and the end.
struct WindowCommands {
    explicit WindowCommands(Window& window);

    Command mnuFile, mnuContext1, mnuContext2, mnuHelp;
    Command cmdHelp, mnuDoc, mnuAbout, cmdExit, mnuExit;
};

/// The work that runs.
struct WorkCommands {
    explicit WorkCommands(Window& window);

    /// Does what the Escape key does.
    Command cmdStop;
};

/// Updates and the problem report.
struct ReportCommands {
    explicit ReportCommands(Window& window);

    Command mnuCheckUpdate, PicturepicKeepUpdated, mnuSaveParams;
};

/// Saving named parameter sets.
struct SetCommands {
    explicit SetCommands(Window& window);

    Command cmdSaveCells, cmdSaveColumns, cmdSavePlace;
};

struct FavoriteCommands {
    explicit FavoriteCommands(Window& window);

    Command cmdGotoFavorite;
};

/// All of them, in the order in which the window holds them.
struct MainCommands : ListCommands,
                      ReadingCommands,
                      CheckCommands,
                      WritingCommands,
                      FileCommands,
                      KinshipCommands,
                      ExtractCommands,
                      DrawingCommands,
                      DisplayCommands,
                      WindowCommands,
                      WorkCommands,
                      ReportCommands,
                      SetCommands,
                      FavoriteCommands {
    explicit MainCommands(Window& window);

    /// The menu bar of the main window.
    std::vector<Menu> MenuBar();
    /// The context menu of the tables, and the one of the header of a column.
    Menu TableMenu();
    Menu HeaderMenu();

  private:
    std::vector<Menu> ColumnEntries();
};

}  // namespace swiftroll

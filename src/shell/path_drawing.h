#pragma once

#include "drawing/kinship_document.h"
#include "kinship/search.h"
#include "shell/file_combos.h"

namespace swiftroll {

/// The commands that draw kinship paths, their options and the name of their file.
class PathDrawing {
  public:
    PathDrawing(Application& app, DrawingCommands& commands, const modKinship::Search& search,
                FileCombos& fileCombos);

    /// There are no paths to draw any more; what the message bar says of them goes.
    void DisableKinshipCommands();
    /// A search has come to its end.
    void EnableKinshipCommands();
    /// What a search has found can be printed once it is at an end and its table is the current one.
    void OfferPrinting();
    /// Shows the font in its own label; a text that is no font changes nothing.
    void txtFont_Change();

  private:
    void DrawKinshipAll(bool bSpouses, bool bHtml, bool bAll);
    /// Which paths are drawn, and whether into a file.
    struct PathChoice {
        bool bHtml, bAll;
    };
    void DrawPaths(bool bSpouses, modKinshipOutput::KinshipDocument& document, const PathChoice& choice);
    std::vector<std::int32_t> RowsToDraw(bool bAll);
    bool CheckWidths();
    void cmdCopyTitle2kinship_Click();
    void cmdFont_Click();

    Application& app_;
    DrawingCommands& commands_;
    const modKinship::Search& search_;
    FileCombos& fileCombos_;
};

}  // namespace swiftroll

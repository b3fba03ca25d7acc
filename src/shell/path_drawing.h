#pragma once

#include "drawing/kinship_document.h"
#include "drawing_files/drawing_file.h"
#include "kinship/search.h"
#include "shell/file_combos.h"
#include "shell/frm_preview.h"

namespace swiftroll {

/// The commands that draw kinship paths, their options and the name of their file.
class PathDrawing {
  public:
    PathDrawing(Application& app, DrawingCommands& commands, const modKinship::Search& search,
                FileCombos& fileCombos, const frmPreview& preview);

    /// So many drawings are made at most, those of the first paths; 0 for all.
    std::int64_t lMostDrawings = 0;

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
    void DrawPaths(bool bSpouses, bool bHtml, bool bAll);
    std::vector<std::int32_t> RowsToDraw(bool bAll);
    bool MayWriteDrawings(const std::vector<std::int32_t>& rows, bool bSpouses);
    bool DrawRows(Trail& trail, const std::vector<std::int32_t>& rows, bool bSpouses,
                  modKinshipOutput::KinshipDocument& document);
    std::unique_ptr<modKinshipOutput::KinshipDocument> NewDrawingFile(
        const modKinshipOutput::DrawingSource& source, Files& files) const;
    /// The names of the pair, without those of the living.
    Text ShownPair(const modPrivacy::Living& living) const;
    Text ShownTitle(const modPrivacy::Living& living) const;
    bool CheckWidths();
    void cmdCopyTitle2kinship_Click();
    void cmdFont_Click();

    Application& app_;
    DrawingCommands& commands_;
    const modKinship::Search& search_;
    FileCombos& fileCombos_;
    const frmPreview& preview_;
};

}  // namespace swiftroll

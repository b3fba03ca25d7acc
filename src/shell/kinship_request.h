#pragma once

#include "kinship/search.h"
#include "shell/frm_kinship_select.h"
#include "shell/path_drawing.h"

namespace swiftroll {

/// The commands that search the kinship of two individuals.
class KinshipRequest {
  public:
    /// `drawing` is offered what a search finds.
    KinshipRequest(Application& app, KinshipCommands& commands, frmKinshipSelect& dialog,
                   modKinship::Search& search, PathDrawing& drawing);

    /// Searches the kinship of two individuals by their identifiers, whatever is marked; refuses the same
    /// person twice, and two islands, as the command does; false then.
    bool FindPathBetween(TextView sFromId, TextView sToId);

  private:
    /// A request under way: its step and the row that it has come to, for the trail, and the wait cursor once
    /// it searches.
    struct Progress {
        TextView step;
        std::int32_t row = 0;
        std::optional<ScopedFlag> wait = {};
    };
    void RequestKinship(const std::function<void(Progress& progress)>& steps);
    void cmdFindPath_Click();
    void RefuseKinship(const KinshipChoices& choices);
    void FindPath(std::int32_t lFrom, std::int32_t lTo, Progress& progress);
    void Search(std::int32_t lFrom, std::int32_t lTo);
    void TellTotal();
    void TellEnd(std::uint32_t clearingsBefore);
    void TellNearest();

    Application& app_;
    frmKinshipSelect& dialog_;
    modKinship::Search& search_;
    PathDrawing& drawing_;
};

}  // namespace swiftroll

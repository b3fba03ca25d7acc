#pragma once

#include "shell/kinship_request.h"
#include "shell/lists.h"

namespace swiftroll {

/// The slots "De" and "Vers": two people who are named, dropped or taken from a list, and the search between
/// them. It is a window of its own, since what it holds means something for one file alone and is not saved.
class KinshipPair : public Window {
  public:
    KinshipPair(Application& app, KinshipCommands& commands, const modSelectionIn::Engine& selection,
                Lists& lists, KinshipRequest& request);

    TextBox txtFrom{*this, {"txtFrom", "De"}, ""};
    TextBox txtTo{*this, {"txtTo", "Vers"}, ""};

    /// A person to choose, as the slots show it: "Dupont, Jean (1850-1910) @I5@".
    struct Suggestion {
        Text sId, label;
    };
    /// The first people, in the order of lvwIn, of whom each word that was typed begins a name, a year or the
    /// identifier, whatever its case and accents. Nobody for a text without words.
    std::vector<Suggestion> Suggest(TextView sTyped) const;
    /// Puts a person of lvwIn into a slot; an unknown identifier changes nothing.
    void Take(TextBox& slot, TextView sId);

  private:
    void TakeClicked(TextBox& slot);
    std::optional<Text> PersonIn(TextBox& slot);
    void cmdFindPair_Click();
    void cmdSwapPair_Click();

    Application& app_;
    const modSelectionIn::Engine& selection_;
    Lists& lists_;
    KinshipRequest& request_;
};

}  // namespace swiftroll

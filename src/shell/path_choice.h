#pragma once

#include "kinship/search.h"

namespace swiftroll {

/// Follows the row that the user chooses among the summaries of the paths: the path itself comes into view
/// and becomes the current one, and the message tells what each of the two individuals is to the other.
class PathChoice {
  public:
    PathChoice(Application& app, modKinship::Search& search);

  private:
    void Show(Row path);
    void ShowLines(const Row& path);

    Application& app_;
    modKinship::Search& search_;
};

}  // namespace swiftroll

#pragma once

#include <deque>

#include "shell/main_commands.h"
#include "shell/settings/parameter_set.h"

namespace swiftroll {

/// The sets of options that the user names: of the boxes of drawings, of the columns of the tables, and of
/// places.
class ParameterSets {
  public:
    ParameterSets(Application& app, SetCommands& commands);

  private:
    Application& app_;
    std::deque<modCommon::ParameterSet> sets_;
};

}  // namespace swiftroll

#pragma once

#include "presenter.h"
#include "slim_bar.h"

namespace swiftroll::ui {

/// Says that the list of "Sortie" is older than what it is made of, with the button that computes it.
class StaleListBar : public SlimBar {
  public:
    explicit StaleListBar(Presenter& presenter);
};

}  // namespace swiftroll::ui

#pragma once

#include "app/ports.h"

namespace swiftroll {

/// A panel of the status bar.
class Panel {
  public:
    explicit Panel(StatusObserver& observer) : observer_(observer) {}
    const Text& Get() const { return text_; }
    void Set(TextView text) {
        text_ = text;
        observer_.StatusChanged();
    }

  private:
    StatusObserver& observer_;
    Text text_;
};

/// `ProgressBar1`: a percentage, or that something goes on whose end is not known.
class ProgressBar {
  public:
    explicit ProgressBar(StatusObserver& observer) : observer_(observer) {}
    double Value() const { return value_; }
    /// `done` of `total` in percent, held between 0 and 100; a total of 0 gives 0.
    void Show(double done, double total);
    void Set(double percent);
    /// Whether something goes on of which no percentage is known.
    bool IsBusy() const { return isBusy_; }
    void SetBusy(bool isBusy);

  private:
    StatusObserver& observer_;
    double value_ = 0;
    bool isBusy_ = false;
};

/// The four panels of `StatusBar1` and the progress bar.
struct StatusBar {
    explicit StatusBar(StatusObserver& observer)
        : pnlLines(observer),
          pnlIndividuals(observer),
          pnlFamilies(observer),
          pnlMessage(observer),
          ProgressBar1(observer) {}
    Panel pnlLines;
    Panel pnlIndividuals;
    Panel pnlFamilies;
    /// The message line: every operation tells here how far it is.
    Panel pnlMessage;
    ProgressBar ProgressBar1;
};

}  // namespace swiftroll

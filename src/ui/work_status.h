#pragma once

#include <QProgressBar>
#include <QPushButton>

#include "presenter.h"

namespace swiftroll::ui {

/// The right end of the status bar: how far the work is that runs, and where it can be stopped, the button
/// for that. Nothing is there while nothing runs.
class WorkStatus : public QWidget {
  public:
    explicit WorkStatus(Presenter& presenter);

    /// Follows the core; cheap.
    void ShowWork();

  private:
    Presenter& presenter_;
    QProgressBar* progress_;
    QPushButton* stop_;
};

}  // namespace swiftroll::ui

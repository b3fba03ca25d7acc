#pragma once

#include <QLabel>
#include <QStatusBar>
#include <array>

#include "work_status.h"

namespace swiftroll::ui {

/// The status bar: the counters of the read, the message, and the progress of what runs at the right.
class StatusLine : public QStatusBar {
  public:
    explicit StatusLine(Presenter& presenter);

    /// Brings panels and progress up to date.
    void Refresh();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QLabel& Message() { return *panels_.back(); }

    Presenter& presenter_;
    std::array<QLabel*, 4> panels_{};
    WorkStatus* work_;
};

}  // namespace swiftroll::ui

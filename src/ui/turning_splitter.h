#pragma once

#include <QSplitter>

namespace swiftroll::ui {

/// A splitter whose widgets stand beside each other where there is room, and else below each other.
class TurningSplitter : public QSplitter {
  public:
    TurningSplitter();

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace swiftroll::ui

#pragma once

#include <QFrame>

namespace swiftroll::ui {

/// A slim bar in the tint of the accent colour, with a strip of that colour at its left end, for what is
/// worth telling but must not stop the user.
class SlimBar : public QFrame {
  public:
    /// Room for the strip and around what stands in the bar.
    static QMargins Room();

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace swiftroll::ui

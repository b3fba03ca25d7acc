#pragma once

#include <QSplitter>

#include "presenter.h"

namespace swiftroll::ui {

/// A splitter of two widgets that stand beside each other where there is room, and else below each other. The
/// second one takes so many thousandths of it as a text tells, which follows the user's hand.
class TurningSplitter : public QSplitter {
  public:
    TurningSplitter(Presenter& presenter, TextBox& share);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void FollowShare();
    void NoteShare();

    Presenter& presenter_;
    TextBox& share_;
    Text followed_;
};

}  // namespace swiftroll::ui

#pragma once

#include <QDialog>

#include "presenter.h"

namespace swiftroll::ui {

/// A dialog that shows a window of controls: on the screen while the window is visible, and in front each
/// time that the window is shown. Closing it, or Escape, only hides the window.
class SecondaryDialog : public QDialog {
  public:
    SecondaryDialog(Presenter& presenter, Window& window, QWidget* owner);
    /// What closing means, instead of just hiding the window.
    std::function<void()> onClose;
    /// Topic of the manual that belongs to the dialog.
    int helpTopic = 0;
    /// Called when the dialog comes to the front, and when its window is shown again.
    std::function<void()> onActivate;

    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Refresh();
    Presenter& presenter_;
    Window& window_;
    bool isDueInFront_ = false;  // the window was shown since the last refresh
};

}  // namespace swiftroll::ui

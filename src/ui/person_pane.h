#pragma once

#include <QSplitter>

#include "person_view.h"

namespace swiftroll::ui {

/// Puts the panel of the current person beside a list. It folds into a narrow button where the window has no
/// room for it, and when the user wants so.
class PersonPane : public QObject {
  public:
    /// `sides` holds the list already, and owns the pane.
    PersonPane(Presenter& presenter, QSplitter& sides);

    PersonView& View() const { return *view_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QWidget* BuildHandle();
    void AddKey(Command& command);
    void Refresh();

    Presenter& presenter_;
    Binder binder_;
    QSplitter& sides_;
    PersonView* view_;
    QWidget* handle_;  // what is left of the panel when it is folded
};

}  // namespace swiftroll::ui

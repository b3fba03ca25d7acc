#pragma once

#include "presenter.h"
#include "table_view.h"

namespace swiftroll::ui {

/// Tells assistive programs which row of a list is the current one, and how its marks change, while the list
/// has the focus. Keeps the keys with Alt for the list, whose menu they open, also those that mark a letter
/// somewhere else in the window.
class RowTeller : public QObject {
  public:
    /// The view owns it.
    RowTeller(Presenter& presenter, TableView& view);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void Tell(bool isNew);

    TableView& view_;
    int row_ = -1;
    bool isChecked_ = false, isSelected_ = false;
};

}  // namespace swiftroll::ui

#pragma once

#include "table_view.h"

namespace swiftroll::ui {

/// The thick bar behind "Nbre" in the list of "Sortie", over its header and its rows, and the grey headers
/// behind it: what stands there is not grouped by.
class GroupBorder : public QWidget {
  public:
    GroupBorder(Presenter& presenter, TableView& view);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void Follow();

    TableView& view_;
};

}  // namespace swiftroll::ui

#pragma once

#include <QLabel>
#include <QLineEdit>

#include "binder.h"

namespace swiftroll::ui {

/// The strip above the lists of a page: the filter, how many rows there are and how many are marked, and what
/// can be done with the marks. Of several lists it is about the one that was used last.
class ListStrip : public QWidget {
  public:
    /// The first one of the tables is the one that the page is for.
    ListStrip(Presenter& presenter, Binder& binder, const std::vector<Table*>& tables);

    QLineEdit& Filter() const { return *filter_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void BuildFilter();
    void Refresh();
    QString CountText(RowFilter& filter) const;
    void GoToList();

    Presenter& presenter_;
    std::vector<Table*> tables_;
    Table* table_;
    QLineEdit* filter_;
    QLabel* count_;
    QWidget* checkShown_;
};

}  // namespace swiftroll::ui

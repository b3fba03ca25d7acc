#pragma once

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStringList>
#include <QVBoxLayout>

#include "table_view.h"

namespace swiftroll::ui {

/// What stands in the list "Entrée" while it is empty: a button that asks for a file, a place to drop one on,
/// and the files that were read last.
class StartView : public QScrollArea {
  public:
    /// Lies over the rows of `list`.
    StartView(Presenter& presenter, TableView& list);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QWidget* BuildDropZone();
    QWidget* BuildRecent();
    void Refresh();
    void ShowRecent(const QStringList& files);
    void ChooseFile();
    void ReadRecent(int item);

    Presenter& presenter_;
    TableView& list_;
    QPushButton* read_;
    QPushButton* choose_;
    QWidget* recent_;
    QVBoxLayout* links_;
    QStringList shownFiles_;
};

}  // namespace swiftroll::ui

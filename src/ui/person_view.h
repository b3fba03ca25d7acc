#pragma once

#include <QPlainTextEdit>
#include <QScrollArea>
#include <QToolButton>

#include "binder.h"
#include "person_page.h"

namespace swiftroll::ui {

/// The panel of the current person: the card with its links, and on demand the lines of the record. It is
/// made anew when another row becomes the current one, and holds nothing of the tables.
class PersonView : public QWidget {
  public:
    PersonView(Presenter& presenter, Binder& binder);

    QSize sizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* BuildHead(Binder& binder);
    void Refresh();
    void ShowCard();
    void OrderTabs();
    void ShowRecord();

    Presenter& presenter_;
    QScrollArea* area_;
    PersonPage* page_ = nullptr;
    QToolButton* fold_ = nullptr;
    QToolButton* recordButton_;
    QPlainTextEdit* record_;
    std::optional<PersonPanel::State> shown_;
    bool showsRecord_ = false;
};

}  // namespace swiftroll::ui

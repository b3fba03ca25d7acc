#pragma once

#include <QLineEdit>
#include <QStringListModel>

#include "presenter.h"

namespace swiftroll::ui {

/// How the identifier of a person travels in a drag that begins in a list.
inline constexpr const char* kPersonFormat = "application/x-swiftroll-person";

/// A slot for a person: proposes people while the user types, and takes a row of a list that is dropped
/// there.
class PersonEdit : public QLineEdit {
  public:
    PersonEdit(Presenter& presenter, TextBox& slot);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void Propose(const QString& typed);

    Presenter& presenter_;
    TextBox& slot_;
    QStringListModel labels_;
    std::vector<KinshipPair::Suggestion> people_;  // those of the labels
};

/// The line of both slots, with their buttons.
QWidget* BuildKinshipSlots(Presenter& presenter);

}  // namespace swiftroll::ui

#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <cstdint>
#include <vector>

#include "presenter.h"

namespace swiftroll::ui {

/// The message bar of the core as a slim bar, which is there only while it has a notice. It never takes the
/// focus by itself, and the Escape key is not its own.
class MessageBarWidget : public QFrame {
  public:
    explicit MessageBarWidget(Presenter& presenter);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Refresh();
    void ShowNotice(const Notice& notice);
    QPushButton* NewNoticeButton();

    Presenter& presenter_;
    QLabel* text_;
    QWidget* buttonRow_;
    std::vector<QPushButton*> buttons_;  // as many as a notice ever had; those of the present one are seen
    std::uint64_t changes_ = 0;
};

}  // namespace swiftroll::ui

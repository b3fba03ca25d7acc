#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <cstdint>
#include <vector>

#include "presenter.h"
#include "slim_bar.h"

namespace swiftroll::ui {

/// One notice of the message bar of the core as a slim bar, which is there only while there is a notice. It
/// never takes the focus by itself, and the Escape key is not its own.
class MessageBarWidget : public SlimBar {
  public:
    /// Which notice it shows, and what its buttons and its cross do.
    struct Source {
        QString name;
        std::function<const Notice*(const MessageBar&)> notice;
        std::function<void(MessageBar&, std::size_t button)> press;
        std::function<void(MessageBar&)> close;
        /// Whether the notice goes by itself.
        std::function<bool(const MessageBar&)> isPassing;
    };
    MessageBarWidget(Presenter& presenter, Source source);

  private:
    void Refresh();
    void ShowNotice(const Notice& notice);
    QPushButton* NewNoticeButton();
    void Close();
    void OnTimeOver();

    Presenter& presenter_;
    Source source_;
    QLabel* text_;
    QWidget* buttonRow_;
    std::vector<QPushButton*> buttons_;  // as many as a notice ever had; those of the present one are seen
    QTimer time_;
    std::uint64_t changes_ = 0;
};

/// The bar of the notice that is seen.
MessageBarWidget* NewNoticeBar(Presenter& presenter);
/// The bar of what the last work has made.
MessageBarWidget* NewWorkNoticeBar(Presenter& presenter);

}  // namespace swiftroll::ui

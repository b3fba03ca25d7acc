#include "secondary_dialog.h"

#include <QKeyEvent>
#include <utility>

#include "qt_text.h"
#include "window_place.h"

namespace swiftroll::ui {

SecondaryDialog::SecondaryDialog(Presenter& presenter, Window& window, QWidget* owner)
    : QDialog(owner), presenter_(presenter), window_(window) {
    presenter_.OnRefresh([this] { Refresh(); });
    KeepPlace(*this, window_, false);
    window_.OnShow = [this] { isDueInFront_ = true; };
}

void SecondaryDialog::Refresh() {
    const QString title = ToQt(window_.Caption);
    if (windowTitle() != title) setWindowTitle(title);
    if (isModal()) return;
    const bool isDueInFront = std::exchange(isDueInFront_, false);
    const bool wasVisible = isVisible();
    if (wasVisible == window_.Visible() && !(wasVisible && isDueInFront)) return;
    if (!window_.Visible()) return hide();
    if (!wasVisible) {
        RestorePlace(*this, window_);
        show();
    }
    raise();
    activateWindow();
    // It may be the active one already, or the desktop may not let it become that.
    if (wasVisible && onActivate) presenter_.ActLater([this] { onActivate(); });
}

void SecondaryDialog::reject() {
    presenter_.Act([this] {
        if (onClose) return onClose();
        window_.Hide();
    });
}

void SecondaryDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        presenter_.Act([this] { presenter_.Main().LaunchHTMLHelp(helpTopic); });
    } else {
        QDialog::keyPressEvent(event);
    }
}

void SecondaryDialog::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && onActivate) {
        presenter_.ActLater([this] { onActivate(); });
    }
}

}  // namespace swiftroll::ui

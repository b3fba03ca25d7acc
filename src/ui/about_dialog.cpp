#include <QMouseEvent>
#include <QVBoxLayout>

#include "dialogs.h"
#include "help_topics.h"
#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// The picture and texts of the program. A click on an address opens it; any other click, or a key but F1,
/// closes the window.
class AboutDialog : public SecondaryDialog {
  public:
    AboutDialog(Presenter& presenter, frmSplash& form, QWidget* owner)
        : SecondaryDialog(presenter, form, owner) {
        setObjectName(QStringLiteral("frmSplash"));
        helpTopic = Topic::Contents;
        setWindowFlag(Qt::WindowStaysOnTopHint);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(32, 24, 32, 24);
        column->setSpacing(kSpacing);
        auto* picture = new QLabel;
        picture->setPixmap(QIcon(QStringLiteral(":/icons/swiftroll.svg")).pixmap(96, 96));
        column->addWidget(picture, 0, Qt::AlignHCenter);
        Binder binder(presenter, form);
        for (Label* text : {&form.lblTitle, &form.lblVersion, &form.lblDescription}) {
            auto* label = new QLabel;
            binder.Bind(*label, *text);
            column->addWidget(label, 0, Qt::AlignHCenter);
            if (text != &form.lblTitle) continue;
            QFont large = label->font();
            large.setPointSizeF(large.pointSizeF() * 1.8);
            large.setBold(true);
            label->setFont(large);
        }
        for (Command* address : {&form.lblWeb, &form.lblMail}) AddAddress(*column, binder, *address);
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }

  protected:
    void mousePressEvent(QMouseEvent*) override { reject(); }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_F1) return SecondaryDialog::keyPressEvent(event);
        reject();
    }

  private:
    void AddAddress(QVBoxLayout& column, Binder& binder, Command& address) {
        auto* button = new QToolButton;
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);  // all keys belong to the window
        button->setCursor(Qt::PointingHandCursor);
        button->setStyleSheet(
            QStringLiteral("QToolButton { color: %1; border: none; text-decoration: underline; }"
                           "QToolButton:pressed { color: red; }")
                .arg(palette().color(QPalette::Base).lightness() < 128 ? QStringLiteral("#6aa5ff")
                                                                       : QStringLiteral("blue")));
        binder.Bind(*button, address);
        column.addWidget(button, 0, Qt::AlignHCenter);
    }
};

}  // namespace

SecondaryDialog* BuildAboutDialog(Presenter& presenter, QWidget* owner) {
    return new AboutDialog(presenter, presenter.Main().about, owner);
}

}  // namespace swiftroll::ui

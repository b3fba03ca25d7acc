#include "status_line.h"

#include <QEvent>
#include <algorithm>

#include "qt_text.h"

namespace swiftroll::ui {

StatusLine::StatusLine(Presenter& presenter) : presenter_(presenter), work_(new WorkStatus(presenter)) {
    const char* const names[] = {"Lignes lues", "Individus", "Familles", "Message"};
    setObjectName(QStringLiteral("StatusBar1"));
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel;
        panels_[i]->setAccessibleName(QString::fromUtf8(names[i]));
        panels_[i]->setTextFormat(Qt::PlainText);
        const bool isMessage = i + 1 == panels_.size();
        // A long message is cut, it does not widen the window.
        if (isMessage) panels_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        addWidget(panels_[i], isMessage ? 1 : 0);
        panels_[i]->setVisible(isMessage);
    }
    Message().setObjectName(QStringLiteral("pnlMessage"));
    Message().installEventFilter(this);
    addPermanentWidget(work_);
}

bool StatusLine::eventFilter(QObject* object, QEvent* event) {
    if (object == &Message() && event->type() == QEvent::MouseButtonDblClick) {
        presenter_.Act([this] { presenter_.Main().lists.StatusBar1_DblClick(); });
        return true;
    }
    return QStatusBar::eventFilter(object, event);
}

void StatusLine::Refresh() {
    const frmMain& main = presenter_.Main();
    const Panel* const panels[] = {&main.pnlLines, &main.pnlIndividuals, &main.pnlFamilies, &main.pnlMessage};
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const QString text = ToQt(panels[i]->Get());
        if (panels_[i]->text() == text) continue;
        panels_[i]->setText(text);
        panels_[i]->setToolTip(text);
        panels_[i]->show();
        // A count that grows may widen its panel; one that shrinks does not make its neighbours jump.
        if (panels_[i] != panels_.back())
            panels_[i]->setMinimumWidth(std::max(panels_[i]->minimumWidth(), panels_[i]->sizeHint().width()));
    }
    work_->ShowWork();
}

}  // namespace swiftroll::ui

#include "stale_list_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {

StaleListBar::StaleListBar(Presenter& presenter) {
    const Command& command = presenter.Main().cmdCalcOutput;
    setObjectName(QStringLiteral("staleListBar"));
    setAccessibleName(QStringLiteral("Avis"));
    auto* text = new QLabel(QStringLiteral("Liste à recalculer"));
    auto* button = new QPushButton(QStringLiteral("%1 (%2)").arg(ToQt(command.Caption), ToQt(command.Key)));
    button->setObjectName(QStringLiteral("staleListButton"));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, [&presenter, &command] { presenter.Click(command); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Room());
    row->setSpacing(2 * kSpacing);
    row->addWidget(text);
    row->addWidget(button);
    row->addStretch(1);
    hide();
    presenter.OnRefresh([this, &presenter, text] {
        const frmMain& main = presenter.Main();
        // A read shows no list at all.
        const bool isStale = !main.bTablesLocked && main.grouping.IsListStale();
        if (isStale != isHidden()) return;
        setVisible(isStale);
        if (!isStale || !isVisible()) return;
        QAccessibleEvent alert(text, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    });
}

}  // namespace swiftroll::ui

#include "window_keys.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>

#include "kinship_view.h"
#include "mnemonics.h"
#include "panes.h"
#include "person_view.h"
#include "tab_order.h"

namespace swiftroll::ui {
namespace {

/// A list, or what stands beside one.
bool IsPart(QWidget* widget) {
    return dynamic_cast<TableView*>(widget) != nullptr || dynamic_cast<PersonView*>(widget) != nullptr ||
           dynamic_cast<KinshipView*>(widget) != nullptr;
}

/// The parts of a page in the order of the Tab key, behind the page itself, which all the rest of it is.
void AddParts(Panes& panes, QWidget& page) {
    panes.Add(page);
    const QWidget* last = nullptr;
    for (QWidget* field = page.nextInFocusChain(); field != &page; field = field->nextInFocusChain()) {
        if ((field->focusPolicy() & Qt::TabFocus) == 0 || !page.isAncestorOf(field)) continue;
        QWidget* part = field;
        while (part != &page && !IsPart(part)) part = part->parentWidget();
        if (part != &page && part != last) panes.Add(*part);
        last = part;
    }
}

/// The message can be read, and copied, by keys.
void MakeReadable(QStatusBar& bar) {
    auto* message = bar.findChild<QLabel*>(QStringLiteral("pnlMessage"));
    if (message == nullptr) return;
    message->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    message->setFocusPolicy(Qt::TabFocus);
}

}  // namespace

void GiveKeys(MainWindow& window) {
    QTabWidget& tabs = window.Tabs();
    QWidget& centre = *window.centralWidget();
    MakeReadable(*window.statusBar());
    OrderTabsByRows(centre);

    const QString ofFrame = AssignMnemonics(centre, AssignMnemonics(window.menuBar()->actions()), {&tabs});
    for (int i = 0; i < tabs.count(); ++i) AssignMnemonics(*tabs.widget(i), ofFrame);
    for (QDialog* dialog : window.findChildren<QDialog*>()) {
        OrderTabsByRows(*dialog);
        AssignMnemonics(*dialog);
    }

    auto* panes = new Panes(window);
    for (int i = 0; i < centre.layout()->count(); ++i) {
        QWidget* const part = centre.layout()->itemAt(i)->widget();
        if (part == nullptr) continue;
        if (part != &tabs) {
            panes->Add(*part);
            continue;
        }
        panes->Add(*tabs.tabBar());
        for (int page = 0; page < tabs.count(); ++page) AddParts(*panes, *tabs.widget(page));
    }
    panes->Add(*window.statusBar());
}

}  // namespace swiftroll::ui

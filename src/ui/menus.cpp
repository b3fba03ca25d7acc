#include "menus.h"

#include "mnemonics.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// The text between the dashes of a caption such as "---- Sélection ----"; empty for a plain entry.
QString TitleOf(const QString& caption) {
    if (!caption.startsWith(QStringLiteral("--"))) return {};
    QString title = caption;
    return title.remove(QLatin1Char('-')).trimmed();
}

void Fill(QMenu& target, const Menu& menu, const std::function<void(Command&)>& onChosen,
          std::vector<std::pair<QAction*, Command*>>& actions) {
    for (const Menu& entry : menu.entries) {
        Command& command = entry.head;
        if (!command.Visible) continue;
        const QString caption = ToQt(command.Caption);
        const QString title = TitleOf(caption);
        QAction* action = nullptr;
        if (!title.isEmpty()) {
            action = target.addSection(title);
        } else if (!entry.entries.empty()) {
            QMenu* submenu = target.addMenu(caption);
            Fill(*submenu, entry, onChosen, actions);
            action = submenu->menuAction();
        } else {
            action = target.addAction(caption);
            action->setShortcut(QKeySequence(ToQt(command.Key)));
            QObject::connect(action, &QAction::triggered, &target,
                             [onChosen, &command] { onChosen(command); });
        }
        action->setObjectName(ToQt(command.Name()));
        action->setEnabled(command.Enabled);
        actions.emplace_back(action, &command);
    }
    AssignMnemonics(target.actions());
}

}  // namespace

std::vector<std::pair<QAction*, Command*>> FillMenu(QMenu& target, const Menu& menu,
                                                    const std::function<void(Command&)>& onChosen) {
    std::vector<std::pair<QAction*, Command*>> actions;
    Fill(target, menu, onChosen, actions);
    return actions;
}

}  // namespace swiftroll::ui

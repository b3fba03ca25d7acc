#pragma once

#include <QMenu>
#include <functional>

#include "app/controls.h"

namespace swiftroll::ui {

/// Fills a menu of the toolkit with the entries of `menu`; `onChosen` gets the command of the entry that the
/// user chooses. Gives the actions with their commands, submenus included, in order.
std::vector<std::pair<QAction*, Command*>> FillMenu(QMenu& target, const Menu& menu,
                                                    const std::function<void(Command&)>& onChosen);

}  // namespace swiftroll::ui

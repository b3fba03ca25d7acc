#pragma once

#include <QKeyEvent>
#include <optional>

#include "shell/frm_main.h"

namespace swiftroll::ui {

/// The key as the list commands know it; nothing for a key that is none of theirs.
std::optional<ListKey> ListKeyOf(const QKeyEvent& event);

}  // namespace swiftroll::ui

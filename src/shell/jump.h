#pragma once

#include "app/application.h"

namespace swiftroll {

/// Makes the row of a key the current one and highlights it in place of the one that was, without a tick.
/// Nothing for a key without a row, and the empty one.
std::optional<Row> GoToRow(Table& target, TextView sKey);

/// Makes the row of a key of `lvwIn` or `lvwFamily` the current one, marks it and brings its tab to the
/// front. A key without a row, and the empty one, lead nowhere.
void JumpTo(Application& app, Table& target, TextView sKey);

}  // namespace swiftroll

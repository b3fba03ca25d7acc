#pragma once

#include "app/application.h"

namespace swiftroll {

/// What a list is called: by its tab, or where it stands on the tab of another one, by what it holds.
TextView ListName(const Application& app, const Table& table);

/// The title over a list that shares its tab with another one.
TextView ListTitle(const Application& app, const Table& table);

}  // namespace swiftroll

#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// Writes the order of a list into a section.
void SaveListOrder(SettingsStore& store, const OrderedList& list, TextView sSection);

/// Puts a list in the order that the pairs of a section tell; false, and the list stays as it is, when they
/// do not name just its items.
bool SetListOrder(Application& app, OrderedList& list, const SettingsStore::Pairs& pairs);

}  // namespace swiftroll::modCommon

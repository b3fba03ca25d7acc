#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// The order of a list as it stands in a section.
std::vector<SettingEntry> ListOrderEntries(const OrderedList& list, TextView sSection);

/// What the pairs of a section are to a list.
enum class ListOrder { ItsOwn, OfOtherItems, Unreadable };

/// Puts a list in the order that the pairs tell. The list stays as it is when they do not name just its
/// items, and when a value is no place in it, which is reported.
ListOrder SetListOrder(Application& app, OrderedList& list, const SettingsStore::Pairs& pairs);

}  // namespace swiftroll::modCommon

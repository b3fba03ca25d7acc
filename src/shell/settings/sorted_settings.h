#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// The keys of pairs whose values are places from 1, in the order of the places; a place that no pair has is
/// empty. A value that is no place of a list as long as the pairs is reported; nothing is given then.
std::vector<Text> SortMySettings(Application& app, const SettingsStore::Pairs& a);

/// The values of pairs whose keys are running numbers from 0, in their order; a number that is missing is
/// empty. Pairs with other keys are left out. There is at least one element.
std::vector<Text> SortMySettings0(Application& app, const SettingsStore::Pairs& a);

}  // namespace swiftroll::modCommon

#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// How a value stands in the store.
enum class StoredAs {
    Nothing,
    Value,    // a text under one key, or several that belong together
    Buttons,  // a text for each button of a group, in the section of the button
    Order,    // the rows of a list as keys, with their places; the section holds nothing else
    History,  // names under running numbers, to which another program may have added some
    Selector  // the same for fixed items: they are the program's, not the user's
};

/// What follows from the kind of a control alone.
StoredAs FormOf(const Control& control);

/// The value of a control as it stands in a section.
std::vector<SettingEntry> EntriesOf(const Control& control, TextView section);

/// Reads a control back, with the events that belong to the value. What means nothing is reported with its
/// key and passed over.
void RestoreControl(Application& app, Control& control, TextView section);

/// Puts a list in the order that the pairs of a section tell; false when they do not name just its items. The
/// list stays as it is then, and when a value is no place in it, which is reported.
bool RestoreOrder(Application& app, Control& list, const SettingsStore::Pairs& pairs);

/// Runs what reads a value, and reports with its key one that means nothing.
void ReadValue(Application& app, TextView section, TextView key, const std::function<void()>& read);

}  // namespace swiftroll::modCommon

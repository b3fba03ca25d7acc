#pragma once

#include <algorithm>

#include "app/controls.h"
#include "app/ports.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

// Where the settings of windows and controls stand in the store.
namespace swiftroll::modCommon {

inline constexpr TextView kProductSection = "Product";
inline constexpr TextView kVersionKey = "Version", kLastRunKey = "LastRun";
inline constexpr TextView kTopKey = "WinTop", kLeftKey = "WinLeft";
inline constexpr TextView kWidthKey = "WinWidth", kHeightKey = "WinHeight";
/// Stands only for a window that is maximised.
inline constexpr TextView kMaximisedKey = "WinMaximised";
inline constexpr TextView kCheckOrOptionKey = "CheckOrOptionBox", kTextKey = "TextBox";
inline constexpr TextView kArrayMark = "°"_t;
/// Digits of the running number of an item of a combo.
inline constexpr std::size_t kItemDigits = 3;
/// Places and sizes are kept in twips, 1/1440 inch, so that they do not depend on the screen.
inline constexpr int kTwipsPerPixel = 15;

inline Text WindowSection(const Window& window) { return Concat({"Settings\\", window.Name()}); }

/// The section of a control, or of a table, by its name; "txtOutExtension(2)" is a member of an array.
inline Text ControlSection(const Window& window, TextView name) {
    return Concat({WindowSection(window), "\\", ReplaceAll(ReplaceAll(name, "(", kArrayMark), ")", "")});
}

/// The section of a button of a group.
inline Text MemberSection(TextView groupSection, int member) {
    return Concat({groupSection, kArrayMark, Decimal(member)});
}

/// Whether a key of a section is among those whose values can be read.
inline bool HoldsKey(const SettingsStore::Pairs& readable, TextView key) {
    return std::any_of(readable.begin(), readable.end(), [&](const auto& pair) { return pair.first == key; });
}

}  // namespace swiftroll::modCommon

// What a save writes of windows, controls and tables.
#include "shell/settings/setting_parts.h"

#include <algorithm>

#include "shell/settings/column_settings.h"
#include "shell/settings/list_order.h"
#include "shell/settings/settings_sections.h"
#include "shell/settings/sorted_settings.h"

namespace swiftroll::modCommon {
namespace {

using Kind = SettingPart::Kind;

constexpr int kSmallestSaved = 200;  // twips

/// Every side by itself: one that cannot be read does not hold the others back.
void AddPlace(SettingParts& parts, const Window& window) {
    const WindowPlace& place = window.Place;
    const Text section = WindowSection(window);
    const auto add = [&](TextView key, bool isKnown, const Text& value) {
        parts.push_back({Kind::Value, window.Name(), section});
        if (isKnown) parts.back().entries.push_back({section, Text(key), value});
    };
    const auto addSide = [&](TextView key, int pixels, bool isUsable, std::int64_t fallback) {
        add(key, place.known, Decimal(isUsable ? std::int64_t{pixels} * kTwipsPerPixel : fallback));
    };
    // A minimised window has no honest place.
    addSide(kTopKey, place.top, place.top >= 0, 0);
    addSide(kLeftKey, place.left, place.left >= 0, 0);
    addSide(kWidthKey, place.width, place.width > 0, kSmallestSaved);
    addSide(kHeightKey, place.height, place.height > 0, kSmallestSaved);
    add(kMaximisedKey, place.known && place.maximised, "1");
}

std::vector<SettingEntry> ItemsOf(const ComboBox& combo, TextView section) {
    std::vector<Text> items = combo.Items();
    if (combo.KeepsPick && combo.ListIndex() > 0) {
        const auto picked = items.begin() + combo.ListIndex();
        std::rotate(items.begin(), picked, picked + 1);
    }
    std::vector<SettingEntry> entries;
    for (const Text& item : items) {
        if (Trim(item).empty()) continue;
        const auto number = static_cast<std::int64_t>(entries.size());
        entries.push_back({Text(section), Decimal(number, kItemDigits), item});
    }
    return entries;
}

std::vector<SettingEntry> MembersOf(const OptionGroup& group, TextView section) {
    std::vector<SettingEntry> entries;
    for (int i = 0; i < static_cast<int>(group.Captions().size()); ++i) {
        entries.push_back(
            {MemberSection(section, i), Text(kCheckOrOptionKey), Text(BooleanText(group.Index() == i))});
    }
    return entries;
}

SettingPart PartOf(const Window& window, const Control& control) {
    SettingPart part{Kind::Value, window.Name(), ControlSection(window, control.Name())};
    const auto hold = [&](TextView key, TextView value) {
        part.entries = {{part.section, Text(key), Text(value)}};
    };
    switch (control.Kind()) {
        case ControlKind::ComboBox: {
            const auto& combo = dynamic_cast<const ComboBox&>(control);
            part.kind = combo.IsSelector() ? Kind::Selector : Kind::History;
            part.entries = ItemsOf(combo, part.section);
            break;
        }
        case ControlKind::OrderedList:
            part.kind = Kind::Order;
            part.entries = ListOrderEntries(dynamic_cast<const OrderedList&>(control), part.section);
            break;
        case ControlKind::CheckBox:
            hold(kCheckOrOptionKey, dynamic_cast<const CheckBox&>(control).Checked() ? "1" : "0");
            break;
        case ControlKind::OptionButton:
            hold(kCheckOrOptionKey, BooleanText(dynamic_cast<const OptionButton&>(control).Value()));
            break;
        case ControlKind::OptionGroup:
            part.entries = MembersOf(dynamic_cast<const OptionGroup&>(control), part.section);
            break;
        case ControlKind::TextBox:
            hold(kTextKey, dynamic_cast<const TextBox&>(control).Get());
            break;
        case ControlKind::Colour:
        case ControlKind::Label:
        case ControlKind::Command:
            break;
    }
    return part;
}

/// The positions are one order; widths and icons are the column's own.
void AddColumns(SettingParts& parts, const Window& window, const Table& table) {
    const Text section = ControlSection(window, table.Name());
    SettingPart positions{Kind::Value, window.Name(), section, table.Name()};
    for (const Column& column : table.Columns()) {
        ColumnEntries entries = EntriesOf(column, section);
        positions.column = entries.width.key;
        positions.entries.push_back(std::move(entries.position));
        for (SettingEntry* entry : {&entries.width, &entries.icon}) {
            const Text name = entry->key;
            parts.push_back({Kind::Value, window.Name(), section, table.Name(), name, {std::move(*entry)}});
        }
    }
    parts.push_back(std::move(positions));
}

}  // namespace

SettingParts PartsOf(const std::vector<SavedWindow>& windows) {
    SettingParts parts;
    for (const SavedWindow& saved : windows) {
        AddPlace(parts, saved.window);
        for (const Control* control : saved.window.Controls()) {
            parts.push_back(PartOf(saved.window, *control));
        }
        for (const Table* table : saved.tables) AddColumns(parts, saved.window, *table);
    }
    return parts;
}

}  // namespace swiftroll::modCommon

// What a save writes of windows, controls and tables.
#include "shell/settings/setting_parts.h"

#include "shell/settings/column_settings.h"
#include "shell/settings/settings_sections.h"

namespace swiftroll::modCommon {
namespace {

constexpr int kSmallestSaved = 200;  // twips

/// Every side by itself: one that cannot be read does not hold the others back.
void AddPlace(SettingParts& parts, const Window& window) {
    const WindowPlace& place = window.Place;
    const Text section = WindowSection(window);
    const auto add = [&](TextView key, bool isKnown, const Text& value) {
        parts.push_back({StoredAs::Value, window.Name(), section});
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

/// The positions are one order; widths and icons are the column's own.
void AddColumns(SettingParts& parts, const Window& window, const Table& table) {
    const Text section = ControlSection(window, table.Name());
    SettingPart positions{StoredAs::Value, window.Name(), section, table.Name()};
    for (const Column& column : table.Columns()) {
        ColumnEntries entries = EntriesOf(column, section);
        positions.column = entries.width.key;
        positions.entries.push_back(std::move(entries.position));
        for (SettingEntry* entry : {&entries.width, &entries.icon}) {
            const Text name = entry->key;
            parts.push_back(
                {StoredAs::Value, window.Name(), section, table.Name(), name, {std::move(*entry)}});
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
            const Text section = ControlSection(saved.window, control->Name());
            parts.push_back(
                {FormOf(*control), saved.window.Name(), section, {}, {}, EntriesOf(*control, section)});
        }
        for (const Table* table : saved.tables) AddColumns(parts, saved.window, *table);
    }
    return parts;
}

}  // namespace swiftroll::modCommon

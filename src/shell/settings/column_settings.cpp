#include "shell/settings/column_settings.h"

#include "shell/settings/sorted_settings.h"
#include "shell/settings/stored_controls.h"
#include "text/edit.h"
#include "text/ignoring_failures.h"
#include "text/numbers.h"

namespace swiftroll::modCommon {
namespace {

constexpr TextView kPosition = "\\Position", kWidth = "\\Width", kIcon = "\\Icon";
constexpr TextView kByIndex = "*";

Text NameOf(const Column& column) {
    return column.Key.empty() ? Concat({kByIndex, Decimal(column.Index.Index())}) : column.Key;
}

/// @throws Failure when the table has no such column
Column& ColumnNamed(Table& lvw, TextView name) {
    if (name.starts_with(kByIndex))
        return lvw.ColumnAt(ColumnId::OfIndex(ToInteger(name.substr(kByIndex.size()))));
    Column* column = lvw.FindColumn(name);
    if (column == nullptr) throw Failure(FailureKind::KeyNotFound, name);
    return *column;
}

void SetWidth(Column& column, TextView value) {
    const std::int32_t width = ToLong(value);
    if (width < 0) throw Failure(FailureKind::InvalidArgument);
    column.Width = width;
}

/// There is no other image than these.
void SetIcon(Column& column, TextView value) {
    for (const TextView selection : {"On", "Of"}) {
        for (const TextView sort : {"No", "Up", "Dw"}) {
            if (value != Concat({selection, sort})) continue;
            column.Icon = value;
            return;
        }
    }
    throw Failure(FailureKind::InvalidArgument);
}

}  // namespace

ColumnEntries EntriesOf(const Column& column, TextView sSection) {
    const Text name = NameOf(column);
    return {{Concat({sSection, kPosition}), name, Decimal(column.Position)},
            {Concat({sSection, kWidth}), name, Decimal(column.Width)},
            {Concat({sSection, kIcon}), name, column.Icon}};
}

bool SaveColumnsSettings(Application& app, const Table& lvw, TextView sSection) {
    Text sName;
    return app.trail.Guard(
        "SaveColumnsSettings",
        [&] {
            SettingsStore& store = app.ports.settings;
            for (const Column& column : lvw.Columns()) {
                const ColumnEntries entries = EntriesOf(column, sSection);
                sName = entries.position.key;
                for (const SettingEntry* entry : {&entries.position, &entries.width, &entries.icon}) {
                    store.SaveSetting(entry->section, entry->key, entry->value);
                }
            }
            return true;
        },
        [&] {
            return Concat({lvw.Name(), "/", sSection, "/", sName});
        });
}

bool HasColumnPlaces(SettingsStore& store, TextView sSection) {
    return !store.GetAllSettings(Concat({sSection, kPosition})).empty();
}

void GetColumsSettings(Application& app, Table& lvw, TextView sSection) {
    Text sSubSection;
    const auto pairsBelow = [&](TextView name) {
        sSubSection = Concat({sSection, name});
        return app.ports.settings.GetAllSettings(sSubSection);
    };
    app.trail.Guard(
        "GetColumsSettings",
        [&] {
            std::int16_t position = 0;
            for (const Text& name : SortMySettings(app, pairsBelow(kPosition))) {
                ++position;
                IgnoringFailures([&] { lvw.MoveColumn(ColumnNamed(lvw, name).Index, position); });
            }
            const auto restore = [&](TextView name, auto set) {
                for (const auto& pair : pairsBelow(name)) {
                    Column* column = nullptr;
                    IgnoringFailures([&] { column = &ColumnNamed(lvw, pair.first); });
                    if (column == nullptr) continue;
                    ReadValue(app, sSubSection, pair.first, [&] { set(*column, pair.second); });
                }
            };
            restore(kWidth, SetWidth);
            restore(kIcon, SetIcon);
        },
        [&] {
            return Concat({sSubSection, "/", lvw.Name()});
        });
}

}  // namespace swiftroll::modCommon

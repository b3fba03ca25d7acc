#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// The place, the width and the icon of a column as they stand below the section of its table.
struct ColumnEntries {
    SettingEntry position, width, icon;
};
ColumnEntries EntriesOf(const Column& column, TextView sSection);

/// Writes the places, widths and icons of the columns of a table below a section; false after a failure,
/// which is reported.
bool SaveColumnsSettings(Application& app, const Table& lvw, TextView sSection);

/// Whether places of columns were ever written below a section. @throws Failure FileAccess
bool HasColumnPlaces(SettingsStore& store, TextView sSection);

/// Reads them back. A column that the section does not name stays as it is, as does one whose value means
/// nothing, which is reported with its key. The name of a column that is gone is passed over.
void GetColumsSettings(Application& app, Table& lvw, TextView sSection);

}  // namespace swiftroll::modCommon

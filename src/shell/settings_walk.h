#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// A window whose settings are kept, and the tables that it shows.
struct SavedWindow {
    Window& window;
    std::vector<Table*> tables = {};
};

/// Writes the places of the windows, all their controls and columns into the store, and counts the save. What
/// is written of a control follows from its kind alone. All is written, or nothing: a failure is reported.
void SaveAllControls(Application& app, const std::vector<SavedWindow>& windows);

/// Reads them back, in the order of the controls, with the events that belong to the values. A failure is
/// reported and ends the walk; what was read so far stays.
void GetAllControls(Application& app, const std::vector<SavedWindow>& windows);

}  // namespace swiftroll::modCommon

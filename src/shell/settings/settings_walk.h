#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// A window whose settings are kept, and the tables that it shows.
struct SavedWindow {
    Window& window;
    std::vector<Table*> tables = {};
};

struct SettingPart;

/// Writes the places of the windows, all their controls and columns into the store, and counts the save. What
/// is written of a control follows from its kind alone. Only what is new against `shown`, or missing in the
/// store, is written, so that what was never read is kept, and so is what another program saved meanwhile;
/// `shown` then tells what the windows hold. All is written, or nothing: a failure is reported.
void SaveAllControls(Application& app, const std::vector<SavedWindow>& windows,
                     std::vector<SettingPart>& shown);

/// Reads them back, in the order of the controls, with the events that belong to the values, and gives what
/// the windows then hold. A value that means nothing is reported with its key and passed over. When the store
/// cannot be read, this is reported and ends the walk; what was read so far stays.
std::vector<SettingPart> GetAllControls(Application& app, const std::vector<SavedWindow>& windows);

}  // namespace swiftroll::modCommon

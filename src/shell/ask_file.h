#pragma once

#include "app/application.h"

namespace swiftroll {

/// Names and extensions of kinds of files.
using FileKinds = std::vector<std::pair<TextView, TextView>>;

/// The request for a file of one kind beginning with a name, "Gedcom (*.ged)", or of one of `others`.
Dialogs::FileRequest FileRequestOf(bool bSave, TextView title, TextView fileName, TextView filterName,
                                   TextView extension, const FileKinds& others = {});

/// Asks for a file; to save, the user is asked about one that exists, and No leads back to the dialog. False
/// when he cancels: `chosen` is empty then, or the name of the file that is not to be overwritten.
bool AskFile(Application& app, const Dialogs::FileRequest& request, Text& chosen);

}  // namespace swiftroll

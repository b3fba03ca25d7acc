#pragma once

#include "app/option_record.h"

namespace swiftroll::modCommon {

/// The name with what stands from its last "." on replaced by "." and `sExt`; a name without "." gets them
/// behind it. Dots of the folders do not count.
Text ChangeExtension(TextView sFile, TextView sExt);

/// Whether the name of a file has more than an extension: that of a hidden file has not.
bool HasBaseName(TextView sFile);
/// The name that a dialog proposes: one without a base takes that of `sInput`, if that has one.
Text ProposedName(TextView sFile, TextView sInput);

/// The extensions that belong to the chosen format: of its files, and of its models.
const Text& OutExtension(const OptionRecord& options);
const Text& ModelExtension(const OptionRecord& options);
/// That of the drawings, which are HTML whatever is chosen.
const Text& KinshipExtension(const OptionRecord& options);

/// Give the name in a file combo its extension; an empty one follows the file that is read.
void ChangeSwiftOutExtension(OptionRecord& options);
void ChangeGedOutExtension(OptionRecord& options);
/// Give the name in a file combo its extension.
void ChangeModelExtension(OptionRecord& options);
void ChangeKinshipExtension(OptionRecord& options);

}  // namespace swiftroll::modCommon

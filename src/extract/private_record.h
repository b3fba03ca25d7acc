#pragma once

#include "text/text.h"

namespace swiftroll::modSaveGed {

/// What an extract tells of somebody who is hidden as living: a record of the identifier with the name
/// "Vivant //", and the sex and the families that `sRecord` tells, in lines of their own.
Text PrivateRecord(TextView sRecord, TextView sId);

}  // namespace swiftroll::modSaveGed

#pragma once

#include "app/feedback.h"
#include "app/option_record.h"
#include "privacy/living.h"

namespace swiftroll::modKinshipOutput {

/// What every drawing works with.
struct DrawingSource {
    TableSet& tables;
    const OptionRecord& options;
    Feedback& feedback;
    const modPrivacy::Living& living;
};

}  // namespace swiftroll::modKinshipOutput

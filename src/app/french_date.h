#pragma once

#include "app/ports.h"

namespace swiftroll {

/// French forms of a date: "dimanche 22 novembre 2026", "22-nov.-26", "22/11/2026".
Text LongDate(const Moment& moment);
Text MediumDate(const Moment& moment);
Text ShortDate(const Moment& moment);
/// French forms of a time: "14:05:09", "14:05".
Text LongTime(const Moment& moment);
Text ShortTime(const Moment& moment);

}  // namespace swiftroll

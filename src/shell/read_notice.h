#pragma once

#include <functional>

#include "app/message_bar.h"
#include "gedcom/read_findings.h"

namespace swiftroll {

/// The operations that read the file again, with the calendars or with the events that stand in for others.
struct ReadAgain {
    std::function<void()> withCalendars, withStandIns;
};

/// What the message bar tells after a read, with a button for each option that would read more. The text is
/// empty when there is nothing to tell.
Notice ReadNotice(const modReadGedcom::ReadFindings& findings, const ReadAgain& readAgain);

}  // namespace swiftroll

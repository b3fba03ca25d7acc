#pragma once

#include "gedcom/read_findings.h"
#include "tables/text_store.h"

namespace swiftroll::modReadGedcom {

/// What a record tells of an event.
struct EventFacts {
    DateReading date;
    TextRef place;
    /// Whether a place was told, which is not kept where nobody asks for it.
    bool hasPlace = false;
    /// Whether the event stands in for a birth or a death.
    bool isStandIn = false;
};

/// The years and the place of a birth or a death.
struct LifeFacts {
    Years years;
    TextRef place;
};

/// The events at both ends of a life, whatever their order in the record.
class LifeEvents {
  public:
    LifeEvents();

    /// The event of a tag, as `TagCode` gives it; nullptr for a tag that is none of them.
    EventFacts* Of(std::uint64_t tag);

    /// What the birth and the death tell. `useStandIns`: what one of them lacks, both its years or its place,
    /// is told by CHR or else BAPM, by BURI or else CREM. Notes in `findings` what was not read.
    LifeFacts Birth(bool useStandIns, ReadFindings& findings) const;
    LifeFacts Death(bool useStandIns, ReadFindings& findings) const;

  private:
    static constexpr std::size_t kAlike = 3;  // an event and those that stand in for it, in their order
    using Alike = std::array<EventFacts, kAlike>;
    static LifeFacts Take(const Alike& events, bool useStandIns, ReadFindings& findings,
                          std::int32_t& missed);

    Alike births_, deaths_;
};

}  // namespace swiftroll::modReadGedcom

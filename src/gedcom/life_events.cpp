#include "gedcom/life_events.h"

#include "gedcom/tag.h"

namespace swiftroll::modReadGedcom {

LifeEvents::LifeEvents() {
    for (Alike* events : {&births_, &deaths_}) {
        for (std::size_t i = 1; i < kAlike; ++i) (*events)[i].isStandIn = true;
    }
}

EventFacts* LifeEvents::Of(std::uint64_t tag) {
    switch (tag) {
        case TagCode("BIRT"):
            return &births_[0];
        case TagCode("CHR"):
            return &births_[1];
        case TagCode("BAPM"):
            return &births_[2];
        case TagCode("DEAT"):
            return &deaths_[0];
        case TagCode("BURI"):
            return &deaths_[1];
        case TagCode("CREM"):
            return &deaths_[2];
        default:
            return nullptr;
    }
}

LifeFacts LifeEvents::Birth(bool useStandIns, ReadFindings& findings) const {
    return Take(births_, useStandIns, findings, findings.births);
}

LifeFacts LifeEvents::Death(bool useStandIns, ReadFindings& findings) const {
    return Take(deaths_, useStandIns, findings, findings.deaths);
}

LifeFacts LifeEvents::Take(const Alike& events, bool useStandIns, ReadFindings& findings,
                           std::int32_t& missed) {
    LifeFacts facts{events[0].date.years, events[0].place};
    findings.Note(events[0].date);
    bool isMissed = false;
    for (std::size_t i = 1; i < kAlike; ++i) {
        const EventFacts& other = events[i];
        const bool givesYears = facts.years.AreNone() && !other.date.years.AreNone();
        const bool givesPlace = facts.place.IsEmpty() && other.hasPlace;
        if (useStandIns && facts.years.AreNone()) {
            findings.Note(other.date);
            facts.years = other.date.years;
        }
        if (useStandIns && givesPlace) facts.place = other.place;
        isMissed = isMissed || givesYears || givesPlace;
    }
    if (isMissed && !useStandIns) ++missed;
    return facts;
}

}  // namespace swiftroll::modReadGedcom

#include "check/member_lists.h"

namespace swiftroll::modCheck {

/// Counts, adds up, and places each line, from the last to the first: then each start stands at its place.
MemberLists::MemberLists(const FileRecords& records)
    : records_(records), starts_(records.persons.size() + 1) {
    const BlockVector<Link>& links = records.memberLinks;
    std::uint32_t count = 0;
    for (std::size_t i = 0; i < links.size(); ++i) {
        const std::uint32_t person = records.PersonOf(links[i].target);
        if (person != kNone) ++starts_[person];
    }
    for (std::uint32_t& start : starts_) start = count += start;
    links_.resize(count);
    for (std::size_t i = links.size(); i-- > 0;) {
        const std::uint32_t person = records.PersonOf(links[i].target);
        if (person != kNone) links_[--starts_[person]] = static_cast<std::uint32_t>(i);
    }
}

}  // namespace swiftroll::modCheck

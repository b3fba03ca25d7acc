#include "check/spouses.h"

namespace swiftroll::modCheck {

void ListSpouses(const FileRecords& records, std::size_t family, std::vector<Spouse>& spouses) {
    constexpr std::size_t kMost = 8;
    spouses.clear();
    records.VisitMemberLinks(family, [&](const Link& link) {
        if (link.kind == LinkKind::Child || spouses.size() == kMost) return;
        const std::uint32_t person = records.PersonOf(link.target);
        if (person != kNone) spouses.push_back({person, link.kind});
    });
}

}  // namespace swiftroll::modCheck

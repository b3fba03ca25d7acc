#include "extract/families_to_save.h"

#include <algorithm>
#include <numeric>

#include "tables/column_numbers.h"

namespace swiftroll::modSaveGed {

FamiliesToSave::FamiliesToSave(Table& lvwFamilyXref)
    : first_(lvwFamilyXref.Store().InternedCount() + 1),
      families_(static_cast<std::size_t>(lvwFamilyXref.Count())),
      sizes_(first_.size()) {
    constexpr std::int32_t kLookAhead = 16;
    std::vector<Membership> all;
    all.reserve(families_.size());
    for (std::int32_t i = 1; i <= lvwFamilyXref.Count(); ++i) {
        lvwFamilyXref.Prefetch(i + kLookAhead);
        const Row member = lvwFamilyXref.Item(i);
        const TextRef indi = member.Ref(FamilyXref::IDIndi), family = member.Ref(FamilyXref::IDFam);
        if (!indi.IsEmpty() && !family.IsEmpty()) all.push_back({family, indi});
    }
    for (const Membership& member : all) {
        ++first_[member.sIndi.Symbol() + 1];
        ++sizes_[member.sFam.Symbol()];
    }
    std::partial_sum(first_.begin(), first_.end(), first_.begin());
    std::vector<std::uint32_t> next = first_;
    for (const Membership& member : all) families_[next[member.sIndi.Symbol()]++] = member.sFam;
}

void FamiliesToSave::AddFamToSave(TextRef sIndi) {
    const std::uint32_t symbol = sIndi.Symbol();
    for (std::uint32_t i = first_[symbol]; i < first_[symbol + 1]; ++i)
        added_.push_back({families_[i], sIndi});
}

void FamiliesToSave::Arrange() {
    constexpr std::uint32_t kNone = 0xFFFFFFFFu;
    // From the last membership back, so that the first one met of a family gives its place.
    std::vector<std::uint32_t> placeOf(first_.size(), kNone);
    order_.clear();
    for (auto member = added_.rbegin(); member != added_.rend(); ++member) {
        std::uint32_t& place = placeOf[member->sFam.Symbol()];
        if (place != kNone) continue;
        place = static_cast<std::uint32_t>(order_.size());
        order_.push_back(member->sFam);
    }
    std::reverse(order_.begin(), order_.end());
    const auto placeFromStart = [&](TextRef sFam) { return order_.size() - 1 - placeOf[sFam.Symbol()]; };
    firstMember_.assign(order_.size() + 1, 0);
    for (const Membership& member : added_) ++firstMember_[placeFromStart(member.sFam) + 1];
    std::partial_sum(firstMember_.begin(), firstMember_.end(), firstMember_.begin());
    members_.resize(added_.size());
    std::vector<std::uint32_t> next = firstMember_;
    for (const Membership& member : added_) members_[next[placeFromStart(member.sFam)]++] = member.sIndi;
}

}  // namespace swiftroll::modSaveGed

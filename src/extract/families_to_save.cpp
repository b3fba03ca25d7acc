#include "extract/families_to_save.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "tables/columns.h"

namespace swiftroll::modSaveGed {
namespace {

// The tables are sorted by identifiers, but their rows stand in memory as they were read.
constexpr std::int32_t kLookAhead = 16;

}  // namespace

FamiliesToSave::FamiliesToSave(TableSet& tables)
    : lvwIn_(tables.lvwIn),
      lvwFamily_(tables.lvwFamily),
      lvwFamilyXref_(tables.lvwFamilyXref),
      rankOf_(lvwFamily_.Store().InternedCount() + 1) {}

void FamiliesToSave::AddMarked() {
    for (std::int32_t i = 1; i <= lvwIn_.Count(); ++i) {
        const Row person = lvwIn_.Item(i);
        if (person.Marked()) AddFamToSave(person.Ref(In::ID));
    }
}

void FamiliesToSave::AddFamToSave(TextRef sIndi) {
    if (sIndi.IsEmpty()) return;
    added_.push_back(sIndi);
    rankOf_[sIndi.Symbol()] = static_cast<Rank>(added_.size());
}

/// Gives the spouses of each family.
std::vector<FamiliesToSave::Spouses> FamiliesToSave::ReadFamilies() {
    std::vector<Spouses> spouses;
    spouses.reserve(static_cast<std::size_t>(lvwFamily_.Count()));
    families_.reserve(spouses.capacity());
    for (std::int32_t i = 1; i <= lvwFamily_.Count(); ++i) {
        lvwFamily_.Prefetch(i + kLookAhead);
        const Row family = lvwFamily_.Item(i);
        spouses.push_back(
            {family.Ref(Family::IDHusb), family.Ref(Family::IDWife), family.Ref(Family::IDFams)});
        families_.push_back({family.Ref(Family::IDFam), RangeOfTag(family.Tag())});
    }
    return spouses;
}

/// The memberships of those who were added, in the order of the table. All members count for the size of a
/// family.
std::vector<FamiliesToSave::Membership> FamiliesToSave::ReadMemberships(const std::vector<Spouses>& spouses) {
    constexpr std::uint32_t kNone = 0xFFFFFFFFu;
    std::vector<std::uint32_t> numberOf(rankOf_.size(), kNone);
    for (std::size_t n = 0; n < families_.size(); ++n)
        if (!families_[n].sFam.IsEmpty())
            numberOf[families_[n].sFam.Symbol()] = static_cast<std::uint32_t>(n);
    std::vector<Membership> memberships;
    memberships.reserve(static_cast<std::size_t>(lvwFamilyXref_.Count()));
    // The members of a family stand together.
    TextRef lastFamily;
    std::uint32_t number = kNone;
    for (std::int32_t i = 1; i <= lvwFamilyXref_.Count(); ++i) {
        lvwFamilyXref_.Prefetch(i + 2 * kLookAhead);
        if (i + kLookAhead <= lvwFamilyXref_.Count()) {
            const TextRef soon = lvwFamilyXref_.Item(i + kLookAhead).Ref(FamilyXref::IDIndi);
            if (!soon.IsEmpty()) PrefetchMemory(&rankOf_[soon.Symbol()]);
        }
        const Row member = lvwFamilyXref_.Item(i);
        const TextRef sIndi = member.Ref(FamilyXref::IDIndi), sFam = member.Ref(FamilyXref::IDFam);
        if (sIndi.IsEmpty() || sFam.IsEmpty()) continue;
        if (std::exchange(lastFamily, sFam) != sFam) number = numberOf[sFam.Symbol()];
        const Rank rank = rankOf_[sIndi.Symbol()];
        if (number == kNone) {
            if (rank != 0) throw Failure(FailureKind::KeyNotFound, lvwFamily_.Store().Get(sFam));
            continue;
        }
        FamilyRow& family = families_[number];
        ++family.size;
        if (rank == 0) continue;
        ++family.added;
        family.spouses +=
            static_cast<std::uint32_t>(std::count(spouses[number].begin(), spouses[number].end(), sIndi));
        memberships.push_back({number, {rank, member.Ref(FamilyXref::Type)}});
    }
    return memberships;
}

void FamiliesToSave::Arrange() {
    AddMarked();
    const std::vector<Membership> memberships = ReadMemberships(ReadFamilies());
    members_.resize(memberships.size());
    std::uint32_t first = 0;
    for (FamilyRow& family : families_) {
        family.firstMember = first;
        first += std::exchange(family.added, 0);
    }
    for (const auto& [number, member] : memberships) {
        FamilyRow& family = families_[number];
        members_[family.firstMember + family.added++] = member;
    }
    for (const FamilyRow& family : families_) {
        const auto begin = members_.begin() + family.firstMember;
        std::sort(begin, begin + family.added,
                  [](const Member& a, const Member& b) { return a.rank < b.rank; });
    }

    // A family stands where its last member was added, behind the families of that one before in the table.
    const auto isLast = [&](const FamilyRow& family, Rank rank) {
        return members_[family.firstMember + family.added - 1].rank == rank;
    };
    std::vector<std::uint32_t> place(added_.size() + 2);
    for (const auto& [number, member] : memberships)
        place[member.rank + 1] += isLast(families_[number], member.rank) ? 1 : 0;
    std::partial_sum(place.begin(), place.end(), place.begin());
    ordered_.resize(place.back());
    for (const auto& [number, member] : memberships) {
        const FamilyRow& family = families_[number];
        if (isLast(family, member.rank)) ordered_[place[member.rank]++] = family;
    }
}

}  // namespace swiftroll::modSaveGed

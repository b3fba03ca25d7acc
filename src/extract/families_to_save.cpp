#include "extract/families_to_save.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "tables/columns.h"
#include "tables/counting_sort.h"
#include "tables/look_ahead.h"

namespace swiftroll::modSaveGed {

FamiliesToSave::FamiliesToSave(TableSet& tables, const modPrivacy::Living& living)
    : living_(living),
      lvwIn_(tables.lvwIn),
      lvwFamily_(tables.lvwFamily),
      lvwFamilyXref_(tables.lvwFamilyXref),
      rankOf_(tables.lvwFamily.Store().InternedCount() + 1) {}

void FamiliesToSave::AddMarked() {
    for (std::int32_t i = 1; i <= lvwIn_.Count(); ++i) {
        const RowView person = lvwIn_.Item(i);
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
        LookAhead(lvwFamily_, i);
        const RowView family = lvwFamily_.Item(i);
        spouses.push_back(
            {family.Ref(Family::IDHusb), family.Ref(Family::IDWife), family.Ref(Family::IDFams)});
        families_.push_back(
            {family.Ref(Family::IDFam), RangeOfTag(family.Tag()), living_.HidesFamily(family)});
    }
    return spouses;
}

/// The memberships of those who were added, in the order of the table. All members count for the size of a
/// family.
std::vector<FamiliesToSave::Membership> FamiliesToSave::ReadMemberships(const std::vector<Spouses>& spouses) {
    constexpr std::uint32_t kNone = 0xFFFFFFFFu, kMissing = kNone - 1;
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
        LookAhead(lvwFamilyXref_, i, [&](const RowView& soon) {
            const TextRef id = soon.Ref(FamilyXref::IDIndi);
            if (!id.IsEmpty()) PrefetchMemory(&rankOf_[id.Symbol()]);
        });
        const RowView member = lvwFamilyXref_.Item(i);
        const TextRef sIndi = member.Ref(FamilyXref::IDIndi), sFam = member.Ref(FamilyXref::IDFam);
        if (sIndi.IsEmpty() || sFam.IsEmpty()) continue;
        if (std::exchange(lastFamily, sFam) != sFam) number = numberOf[sFam.Symbol()];
        const Rank rank = rankOf_[sIndi.Symbol()];
        if (number == kNone && rank != 0) {
            missing_.push_back(sFam);
            number = numberOf[sFam.Symbol()] = kMissing;
        }
        if (number >= kMissing) continue;
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
    const auto familyOf = [&](std::size_t i) { return memberships[i].family; };
    const auto starts = ListStarts(memberships.size(), families_.size(), familyOf);
    PutIntoLists(memberships.size(), starts, familyOf,
                 [&](std::uint32_t place, std::size_t i) { members_[place] = memberships[i].member; });
    for (std::size_t n = 0; n < families_.size(); ++n) families_[n].firstMember = starts[n];
    for (const FamilyRow& family : families_) {
        const auto begin = members_.begin() + family.firstMember;
        std::sort(begin, begin + family.added,
                  [](const Member& a, const Member& b) { return a.rank < b.rank; });
    }

    // A family stands where its last member was added, behind the families of that one before in the table.
    const auto isLast = [&](const FamilyRow& family, Rank rank) {
        return members_[family.firstMember + family.added - 1].rank == rank;
    };
    std::vector<Membership> last;
    std::copy_if(memberships.begin(), memberships.end(), std::back_inserter(last),
                 [&](const Membership& m) { return isLast(families_[m.family], m.member.rank); });
    const auto rankOf = [&](std::size_t i) { return last[i].member.rank; };
    ordered_.resize(last.size());
    PutIntoLists(last.size(), ListStarts(last.size(), added_.size() + 1, rankOf), rankOf,
                 [&](std::uint32_t place, std::size_t i) { ordered_[place] = families_[last[i].family]; });
}

}  // namespace swiftroll::modSaveGed

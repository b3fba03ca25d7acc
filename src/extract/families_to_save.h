#pragma once

#include <array>
#include <span>
#include <vector>

#include "extract/record_range.h"
#include "privacy/living.h"
#include "tables/schema.h"

namespace swiftroll::modSaveGed {

/// `colFamToSave`: the families that marked individuals belong to, with these members of each. A family moves
/// to the end each time a member is added, so that families stand in the order of their last member.
class FamiliesToSave {
  public:
    FamiliesToSave(TableSet& tables, const modPrivacy::Living& living);

    /// Adds each marked individual, in the order of lvwIn, to all its families, and puts these in their
    /// order. Only reads the tables.
    void Arrange();
    /// The families of marked individuals that have no row.
    const std::vector<TextRef>& Missing() const { return missing_; }

    using Rank = std::uint32_t;
    struct Member {
        Rank rank;
        TextRef type;  // what the individual is in the family, as its row tells
    };
    struct Entry {
        TextRef sFam;
        RecordRange range;               // of its record; empty when there is none
        std::span<const Member> sIndis;  // in the order in which they were added
        bool isComplete;                 // nobody of the family is missing
        bool bFull;                      // at least two of the spouses were added, and not all are hidden
    };
    std::size_t Count() const { return ordered_.size(); }
    /// A family by its place from 0.
    Entry operator[](std::size_t i) const {
        const FamilyRow& family = ordered_[i];
        return {family.sFam, family.range, std::span(members_).subspan(family.firstMember, family.added),
                family.added == family.size, family.spouses >= 2 && !family.isHidden};
    }
    /// The individual that was added with a rank.
    TextRef Individual(Rank rank) const { return added_[rank - 1]; }

  private:
    struct FamilyRow {
        TextRef sFam;
        RecordRange range;
        bool isHidden = false;      // only its links may be told
        std::uint32_t spouses = 0;  // number of those who were added
        std::uint32_t size = 0;     // number of its members
        std::uint32_t added = 0;    // number of those who were added: they stand from firstMember on
        std::uint32_t firstMember = 0;
    };
    struct Membership {
        std::uint32_t family;  // number of its row from 0
        Member member;
    };
    using Spouses = std::array<TextRef, 3>;
    void AddMarked();
    void AddFamToSave(TextRef sIndi);
    std::vector<Spouses> ReadFamilies();
    std::vector<Membership> ReadMemberships(const std::vector<Spouses>& spouses);

    const modPrivacy::Living& living_;
    const Table& lvwIn_;
    const Table& lvwFamily_;
    const Table& lvwFamilyXref_;
    std::vector<TextRef> added_;  // the individuals in their order: the first one has the rank 1
    std::vector<Rank> rankOf_;    // by the number of the identifier, 0 for others
    std::vector<FamilyRow> families_, ordered_;  // in the order of the table, and in that of the extract
    std::vector<Member> members_;
    std::vector<TextRef> missing_;
};

}  // namespace swiftroll::modSaveGed

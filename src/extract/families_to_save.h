#pragma once

#include <span>
#include <vector>

#include "tables/table.h"

namespace swiftroll::modSaveGed {

/// `colFamToSave`: the families that marked individuals belong to, with these members of each. A family moves
/// to the end each time a member is added, so that families stand in the order of their last member.
class FamiliesToSave {
  public:
    explicit FamiliesToSave(Table& lvwFamilyXref);

    /// Adds an individual to all its families. `sIndi` is an identifier in the store of the tables.
    void AddFamToSave(TextRef sIndi);

    struct Entry {
        TextRef sFam;
        std::span<const TextRef> sIndis;  // members in the order in which they were added
        bool isComplete;                  // nobody of the family is missing
    };
    /// Puts the families in their order; to be called when all individuals were added.
    void Arrange();
    std::size_t Count() const { return order_.size(); }
    /// A family by its place from 0.
    Entry operator[](std::size_t i) const {
        const std::uint32_t count = firstMember_[i + 1] - firstMember_[i];
        return {order_[i], std::span(members_).subspan(firstMember_[i], count),
                count == sizes_[order_[i].Symbol()]};
    }

  private:
    struct Membership {
        TextRef sFam;
        TextRef sIndi;
    };
    // Families of each individual by the number of its identifier: from first_[n] on, up to first_[n + 1].
    std::vector<std::uint32_t> first_;
    std::vector<TextRef> families_;
    std::vector<std::uint32_t> sizes_;  // number of members of each family, by the number of its identifier
    std::vector<Membership> added_;
    // The families in order, and the members of the i-th from firstMember_[i] on, up to that of the next.
    std::vector<TextRef> order_;
    std::vector<std::uint32_t> firstMember_;
    std::vector<TextRef> members_;
};

}  // namespace swiftroll::modSaveGed

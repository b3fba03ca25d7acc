#pragma once

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
        std::vector<TextRef> sIndis;  // members in the order in which they were added
    };
    /// All families in their order.
    std::vector<Entry> InOrder() const;

  private:
    struct Membership {
        TextRef sFam;
        TextRef sIndi;
    };
    // Families of each individual by the number of its identifier: from first_[n] on, up to first_[n + 1].
    std::vector<std::uint32_t> first_;
    std::vector<TextRef> families_;
    std::vector<Membership> added_;
};

}  // namespace swiftroll::modSaveGed

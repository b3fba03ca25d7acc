#pragma once

#include <vector>

#include "tables/schema.h"

namespace swiftroll {

/// What the tables know of a person of lvwIn and of the family around, as texts to show.
struct PersonCard {
    struct Relative {
        /// Empty for somebody whom the file names but does not tell of: there is nothing to go to.
        Text sId;
        Text name;
        /// "Père", "demi-sœur"; empty where it goes without saying.
        Text relation;
        friend bool operator==(const Relative&, const Relative&) = default;
    };
    /// Some people, and how many more there are than a user wants to read.
    struct Group {
        std::vector<Relative> people;
        std::size_t more = 0;
        friend bool operator==(const Group&, const Group&) = default;
    };
    struct Union {
        Group spouses;  // one, or none
        Text marriage;
        Group children;
        friend bool operator==(const Union&, const Union&) = default;
    };

    Text sId, name;
    /// When and where, as far as it is known.
    Text birth, death;
    Group parents;
    std::vector<Union> unions;
    std::size_t moreUnions = 0;
    Group siblings;
    /// The number of the island; empty when the read did not come so far.
    Text island;
    friend bool operator==(const PersonCard&, const PersonCard&) = default;
};

/// The card of a person. The links are found without lists of them, by a walk or two through families and
/// their members, so that nothing has to be kept for the moment when a user passes a row.
PersonCard CardOf(const TableSet& tables, const RowView& person);

}  // namespace swiftroll

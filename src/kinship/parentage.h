#pragma once

#include "kinship/link_graph.h"
#include "tables/counting_sort.h"

namespace swiftroll::modKinship {

/// Who is whose child: individuals and families as numbers from 0.
class Parentage {
  public:
    struct Couple {
        /// kNobody for the one who is missing.
        std::int32_t husband = kNobody, wife = kNobody;
    };
    struct Child {
        std::int32_t family, individual;
    };
    Parentage(std::int32_t individuals, std::vector<Couple> families, const std::vector<Child>& children);

    std::int32_t IndividualCount() const { return individuals_; }
    /// Calls `visit(parent)` for each known parent, family by family.
    template <class Visitor>
    void VisitParents(std::int32_t individual, Visitor visit) const {
        for (const std::int32_t family : originsOf_.Of(static_cast<std::uint32_t>(individual))) {
            const Couple& couple = At(families_, family);
            if (couple.husband != kNobody) visit(couple.husband);
            if (couple.wife != kNobody) visit(couple.wife);
        }
    }
    /// Calls `visit(child)` for each child of each family.
    template <class Visitor>
    void VisitChildren(std::int32_t individual, Visitor visit) const {
        for (const std::int32_t family : familiesOf_.Of(static_cast<std::uint32_t>(individual))) {
            for (const std::int32_t child : childrenOf_.Of(static_cast<std::uint32_t>(family))) visit(child);
        }
    }

  private:
    std::int32_t individuals_;
    std::vector<Couple> families_;
    RowLists originsOf_;   // the families that an individual is a child of
    RowLists familiesOf_;  // those in which he is a spouse
    RowLists childrenOf_;  // by family
};

}  // namespace swiftroll::modKinship

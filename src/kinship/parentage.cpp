#include "kinship/parentage.h"

namespace swiftroll::modKinship {
namespace {

using Entries = std::vector<RowLists::Entry>;

std::uint32_t ListOf(std::int32_t number) { return static_cast<std::uint32_t>(number); }

Entries Origins(const std::vector<Parentage::Child>& children) {
    Entries entries;
    for (const auto& child : children) entries.push_back({ListOf(child.individual), child.family});
    return entries;
}

Entries Children(const std::vector<Parentage::Child>& children) {
    Entries entries;
    for (const auto& child : children) entries.push_back({ListOf(child.family), child.individual});
    return entries;
}

Entries Marriages(const std::vector<Parentage::Couple>& families) {
    Entries entries;
    for (std::size_t i = 0; i < families.size(); ++i) {
        for (const std::int32_t spouse : {families[i].husband, families[i].wife}) {
            if (spouse != kNobody) entries.push_back({ListOf(spouse), static_cast<std::int32_t>(i)});
        }
    }
    return entries;
}

}  // namespace

Parentage::Parentage(std::int32_t individuals, std::vector<Couple> families,
                     const std::vector<Child>& children)
    : individuals_(individuals),
      families_(std::move(families)),
      originsOf_(Origins(children)),
      familiesOf_(Marriages(families_)),
      childrenOf_(Children(children)) {}

}  // namespace swiftroll::modKinship

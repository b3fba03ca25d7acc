#include "shell/person_card.h"

#include <algorithm>
#include <boost/unordered/unordered_flat_map.hpp>
#include <boost/unordered/unordered_flat_set.hpp>
#include <span>

#include "drawing/cell_texts.h"
#include "kinship/kin_terms.h"
#include "kinship/relations.h"
#include "shell/person_label.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

using modKinship::OtherParent;
using modKinship::Relation;

/// More than a user reads of one kind.
constexpr std::size_t kMostPeople = 60, kMostUnions = 30;
/// Nobody has more parents than these, and a walk through all families asks for each.
constexpr std::size_t kMostParents = 8;

Text EventText(TextView from, TextView to, TextView place) {
    const bool hasYears = !from.empty() || !to.empty();
    const Text years = hasYears ? modKinshipOutput::TakeDateFromTo(from, to) : Text();
    return Concat({years, years.empty() || place.empty() ? "" : ", ", place});
}

using Cells = std::span<const TextRef>;
TextRef At(Cells cells, ColumnId column) { return cells[static_cast<std::size_t>(column.Section())]; }

/// Calls `visit(cells)` for all rows as they are stored: the panel must follow a key held down on a million
/// people.
template <class Visitor>
void VisitRows(const Table& table, Visitor visit) {
    for (std::size_t stored = 0; stored < table.StoredCount(); ++stored) visit(table.StoredCells(stored));
}

/// Without the comma where a name is missing.
Text Reads(Text name) {
    if (name.starts_with(", ")) name.erase(0, 2);
    return name.empty() ? Text("(sans nom)") : name;
}

class CardMaker {
  public:
    CardMaker(const TableSet& tables, const RowView& person)
        : tables_(tables), person_(person), id_(person.Ref(In::ID)) {}

    PersonCard Make() {
        PersonCard card;
        card.sId = person_.Text();
        card.name = Reads(Concat({person_.Cell(In::LastName), ", ", person_.Cell(In::FirstName)}));
        card.birth =
            EventText(person_.Cell(In::BirthMin), person_.Cell(In::BirthMax), person_.Cell(In::BirthPlace));
        card.death =
            EventText(person_.Cell(In::DeathMin), person_.Cell(In::DeathMax), person_.Cell(In::DeathPlace));
        card.island = person_.Cell(In::IslandNr);
        FindFamilies();
        AddParents(card);
        FindHalfFamilies();
        FindChildren();
        AddUnions(card);
        AddSiblings(card);
        return card;
    }

  private:
    struct Parent {
        TextRef id, other;
    };
    /// A family of siblings.
    struct Origin {
        TextRef family;
        OtherParent other;
    };

    Relation RelationIn(Cells member) const {
        return modKinship::RelationOf(tables_.lvwFamilyXref.Store().Get(At(member, FamilyXref::Type)));
    }

    void FindFamilies() {
        VisitRows(tables_.lvwFamilyXref, [this](Cells member) {
            if (At(member, FamilyXref::IDIndi) != id_) return;
            const Relation relation = RelationIn(member);
            const TextRef family = At(member, FamilyXref::IDFam);
            if (relation == Relation::Child) origins_.push_back({family, OtherParent::Same});
            if (relation == Relation::Spouse) unions_.push_back(family);
        });
    }

    void AddParents(PersonCard& card) {
        for (const Origin& origin : origins_) {
            const auto family = tables_.lvwFamily.Find(RowKey(origin.family));
            if (!family) continue;
            const TextRef father = family->Ref(Family::IDHusb), mother = family->Ref(Family::IDWife);
            AddParent(card, {father, mother}, "Père"_t);
            AddParent(card, {mother, father}, "Mère"_t);
        }
    }

    void AddParent(PersonCard& card, const Parent& parent, TextView relation) {
        if (parent.id.IsEmpty() || ParentOf(parent.id) != nullptr) return;
        Add(card.parents, parent.id, relation);
        if (parents_.size() < kMostParents) parents_.push_back(parent);
    }

    const Parent* ParentOf(TextRef id) const {
        const auto found = std::find_if(parents_.begin(), parents_.end(),
                                        [&](const Parent& parent) { return parent.id == id; });
        return id.IsEmpty() || found == parents_.end() ? nullptr : &*found;
    }

    void AddUnions(PersonCard& card) {
        std::vector<RowView> families;
        for (const TextRef id : unions_) {
            if (const auto family = tables_.lvwFamily.Find(RowKey(id))) families.push_back(*family);
        }
        SortByYear(families, Family::MarrMin);
        for (const RowView& family : families) {
            if (card.unions.size() == kMostUnions) break;
            PersonCard::Union& made = card.unions.emplace_back();
            for (const ColumnId spouse : {ColumnId(Family::IDHusb), ColumnId(Family::IDWife)}) {
                if (family.Ref(spouse) != id_ && !family.Ref(spouse).IsEmpty())
                    Add(made.spouses, family.Ref(spouse));
            }
            made.marriage = EventText(family.Cell(Family::MarrMin), family.Cell(Family::MarrMax),
                                      family.Cell(Family::MarrPlace));
            VisitChildren(family.Ref(Family::IDFam), [&](TextRef child) { Add(made.children, child); });
        }
        card.moreUnions = families.size() - card.unions.size();
    }

    /// The other families of the parents.
    void FindHalfFamilies() {
        if (parents_.empty()) return;
        VisitRows(tables_.lvwFamily, [this](Cells family) {
            const TextRef husband = At(family, Family::IDHusb), wife = At(family, Family::IDWife);
            const Parent* const father = ParentOf(husband);
            const Parent* const parent = father != nullptr ? father : ParentOf(wife);
            if (parent == nullptr) return;
            const TextRef other = father != nullptr ? wife : husband;
            const bool areKnown = !parent->other.IsEmpty() && !other.IsEmpty();
            origins_.push_back({At(family, Family::IDFam), !areKnown ? OtherParent::Unknown
                                                           : parent->other == other
                                                               ? OtherParent::Same
                                                               : OtherParent::Different});
        });
    }

    /// The children of all these families. Few families are wanted of many: what has no bit of theirs is
    /// none of them.
    void FindChildren() {
        for (const Origin& origin : origins_) children_[origin.family];
        for (const TextRef family : unions_) children_[family];
        const auto bitOf = [](TextRef family) { return std::uint64_t{1} << (hash_value(family) & 63); };
        std::uint64_t bits = 0;
        for (const auto& [family, children] : children_) bits |= bitOf(family);
        VisitRows(tables_.lvwFamilyXref, [&](Cells member) {
            const TextRef family = At(member, FamilyXref::IDFam);
            if ((bits & bitOf(family)) == 0) return;
            const auto found = children_.find(family);
            if (found == children_.end()) return;
            if (RelationIn(member) == Relation::Child)
                found->second.push_back(At(member, FamilyXref::IDIndi));
        });
    }

    void AddSiblings(PersonCard& card) {
        for (const Origin& origin : origins_) {
            VisitChildren(origin.family, [&](TextRef child) {
                if (child == id_ || !siblings_.insert(child).second) return;
                const auto row = tables_.lvwIn.Find(RowKey(child));
                const auto sex = row ? modKinship::SexOf(row->Cell(In::Sex)) : modKinship::Sex::Unknown;
                Add(card.siblings, child, terms_.Of(modKinship::BloodLine{1, 1, origin.other}).Name(sex));
            });
        }
    }

    /// In the order of their births, as far as they are known.
    template <class Visitor>
    void VisitChildren(TextRef family, Visitor visit) const {
        std::vector<RowView> children;
        std::vector<TextRef> missing;
        for (const TextRef id : children_.at(family)) {
            if (const auto child = tables_.lvwIn.Find(RowKey(id))) {
                children.push_back(*child);
            } else {
                missing.push_back(id);
            }
        }
        SortByYear(children, In::BirthMin);
        for (const RowView& child : children) visit(child.Ref(In::ID));
        for (const TextRef id : missing) visit(id);
    }

    /// Rows without a year come last.
    static void SortByYear(std::vector<RowView>& rows, ColumnId column) {
        const auto yearOf = [column](const RowView& row) {
            const TextView year = row.Cell(column);
            return year.empty() ? std::numeric_limits<std::int32_t>::max() : ToLong(year);
        };
        std::stable_sort(rows.begin(), rows.end(),
                         [&](const RowView& a, const RowView& b) { return yearOf(a) < yearOf(b); });
    }

    void Add(PersonCard::Group& group, TextRef id, TextView relation = {}) const {
        if (group.people.size() == kMostPeople) {
            ++group.more;
            return;
        }
        const auto row = tables_.lvwIn.Find(RowKey(id));
        group.people.push_back(
            row ? PersonCard::Relative{Text(row->Text()), Reads(NameAndYears(*row)), Text(relation)}
                : PersonCard::Relative{
                      {}, Concat({tables_.lvwIn.Store().Get(id), " (absent du fichier)"}), Text(relation)});
    }

    const TableSet& tables_;
    const RowView& person_;
    TextRef id_;
    std::vector<Origin> origins_;  // those of the person first
    std::vector<TextRef> unions_;
    boost::unordered_flat_map<TextRef, std::vector<TextRef>> children_;  // by family
    std::vector<Parent> parents_;
    boost::unordered_flat_set<TextRef> siblings_;
    modKinship::KinTerms terms_;
};

}  // namespace

PersonCard CardOf(const TableSet& tables, const RowView& person) { return CardMaker(tables, person).Make(); }

}  // namespace swiftroll

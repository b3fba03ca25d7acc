#include "kinship/relatives_table.h"

#include "kinship/blood_relatives.h"
#include "kinship/kin_name.h"
#include "kinship/relations.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

/// The rows of a table from 0, by the identifiers in one of its columns.
class RowNumbers {
  public:
    RowNumbers(Table& table, ColumnId column)
        : store_(table.Store()), ofSymbol_(store_.InternedCount(), kNobody) {
        for (std::int32_t i = 1; i <= table.Count(); ++i) {
            const TextRef id = table.Item(i).Ref(column);
            if (const auto symbol = SymbolOf(id)) ofSymbol_[*symbol] = i - 1;
        }
    }
    /// kNobody for an identifier that no row has.
    std::int32_t Of(TextRef id) const {
        const auto symbol = SymbolOf(id);
        return symbol ? ofSymbol_[*symbol] : kNobody;
    }

  private:
    std::optional<std::uint32_t> SymbolOf(TextRef id) const {
        if (id.IsEmpty() || !id.IsInterned()) return std::nullopt;
        return id.Symbol();
    }
    TextStore& store_;
    std::vector<std::int32_t> ofSymbol_;
};

Parentage ReadParentage(TableSet& tables) {
    const RowNumbers individuals(tables.lvwIn, In::ID), families(tables.lvwFamily, Family::IDFam);
    std::vector<Parentage::Couple> couples;
    for (std::int32_t i = 1; i <= tables.lvwFamily.Count(); ++i) {
        const Row family = tables.lvwFamily.Item(i);
        couples.push_back(
            {individuals.Of(family.Ref(Family::IDHusb)), individuals.Of(family.Ref(Family::IDWife))});
    }
    std::vector<Parentage::Child> children;
    for (std::int32_t i = 1; i <= tables.lvwFamilyXref.Count(); ++i) {
        const Row member = tables.lvwFamilyXref.Item(i);
        if (RelationOf(member.Cell(FamilyXref::Type)) != Relation::Child) continue;
        const Parentage::Child child{families.Of(member.Ref(FamilyXref::IDFam)),
                                     individuals.Of(member.Ref(FamilyXref::IDIndi))};
        if (child.family != kNobody && child.individual != kNobody) children.push_back(child);
    }
    return {tables.lvwIn.Count(), std::move(couples), children};
}

}  // namespace

void ListRelatives(TableSet& tables, std::int32_t lRow, std::int32_t mostCivil,
                   const modPrivacy::Living& living) {
    Table& relatives = tables.lvwRelatives;
    relatives.Clear();
    relatives.SetSorted(false);
    if (lRow < 1 || lRow > tables.lvwIn.Count()) ThrowIndexOutOfRange();
    KinNamer namer;
    for (const BloodRelative& relative : FindBloodRelatives(ReadParentage(tables), lRow - 1, mostCivil)) {
        const auto person = [&](std::int32_t individual) { return tables.lvwIn.Item(individual + 1); };
        const Row individual = person(relative.individual);
        if (living.IsLiving(individual)) continue;
        TextStore& store = relatives.Store();
        Row row = relatives.Add(std::nullopt, individual.Text(), individual.Text());
        row.SetCell(Relatives::LastName, store.Intern(individual.Cell(In::LastName)));
        row.SetCell(Relatives::FirstName, store.Intern(individual.Cell(In::FirstName)));
        row.SetCell(Relatives::Sex, store.Intern(individual.Cell(In::Sex)));
        row.SetCell(Relatives::Relation,
                    store.Intern(namer.NameOf(relative.line, SexOf(individual.Cell(In::Sex)))));
        const Degrees degrees = DegreesOf(relative.line);
        row.SetCell(Relatives::CivilDegree, store.Intern(Decimal(degrees.civil)));
        row.SetCell(Relatives::CanonDegree, store.Intern(Decimal(degrees.canonical)));
        Text ancestors;
        for (const std::int32_t ancestor : relative.ancestors) {
            ancestors += Concat({ancestors.empty() ? "" : " ", person(ancestor).Text()});
        }
        row.SetCell(Relatives::Ancestors, store.Intern(ancestors));
    }
}

}  // namespace swiftroll::modKinship

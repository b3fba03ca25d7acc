#include "selection/relatives.h"

#include <array>

#include "tables/columns.h"
#include "text/literal.h"

namespace swiftroll::modSelectionIn {
namespace {

bool IsChild(TextView sType) { return sType == "Fils"_t || sType == "Fille"_t || sType == "Enfant"_t; }

/// The up to three spouses of the families of lvwFamily.
class SpouseColumns {
  public:
    SpouseColumns(Table& lvwFamily, TextStore& store)
        : columns_{IdColumn(lvwFamily, Family::IDHusb, store), IdColumn(lvwFamily, Family::IDWife, store),
                   IdColumn(lvwFamily, Family::IDFams, store)} {}
    std::array<TextRef, 3> Of(const Row& family) const {
        return {columns_[0].Of(family), columns_[1].Of(family), columns_[2].Of(family)};
    }

  private:
    std::array<IdColumn, 3> columns_;
};

}  // namespace

const RowLists& Relatives::FamilyRows() {
    if (families_) return *families_;
    Table& lvwFamily = app_.lvwFamily;
    const SpouseColumns spousesOf(lvwFamily, store_);
    std::vector<RowLists::Entry> entries;
    for (std::int32_t i = 1; i <= lvwFamily.Count(); ++i) {
        const auto spouses = spousesOf.Of(lvwFamily.Item(i));
        for (std::size_t k = 0; k < spouses.size(); ++k) {
            // Somebody may stand in a family twice.
            const auto end = spouses.begin() + static_cast<std::ptrdiff_t>(k);
            if (std::find(spouses.begin(), end, spouses[k]) == end) {
                entries.push_back({ListOf(spouses[k]), i});
            }
        }
    }
    return families_.emplace(entries);
}

const RowLists& Relatives::ChildRows(std::optional<RowLists>& lists, ColumnId column) {
    if (lists) return *lists;
    Table& lvwFamilyXref = app_.lvwFamilyXref;
    const IdColumn ids(lvwFamilyXref, column, store_);
    std::vector<RowLists::Entry> entries;
    for (std::int32_t i = 1; i <= lvwFamilyXref.Count(); ++i) {
        const Row row = lvwFamilyXref.Item(i);
        if (IsChild(row.Cell(FamilyXref::Type))) entries.push_back({ListOf(ids.Of(row)), i});
    }
    return lists.emplace(entries);
}

void Relatives::MarkIndividual(TextRef sIndi) {
    sIndi_ = sIndi;
    marker_.SelectIn(sIndi);
}

void Relatives::MarkParents(TextRef sIndi) { VisitParents(sIndi, Select()); }

void Relatives::VisitParents(TextRef sIndi, const Visitor& visit) {
    sIndi_ = sIndi;
    const auto origins = ChildRows(origins_, FamilyXref::IDIndi).Of(ListOf(sIndi));
    if (origins.empty()) return;
    const IdColumn families(app_.lvwFamilyXref, FamilyXref::IDFam, store_);
    VisitFamilySpouses(families.Of(app_.lvwFamilyXref.Item(origins.front())), visit);
}

void Relatives::MarkSpouses(TextRef sIndi) {
    sIndi_ = sIndi;
    const SpouseColumns spousesOf(app_.lvwFamily, store_);
    for (const std::int32_t row : FamilyRows().Of(ListOf(sIndi))) {
        for (const TextRef spouse : spousesOf.Of(app_.lvwFamily.Item(row))) {
            if (spouse != sIndi) marker_.SelectIn(spouse);
        }
    }
}

void Relatives::MarkChildren(TextRef sIndi) { VisitChildren(sIndi, Select()); }

void Relatives::VisitChildren(TextRef sIndi, const Visitor& visit) {
    sIndi_ = sIndi;
    const IdColumn families(app_.lvwFamily, Family::IDFam, store_);
    for (const std::int32_t row : FamilyRows().Of(ListOf(sIndi))) {
        VisitFamilyChildren(families.Of(app_.lvwFamily.Item(row)), visit);
    }
}

void Relatives::MarkFamilySpouses(TextRef sFam) { VisitFamilySpouses(sFam, Select()); }

void Relatives::VisitFamilySpouses(TextRef sFam, const Visitor& visit) {
    sFam_ = sFam;
    const auto family = app_.lvwFamily.Find(RowKey(sFam));
    if (!family) throw Failure(FailureKind::KeyNotFound, store_.Get(sFam));
    for (const TextRef spouse : SpouseColumns(app_.lvwFamily, store_).Of(*family)) visit(spouse);
}

void Relatives::MarkFamilyChildren(TextRef sFam) { VisitFamilyChildren(sFam, Select()); }

void Relatives::VisitFamilyChildren(TextRef sFam, const Visitor& visit) {
    sFam_ = sFam;
    const IdColumn individuals(app_.lvwFamilyXref, FamilyXref::IDIndi, store_);
    for (const std::int32_t row : ChildRows(children_, FamilyXref::IDFam).Of(ListOf(sFam))) {
        visit(individuals.Of(app_.lvwFamilyXref.Item(row)));
    }
}

}  // namespace swiftroll::modSelectionIn

#pragma once

#include <functional>

#include "list/sort_keys.h"
#include "selection/context.h"
#include "tables/columns.h"
#include "text/literal.h"

namespace swiftroll::test {

/// The selection as nested walks over the tables, row by row and text by text, without an index and without
/// a thought for time: what the engine must do exactly.
class PlainSelection {
  public:
    PlainSelection(Application& app, const modSelectionIn::SelectionContext& context, bool bSelect)
        : app_(app), context_(context), bSelect_(bSelect) {}

    /// @throws Failure as soon as an individual or a family is not there
    void Run(TextView sMode, int generations = 0) {
        if (sMode == "A" || sMode == "D") return MarkLineage(sMode == "A", generations);
        Table& active = *app_.lvwActiveListView;
        const bool byFamily = context_.sIdKind == "F";
        for (std::int32_t i = 1; i <= active.Count(); ++i) {
            const Row row = active.Item(i);
            if (!row.Marked()) continue;
            if (sMode.starts_with('V')) {
                MarkValues(active, row, sMode.substr(1));
                continue;
            }
            if ((sMode == "S" || sMode == "C") && context_.sIdKind != "I" && !byFamily) continue;
            const bool usesFamily = byFamily && (sMode == "S" || sMode == "C");
            const TextView id = Cell(row, usesFamily ? context_.iFamCol : context_.iIndiCol);
            if (id.empty()) continue;
            if (sMode == "I") SelectIn(id);
            if (sMode == "P") MarkParents(id);
            if (sMode == "S") usesFamily ? MarkSpousesOf(id) : MarkPartners(id);
            if (sMode == "C") usesFamily ? MarkChildrenOf(id) : MarkChildren(id);
        }
    }

  private:
    /// Generation by generation, each person followed once.
    void MarkLineage(bool up, int generations) {
        std::vector<Text> seen;
        const auto isNew = [&](TextView id) {
            if (id.empty() || std::find(seen.begin(), seen.end(), id) != seen.end()) return false;
            seen.emplace_back(id);
            return true;
        };
        for (std::int32_t i = 1; i <= app_.lvwActiveListView->Count(); ++i) {
            const Row row = app_.lvwActiveListView->Item(i);
            if (row.Marked()) isNew(Cell(row, context_.iIndiCol));
        }
        for (std::size_t next = 0; generations > 0 && next < seen.size(); --generations) {
            for (const std::size_t end = seen.size(); next < end; ++next) {
                relative_ = [&](TextView id) {
                    if (auto row = app_.lvwIn.Find(id)) Set(*row);
                    isNew(id);
                };
                const Text id = seen[next];
                up ? MarkParents(id) : MarkChildren(id);
            }
        }
    }
    static TextView Cell(const Row& row, ColumnId column) { return row.Cell(column); }
    static bool IsChild(const Row& member) {
        const TextView type = member.Cell(FamilyXref::Type);
        return type == "Fils" || type == "Fille" || type == "Enfant";
    }
    static bool Compares(const Text& sVal, const Text& sRef, TextView relation) {
        if (relation == "<=") return sVal <= sRef;
        return relation == "=" ? sVal == sRef : sVal >= sRef;
    }
    void Set(Row row) {
        row.SetSelected(bSelect_);
        row.SetChecked(bSelect_);
    }
    void SelectIn(TextView id) {
        if (relative_) return relative_(id);
        if (!id.empty()) Set(app_.lvwIn.Item(id));
    }
    void MarkParents(TextView sIndi) {
        for (std::int32_t k = 1; k <= app_.lvwFamilyXref.Count(); ++k) {
            const Row member = app_.lvwFamilyXref.Item(k);
            if (member.Cell(FamilyXref::IDIndi) == sIndi && IsChild(member))
                return MarkSpousesOf(member.Text());
        }
    }
    void MarkSpousesOf(TextView sFam) {
        const Row family = app_.lvwFamily.Item(sFam);
        for (const ColumnId column : kSpouses) SelectIn(family.Cell(column));
    }
    template <class Visitor>
    void ForEachFamilyOf(TextView sIndi, Visitor visit) {
        for (std::int32_t k = 1; k <= app_.lvwFamily.Count(); ++k) {
            const Row family = app_.lvwFamily.Item(k);
            if (family.Cell(Family::IDHusb) == sIndi || family.Cell(Family::IDWife) == sIndi ||
                family.Cell(Family::IDFams) == sIndi) {
                visit(family);
            }
        }
    }
    void MarkPartners(TextView sIndi) {
        ForEachFamilyOf(sIndi, [&](const Row& family) {
            for (const ColumnId column : kSpouses) {
                if (family.Cell(column) != sIndi) SelectIn(family.Cell(column));
            }
        });
    }
    void MarkChildren(TextView sIndi) {
        ForEachFamilyOf(sIndi, [&](const Row& family) { MarkChildrenOf(family.Text()); });
    }
    void MarkChildrenOf(TextView sFam) {
        for (std::int32_t k = 1; k <= app_.lvwFamilyXref.Count(); ++k) {
            const Row member = app_.lvwFamilyXref.Item(k);
            if (member.Text() == sFam && IsChild(member)) SelectIn(member.Cell(FamilyXref::IDIndi));
        }
    }

    std::vector<ColumnId> IdColumns(const Table& active) const {
        const ColumnId clicked = context_.iClickedCol;
        if (&active == &app_.lvwIn) return {In::ID};
        if (&active == &app_.lvwXref) return {clicked == Xref::IDIndi1 ? Xref::IDIndi2 : Xref::IDIndi1};
        if (&active == &app_.lvwFamilyXref) return {FamilyXref::IDIndi};
        if (&active == &app_.lvwKinship) return {Kinship::IDIndi};
        if (&active != &app_.lvwFamily) return {};
        if (clicked == Family::IDHusb) return {Family::IDWife, Family::IDFams};
        if (clicked == Family::IDWife) return {Family::IDHusb, Family::IDFams};
        if (clicked == Family::IDFams) return {Family::IDHusb, Family::IDWife};
        return {Family::IDHusb, Family::IDWife, Family::IDFams};
    }
    void MarkValues(Table& active, const Row& marked, TextView relation) {
        const bool byPath = &active == &app_.lvwKinship && context_.iClickedCol == Kinship::SeqNr;
        const auto valueOf = [&](const Row& row) {
            const TextView cell = Cell(row, context_.iClickedCol);
            return byPath ? Text(cell.substr(0, 6)) : modCalcOut::KeepAlphaNum(app_, cell, false);
        };
        const Text sRef = valueOf(marked);
        for (std::int32_t k = 1; k <= active.Count(); ++k) {
            const Row other = active.Item(k);
            if (!Compares(valueOf(other), sRef, relation)) continue;
            if (byPath && other.Text().ends_with("999999")) continue;
            for (const ColumnId column : IdColumns(active)) {
                const auto row = app_.lvwIn.Find(Cell(other, column));
                if (row) Set(*row);
            }
            if (&active == &app_.lvwOut) MarkGroup(modCalcOut::MakeSortKeyOut(app_.positions, other));
        }
    }
    void MarkGroup(const Text& key) {
        for (std::int32_t k = 1; k <= app_.lvwIn.Count(); ++k) {
            const Row row = app_.lvwIn.Item(k);
            if (modCalcOut::MakeSortKeyIn(app_.positions, row) == key) Set(row);
        }
    }

    static constexpr Family::Columns kSpouses[] = {Family::IDHusb, Family::IDWife, Family::IDFams};
    Application& app_;
    const modSelectionIn::SelectionContext& context_;
    bool bSelect_;
    std::function<void(TextView id)> relative_;  // takes relatives while a lineage is followed
};

}  // namespace swiftroll::test

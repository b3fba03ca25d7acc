#include "list/calc_output.h"

#include <algorithm>

#include "list/sort_keys.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modCalcOut {
namespace {

constexpr std::int32_t kNoMin = 99999;
constexpr std::int32_t kNoMax = -1;
constexpr std::size_t kNumberWidth = 6;
constexpr std::int32_t kYearWidth = 4;

/// A column of the list: where its value comes from and where it goes.
struct ColumnPair {
    ColumnId in;
    ColumnId out;
    bool isShown;  // it stands before `Number`
};

/// The same for a column of years, each the smallest or the largest of the group.
struct YearPair : ColumnPair {
    bool isSmallest;
    std::int32_t None() const { return isSmallest ? kNoMin : kNoMax; }
};

/// Fills `lvwOut` from the rows of `lvwIn`, which come in group-key order.
class GroupWriter {
  public:
    explicit GroupWriter(ArrangedTables& tables) : tables_(tables) {
        const Positions::OfTable& positions = tables.positions.Of(tables.lvwOut);
        for (const ColumnFacts& column : Out::kColumns) {
            const ColumnPair pair{ColumnOfKey(In::kColumns, column.key), column.id,
                                  positions.iPosOfCol[column.id] < tables.positions.iPosNumber};
            if (column.formsGroups) texts_.push_back(pair);
            if (column.IsYear()) years_.push_back({pair, column.kind == CellKind::SmallestYear});
        }
        fields_.resize(texts_.size());
        aggregates_.resize(years_.size());
    }

    void Add(const Row& row, const Text& sCurKey) {
        if (sCurKey == sPrevKey_) {
            for (std::size_t i = 0; i < years_.size(); ++i) Widen(i, Year(row, years_[i]));
            ++lGroupCount_;
            return;
        }
        Finish();
        sPrevKey_ = sCurKey;
        lGroupCount_ = 1;
        for (std::size_t i = 0; i < texts_.size(); ++i) fields_[i] = row.Cell(texts_[i].in);
        for (std::size_t i = 0; i < years_.size(); ++i) aggregates_[i] = Year(row, years_[i]);
    }

    /// Writes the group that is being filled, if there is one.
    void Finish() {
        if (lGroupCount_ == 0) return;
        Row row = tables_.lvwOut.Add(std::nullopt, TextView(sPrevKey_), TextView());
        for (std::size_t i = 0; i < texts_.size(); ++i) {
            if (texts_[i].isShown) row.SetCell(texts_[i].out, tables_.lvwOut.Store().Intern(fields_[i]));
            Grow(texts_[i].out, fields_[i].size());
        }
        for (std::size_t i = 0; i < years_.size(); ++i) {
            if (years_[i].isShown && aggregates_[i] != years_[i].None()) {
                row.SetCell(years_[i].out, tables_.lvwOut.Store().Intern(Decimal(aggregates_[i])));
            }
        }
        const Text count = AlignRight(Decimal(lGroupCount_), kNumberWidth);
        row.SetCell(Out::Number, tables_.lvwOut.Store().Intern(count));
        Grow(Out::Number, count.size());
    }

    void SetYearWidths() {
        for (const YearPair& year : years_) tables_.lMaxLenOut[year.out] = kYearWidth;
    }

  private:
    static std::int32_t Year(const Row& row, const YearPair& year) {
        const TextView cell = row.Cell(year.in);
        return cell.empty() ? year.None() : ToLong(cell);
    }
    void Widen(std::size_t i, std::int32_t year) {
        std::int32_t& aggregate = aggregates_[i];
        aggregate = years_[i].isSmallest ? std::min(aggregate, year) : std::max(aggregate, year);
    }
    void Grow(ColumnId column, std::size_t length) {
        std::int32_t& width = tables_.lMaxLenOut[column];
        width = std::max(width, static_cast<std::int32_t>(length));
    }

    ArrangedTables& tables_;
    std::vector<ColumnPair> texts_;
    std::vector<YearPair> years_;
    Text sPrevKey_ = "\r\n";  // no key is this text
    std::int32_t lGroupCount_ = 0;
    std::vector<TextView> fields_;  // of the group's first row
    std::vector<std::int32_t> aggregates_;
};

void ComputeList(ArrangedTables& tables, Feedback& feedback, const modPrivacy::Living& living) {
    tables.InitIndexes(feedback);
    feedback.pnlMessage.Set("Comptage..."_t);
    Table &lvwIn = tables.lvwIn, &lvwOut = tables.lvwOut;
    tables.lMaxLenOut = Widths();
    tables.lMaxLenOut[Out::Number] = static_cast<std::int32_t>(lvwOut.ColumnAt(Out::Number).Caption.size());
    SortTable(tables.positions, feedback, SortMode::GroupKey, lvwIn, lvwIn.ColumnAt(In::ID));
    lvwOut.Clear();
    tables.listedFrom = BasisOf(tables, living.BornAfter());
    lvwOut.SetSorted(false);
    GroupWriter groups(tables);
    const std::int32_t count = lvwIn.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const Row row = lvwIn.Item(i);
        feedback.ProgressBar1.Show(i, count);
        if (!living.IsLiving(row)) groups.Add(row, MakeSortKeyIn(tables.positions, row));
    }
    groups.Finish();
    groups.SetYearWidths();
    feedback.pnlMessage.Set("");
}

}  // namespace

bool CalcOuptut(ArrangedTables& tables, Feedback& feedback, const modPrivacy::Living& living) {
    if (tables.lvwIn.Count() == 0) return false;
    const ScopedFlag wait(feedback.bWaitCursor);
    return feedback.trail.Guard(
        "CalcOuptut",
        [&] {
            ComputeList(tables, feedback, living);
            return true;
        },
        [] { return Text(); });
}

ListBasis BasisOf(const ArrangedTables& tables, std::int32_t lBornAfter) {
    ListBasis basis{tables.lvwIn.Clearings(), tables.lInDatesMade, tables.lvwIn.Count(), {}, {}, lBornAfter};
    const std::int16_t number = tables.lvwOut.ColumnAt(Out::Number).Position;
    std::vector<const Column*> before;
    for (const Column& column : tables.lvwOut.Columns()) {
        if (column.Position >= number) continue;
        if (column.Facts->IsYear()) basis.years.push_back(column.Index);
        if (column.Facts->formsGroups) before.push_back(&column);
    }
    std::ranges::sort(before, {}, &Column::Position);
    for (const Column* column : before) basis.groups.push_back(column->Index);
    return basis;
}

void HideInList(ArrangedTables& tables, Feedback& feedback, const modPrivacy::Living& living) {
    Table& lvwOut = tables.lvwOut;
    if (!tables.listedFrom || tables.listedFrom->lBornAfter == living.BornAfter()) return;
    struct MarkedGroup {
        Text key;
        bool isSelected, isChecked;
    };
    std::vector<MarkedGroup> marked;
    for (std::int32_t i = 1; i <= lvwOut.Count(); ++i) {
        const Row row = lvwOut.Item(i);
        if (row.Marked()) marked.push_back({row.Key(), row.Selected(), row.Checked()});
    }
    CalcOuptut(tables, feedback, living);
    for (const MarkedGroup& group : marked) {
        auto row = lvwOut.Find(TextView(group.key));
        if (!row) continue;
        row->SetSelected(group.isSelected);
        row->SetChecked(group.isChecked);
    }
}

}  // namespace swiftroll::modCalcOut

#include "list/calc_output.h"

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
constexpr std::size_t kTextColumns = 9;
constexpr std::size_t kYearColumns = 8;
constexpr TextView kTextKeys[kTextColumns] = {"ID",         "LastName",  "FirstName", "Place",   "BirthPlace",
                                              "DeathPlace", "MarrPlace", "Sex",       "IslandNr"};
// Smallest and largest years in turn.
constexpr TextView kYearKeys[kYearColumns] = {"DateMin",  "DateMax",  "BirthMin", "BirthMax",
                                              "DeathMin", "DeathMax", "MarrMin",  "MarrMax"};

bool IsSmallest(std::size_t yearColumn) { return yearColumn % 2 == 0; }

/// A column of the list: where its value comes from and where it goes.
struct ColumnPair {
    std::int16_t in;
    std::int16_t out;
    bool isShown;  // it stands before `Number`
};

/// Fills `lvwOut` from the rows of `lvwIn`, which come in group-key order.
class GroupWriter {
  public:
    explicit GroupWriter(Application& app) : app_(app), number_(app.lvwOut.FindColumn("Number")->Index) {
        for (std::size_t i = 0; i < kTextColumns; ++i) texts_[i] = PairOf(kTextKeys[i]);
        for (std::size_t i = 0; i < kYearColumns; ++i) years_[i] = PairOf(kYearKeys[i]);
    }

    void Add(const Row& row, const Text& sCurKey) {
        if (sCurKey == sPrevKey_) {
            for (std::size_t i = 0; i < kYearColumns; ++i) Widen(i, Year(row, i));
            ++lGroupCount_;
            return;
        }
        Finish();
        sPrevKey_ = sCurKey;
        lGroupCount_ = 1;
        for (std::size_t i = 0; i < kTextColumns; ++i) fields_[i] = row.Cell(texts_[i].in);
        for (std::size_t i = 0; i < kYearColumns; ++i) aggregates_[i] = Year(row, i);
    }

    /// Writes the group that is being filled, if there is one.
    void Finish() {
        if (lGroupCount_ == 0) return;
        Row row = app_.lvwOut.Add(std::nullopt, TextView(sPrevKey_), TextView());
        for (std::size_t i = 0; i < kTextColumns; ++i) {
            if (texts_[i].isShown) row.SetCell(texts_[i].out, app_.lvwOut.Store().Intern(fields_[i]));
            Grow(texts_[i].out, fields_[i].size());
        }
        for (std::size_t i = 0; i < kYearColumns; ++i) {
            const bool known = aggregates_[i] != (IsSmallest(i) ? kNoMin : kNoMax);
            if (years_[i].isShown && known) {
                row.SetCell(years_[i].out, app_.lvwOut.Store().Intern(Decimal(aggregates_[i])));
            }
        }
        const Text count = AlignRight(Decimal(lGroupCount_), kNumberWidth);
        row.SetCell(number_, app_.lvwOut.Store().Intern(count));
        Grow(number_, count.size());
    }

    void SetYearWidths() {
        for (const ColumnPair& year : years_) app_.lMaxLenOut[year.out] = kYearWidth;
    }

  private:
    ColumnPair PairOf(TextView key) const {
        return {app_.lvwIn.FindColumn(key)->Index, app_.lvwOut.FindColumn(key)->Index,
                app_.positions.OutPosition(key) < app_.positions.iPosNumber};
    }
    std::int32_t Year(const Row& row, std::size_t i) const {
        const TextView cell = row.Cell(years_[i].in);
        return cell.empty() ? (IsSmallest(i) ? kNoMin : kNoMax) : ToLong(cell);
    }
    void Widen(std::size_t i, std::int32_t year) {
        std::int32_t& aggregate = aggregates_[i];
        aggregate = IsSmallest(i) ? std::min(aggregate, year) : std::max(aggregate, year);
    }
    void Grow(std::int16_t column, std::size_t length) {
        std::int32_t& width = app_.lMaxLenOut[column];
        width = std::max(width, static_cast<std::int32_t>(length));
    }

    Application& app_;
    std::int16_t number_;
    std::array<ColumnPair, kTextColumns> texts_{};
    std::array<ColumnPair, kYearColumns> years_{};
    Text sPrevKey_ = "\r\n";  // no key is this text
    std::int32_t lGroupCount_ = 0;
    std::array<TextView, kTextColumns> fields_{};  // of the group's first row
    std::array<std::int32_t, kYearColumns> aggregates_{};
};

void ComputeList(Application& app) {
    app.InitIndexes();
    app.pnlMessage.Set("Comptage..."_t);
    app.bWaitCursor = true;
    Column& number = *app.lvwOut.FindColumn("Number");
    app.lMaxLenOut = Widths();
    app.lMaxLenOut[number.Index] = static_cast<std::int32_t>(number.Caption.size());
    SortTable(app, SortMode::GroupKey, app.lvwIn, app.lvwIn.ColumnAt(1));
    app.lvwOut.Clear();
    app.lvwOut.SetSorted(false);
    GroupWriter groups(app);
    const std::int32_t count = app.lvwIn.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const Row row = app.lvwIn.Item(i);
        app.ProgressBar1.Show(i, count);
        groups.Add(row, MakeSortKeyIn(app.positions, row));
    }
    groups.Finish();
    groups.SetYearWidths();
    app.pnlMessage.Set("");
}

}  // namespace

void CalcOuptut(Application& app) {
    if (app.lvwIn.Count() > 0) {
        app.trail.Guard(
            "CalcOuptut", [&] { ComputeList(app); }, [] { return Text(); });
    }
    app.bWaitCursor = false;
}

}  // namespace swiftroll::modCalcOut

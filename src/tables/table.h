#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "tables/block_vector.h"
#include "tables/cell_blocks.h"
#include "tables/column.h"
#include "tables/key_index.h"
#include "tables/mark_snapshot.h"
#include "tables/pause.h"
#include "tables/prefetch.h"
#include "tables/text_store.h"
#include "text/failure.h"

namespace swiftroll {

class RowView;
class Row;

/// How a row or a cell is shown, and the text attached to a cell. Few have one, so it stands aside.
struct CellLook {
    Text Tag;
    Text ToolTipText;
    Text Icon;
    std::uint32_t ForeColor = 0;
    bool Bold = false;
    friend bool operator==(const CellLook&, const CellLook&) = default;
};

/// Gives the tables of one group a common text store for as long as any of them has rows, so that a cell can
/// be copied from one to the other as a reference. When all of them are emptied, the texts are freed.
class StoreGroup {
  public:
    std::shared_ptr<TextStore> Acquire();

  private:
    std::weak_ptr<TextStore> current_;
};

/// An ordered list of rows of text cells with unique keys; the only store of genealogical data.
///
/// Rows, columns and cells are named as a user sees them: 1-based. Every access is checked and throws
/// Failure IndexOutOfRange instead of reading what is not there, since any command may change a table while
/// another one yields. A cell is four bytes that refer to the table's text store; what few cells have stands
/// aside.
class Table {
  public:
    /// `tip` tells a user what the table holds.
    Table(Text name, TextView tip, std::vector<Column> columns, std::shared_ptr<StoreGroup> group);
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    const Text& Name() const { return name_; }
    /// What the tool tip says at rest, and what it says at present.
    const Text& BaseTip() const { return baseTip_; }
    void SetBaseTip(TextView tip) { Tip = baseTip_ = tip; }
    Text Tip;
    std::int32_t Count() const { return static_cast<std::int32_t>(order_.size()); }
    std::int16_t ColumnCount() const { return columnCount_; }
    /// @throws Failure IndexOutOfRange
    Column& ColumnAt(ColumnId column);
    const Column& ColumnAt(ColumnId column) const;
    /// The column of a key, or nullptr.
    Column* FindColumn(TextView key);
    std::vector<Column>& Columns() { return columns_; }
    const std::vector<Column>& Columns() const { return columns_; }
    /// Moves a column to a 1-based position; the others close up, as when the user drags it.
    void MoveColumn(ColumnId column, std::int16_t position);

    /// Inserts a row before the row `index`, or at the end when `index` is left out. A row without a key can
    /// only be reached by its place. @throws Failure DuplicateKey, IndexOutOfRange
    Row Add(std::optional<std::int32_t> index, std::optional<RowKey> key, TextRef text);
    Row Add(std::optional<std::int32_t> index, TextView key, TextView text);
    /// A row at the end under a key that is known to be new: it is not looked up.
    Row AddNew(RowKey key, TextRef text);
    /// The row of a key; a new one at the end with `text` in its first cell when there is none.
    Row FindOrAdd(RowKey key, TextRef text);
    /// The row of a key or of a 1-based place, in constant time. @throws Failure KeyNotFound, IndexOutOfRange
    Row Item(TextView key);
    Row Item(std::int32_t index);
    RowView Item(std::int32_t index) const;
    /// Tells the machine that the cells of the row at `index` will soon be asked for: a walk through a sorted
    /// table waits for memory at every row otherwise. Any number is allowed.
    void Prefetch(std::int32_t index) const {
        if (index < 1 || index > Count()) return;
        PrefetchSlot(order_[static_cast<std::size_t>(index - 1)]);
    }
    /// The same for the row of a key.
    void Prefetch(RowKey key) const {
        if (const auto slot = index_.Find(key)) PrefetchSlot(*slot);
    }
    /// The row of a key of this table's store, where its absence is no failure.
    std::optional<Row> Find(RowKey key);
    std::optional<RowView> Find(RowKey key) const;
    std::optional<Row> Find(TextView key);
    /// The row that was added next after this one, wherever the two stand now. Only for a table from which no
    /// rows are removed but all. @throws Failure IndexOutOfRange for a row that has gone
    std::optional<Row> AddedAfter(const Row& row);
    /// Removes the row at `index`. @throws Failure IndexOutOfRange
    void Remove(std::int32_t index);
    void Clear();
    /// Number of times the table was cleared: references into `Store` from before are void.
    std::uint32_t Clearings() const { return clearings_; }

    /// The row that the user works with, if there is one and it was not removed.
    std::optional<Row> Current();
    void SetCurrent(const Row& row);
    /// Called when a row became the current one.
    std::function<void(const Row& row)> OnCurrent;
    /// Called now and then while many rows are sorted.
    Pause OnPause;
    /// Called before a row is scrolled into view: whoever hides rows shows them then.
    std::function<void(const Row& row)> OnReveal;
    /// For the presentation, which scrolls a row into view.
    std::function<void(const Row& row)> OnEnsureVisible;

    /// Writes those cells of a row that whoever fills the table leaves for the moment when they are needed.
    std::function<void(Row& row)> OnNeeded;
    /// To be called before the cells of a row are shown, or those of all rows are compared or copied.
    void Need(Row row);
    void NeedAll();

    bool Sorted() const { return sorted_; }
    ColumnId SortKey() const { return sortKey_; }
    std::int16_t SortOrder() const { return sortOrder_; }
    /// While `Sorted` is true, the rows are put in the order of the column `SortKey`, by byte values,
    /// ascending for `SortOrder` 0 and descending for 1; equal rows keep their order. Setting it to false
    /// leaves the rows where they are.
    void SetSorted(bool sorted);
    void SetSortKey(ColumnId sortKey);
    void SetSortOrder(std::int16_t sortOrder);
    /// Sets `Sorted`, `SortKey` and `SortOrder` at once, which sorts once.
    void SortBy(ColumnId sortKey, std::int16_t sortOrder);
    /// The same, and puts the rows in the order of `forms`, one
    /// comparison form a row in the present order, in place of the cells of the column.
    void SortByForms(const std::vector<TextView>& forms, ColumnId sortKey, std::int16_t sortOrder);

    /// Puts the marked rows before the others; on both sides the rows keep their order. Gives the number of
    /// marked rows.
    std::int32_t GatherMarked();
    /// Number of marked rows, without a walk.
    std::int32_t MarkedCount() const { return markedCount_; }
    /// The marks of all rows, and giving them back. Rows that came since keep theirs; when rows have gone
    /// since, nothing is given back and the answer is false.
    MarkSnapshot Marks() const;
    bool CanRestore(const MarkSnapshot& snapshot) const { return snapshot.generation_ == generation_; }
    bool RestoreMarks(const MarkSnapshot& snapshot);
    /// How the marks differ from those of a snapshot; nothing when rows have gone since.
    std::optional<MarkSnapshot::Difference> MarksSince(const MarkSnapshot& snapshot) const;

    /// They grow with every change: of the marks; of the texts of cells; of what rows there are and how they
    /// stand, where rows that are added at the end do not count.
    std::uint64_t MarkChanges() const { return markChanges_; }
    std::uint64_t CellChanges() const { return cellChanges_; }
    std::uint64_t OrderChanges() const { return orderChanges_; }

    /// The rows as they are stored, from 0, for walks to which the order of the rows does not matter. Rows
    /// that were removed leave gaps of empty cells.
    std::size_t StoredCount() const { return index_.SlotCount(); }
    std::span<const TextRef> StoredCells(std::size_t stored) const {
        return {cells_.Row(static_cast<Slot>(stored)), columns_.size()};
    }
    /// The 1-based places of those rows that have a `hit` as they are stored, ascending.
    std::vector<std::int32_t> PlacesOf(const std::vector<std::uint8_t>& hits) const;
    /// Calls `visit(place)` for every marked row, ascending.
    template <class Visitor>
    void VisitMarked(Visitor visit) const {
        if (markedCount_ == 0) return;
        for (std::size_t i = 0; i < order_.size(); ++i) {
            if (order_[i] < marks_.size() && marks_[order_[i]] != 0) visit(static_cast<std::int32_t>(i + 1));
        }
    }

    /// Shows the cells of one column in red and bold in the rows that are marked, as far as they are not
    /// empty; no column shows the rows themselves so. Nothing ends it.
    void SetPaintedColumn(std::optional<ColumnId> column) { paintedColumn_ = column; }

    /// Where the texts of the cells stand. References for `Add` and `SetCell` must come from it.
    TextStore& Store();
    /// The same of a table that has rows.
    const TextStore& Store() const { return *store_; }

  private:
    friend class RowView;
    friend class Row;
    using Slot = KeyIndex::Slot;
    static constexpr std::uint8_t kSelected = 1, kChecked = 2;

    void PrefetchSlot(Slot slot) const { PrefetchMemory(cells_.Row(slot)); }
    void WriteMarks(Slot slot, std::uint8_t marks);
    void OrderChanged();
    Slot NewSlot();
    Row Append(const std::optional<RowKey>& key, TextRef text);
    void Resort();
    std::optional<std::vector<std::uint32_t>> OrderBySymbols(std::size_t section) const;
    void Reorder(const std::vector<std::uint32_t>& permutation);
    void RefreshPlaces() const;

    Text name_;
    Text baseTip_;
    std::vector<Column> columns_;
    std::int16_t columnCount_;
    std::shared_ptr<StoreGroup> group_;
    std::shared_ptr<TextStore> store_;

    CellBlocks cells_;
    BlockVector<TextRef> tags_;        // by slot, grown when a tag is written
    BlockVector<std::uint8_t> marks_;  // by slot, grown when a row is marked
    std::int32_t markedCount_ = 0;
    std::uint64_t markChanges_ = 0, cellChanges_ = 0, orderChanges_ = 0;
    boost::unordered_flat_map<std::uint64_t, CellLook> looks_;  // by LookPlace
    KeyIndex index_;                                            // keys by slot, and slots by key
    std::vector<Slot> order_;                                   // slots in the order of the rows
    mutable std::vector<std::uint32_t> place_;  // by slot, the inverse of order_; refreshed when asked for
    mutable bool placesAreFresh_ = false;
    bool inSlotOrder_ = true;  // order_ is 0, 1, 2, ... and place_ is not needed
    std::vector<Slot> freeSlots_;
    std::uint32_t clearings_ = 0;
    Slot currentSlot_ = 0;
    std::uint32_t currentGeneration_ = 0;  // of the table when the row became the current one
    std::uint32_t generation_ = 1;         // grows when rows go, so that handles from before are refused

    bool sorted_ = false;
    ColumnId sortKey_ = ColumnId::OfSection(0);
    std::int16_t sortOrder_ = 0;
    std::optional<ColumnId> paintedColumn_;
};

/// A row of a table, to read: a handle that stays with its row through sorts and insertions. When rows were
/// removed, or the table cleared, a handle from before throws Failure IndexOutOfRange at its next use.
class RowView {
  public:
    /// 1-based place in the table at present.
    std::int32_t Index() const;
    std::string Key() const;
    std::int16_t ColumnCount() const { return table_->ColumnCount(); }
    /// The cell of the first column.
    TextView Text() const { return Cell(ColumnId::OfSection(0)); }
    /// @throws Failure IndexOutOfRange
    TextView Cell(ColumnId column) const { return table_->store_->Get(Ref(column)); }
    TextRef Ref(ColumnId column) const { return *CellAt(column); }
    /// Calls `visit(column, length)` for every cell that is not empty.
    template <class Visitor>
    void VisitLengths(Visitor visit) const {
        CheckAlive();
        const TextStore& store = *table_->store_;
        for (int section = 0; section < table_->columnCount_; ++section) {
            const TextRef ref = cells_[section];
            if (!ref.IsEmpty()) visit(ColumnId::OfSection(section), store.Get(ref).size());
        }
    }

    TextView Tag() const;

    bool Selected() const { return HasMark(Table::kSelected); }
    bool Checked() const { return HasMark(Table::kChecked); }
    /// Both marks count alike in every command.
    bool Marked() const { return HasMark(Table::kSelected | Table::kChecked); }

    /// How the cell of a column is shown; no column is the row itself. The paint of the table lies over what
    /// `SetLook` wrote.
    CellLook Look(ColumnId column = {}) const;

    friend bool operator==(const RowView& a, const RowView& b) {
        return a.table_ == b.table_ && a.slot_ == b.slot_;
    }

  protected:
    friend class Table;
    RowView(const Table& table, Table::Slot slot)
        : table_(&table), cells_(table.cells_.Row(slot)), slot_(slot), generation_(table.generation_) {}
    void CheckAlive() const {
        if (generation_ != table_->generation_) ThrowIndexOutOfRange();
    }
    const TextRef* CellAt(ColumnId column) const {
        CheckAlive();
        if (column.Index() < 1 || column.Index() > table_->columnCount_) ThrowIndexOutOfRange();
        return cells_ + column.Section();
    }
    std::uint64_t LookPlace(ColumnId column) const;

    const Table* table_;
    const TextRef* cells_;
    Table::Slot slot_;
    std::uint32_t generation_;

  private:
    bool HasMark(std::uint8_t mark) const;
    bool IsPainted(ColumnId column) const;
};

/// The same, to write too.
class Row : public RowView {
  public:
    // The cells are those of a table that was given to be written.
    void SetCell(ColumnId column, TextRef ref) {
        *const_cast<TextRef*>(CellAt(column)) = ref;
        ++Owner().cellChanges_;
    }
    void SetCell(ColumnId column, TextView text) { SetCell(column, Owner().Store().Put(text)); }
    /// Writes a cell and gives the length of its text.
    std::size_t Write(ColumnId column, TextRef ref) {
        SetCell(column, ref);
        return ref.IsEmpty() ? 0 : table_->store_->Get(ref).size();
    }
    void SetTag(TextView tag);
    /// Scrolls the row into view where there is one.
    void EnsureVisible() const;
    void SetSelected(bool on) { SetMark(Table::kSelected, on); }
    void SetChecked(bool on) { SetMark(Table::kChecked, on); }
    void SetLook(ColumnId column, const CellLook& look);

  private:
    friend class Table;
    Row(Table& table, Table::Slot slot) : RowView(table, slot) {}
    Table& Owner() const { return const_cast<Table&>(*table_); }
    void SetMark(std::uint8_t mark, bool on);
};

inline void Table::Need(Row row) {
    if (OnNeeded) OnNeeded(row);
}

inline RowView Table::Item(std::int32_t index) const {
    if (index < 1 || index > Count()) ThrowIndexOutOfRange();
    return RowView(*this, order_[static_cast<std::size_t>(index - 1)]);
}

inline Row Table::Item(std::int32_t index) {
    if (index < 1 || index > Count()) ThrowIndexOutOfRange();
    return Row(*this, order_[static_cast<std::size_t>(index - 1)]);
}

inline std::optional<RowView> Table::Find(RowKey key) const {
    const auto slot = index_.Find(key);
    if (!slot) return std::nullopt;
    return RowView(*this, *slot);
}

inline std::optional<Row> Table::Find(RowKey key) {
    const auto slot = index_.Find(key);
    if (!slot) return std::nullopt;
    return Row(*this, *slot);
}

}  // namespace swiftroll

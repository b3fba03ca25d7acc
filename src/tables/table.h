#pragma once

#include <boost/unordered/unordered_flat_map.hpp>
#include <memory>
#include <optional>
#include <vector>

#include "tables/block_vector.h"
#include "tables/column.h"
#include "tables/key_index.h"
#include "tables/text_store.h"

namespace swiftroll {

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
    Table(Text name, std::vector<Column> columns, std::shared_ptr<StoreGroup> group);
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    const Text& Name() const { return name_; }
    std::int32_t Count() const { return static_cast<std::int32_t>(order_.size()); }
    std::int16_t ColumnCount() const { return static_cast<std::int16_t>(columns_.size()); }
    /// The column of an index from 1. @throws Failure IndexOutOfRange
    Column& ColumnAt(std::int16_t index);
    const Column& ColumnAt(std::int16_t index) const;
    /// The column of a key, or nullptr.
    Column* FindColumn(TextView key);
    std::vector<Column>& Columns() { return columns_; }
    const std::vector<Column>& Columns() const { return columns_; }
    /// Moves a column to a 1-based position; the others close up, as when the user drags it.
    void MoveColumn(std::int16_t index, std::int16_t position);

    /// Inserts a row before the row `index`, or at the end when `index` is left out; an empty key is none.
    /// @throws Failure DuplicateKey, IndexOutOfRange
    Row Add(std::optional<std::int32_t> index, RowKey key, TextRef text);
    Row Add(std::optional<std::int32_t> index, TextView key, TextView text);
    /// The row of a key or of a 1-based place, in constant time. @throws Failure KeyNotFound, IndexOutOfRange
    Row Item(TextView key);
    Row Item(std::int32_t index);
    /// The row of a key of this table's store, where its absence is no failure.
    std::optional<Row> Find(RowKey key);
    std::optional<Row> Find(TextView key);
    /// Removes the row at `index`. @throws Failure IndexOutOfRange
    void Remove(std::int32_t index);
    void Clear();

    bool Sorted() const { return sorted_; }
    std::int16_t SortKey() const { return sortKey_; }
    std::int16_t SortOrder() const { return sortOrder_; }
    /// While `Sorted` is true, the rows are put in the order of the column numbered `SortKey` from 0, by byte
    /// values, ascending for `SortOrder` 0 and descending for 1; equal rows keep their order. Setting it to
    /// false leaves the rows where they are.
    void SetSorted(bool sorted);
    void SetSortKey(std::int16_t sortKey);
    void SetSortOrder(std::int16_t sortOrder);
    /// Sets `Sorted`, `SortKey` and `SortOrder` at once, which sorts once.
    void SortBy(std::int16_t sortKey, std::int16_t sortOrder);
    /// The same, and puts the rows in the order of `forms`, one
    /// comparison form a row in the present order, in place of the cells of the column.
    void SortByForms(const std::vector<TextView>& forms, std::int16_t sortKey, std::int16_t sortOrder);

    /// Where the texts of the cells stand. References for `Add` and `SetCell` must come from it.
    TextStore& Store();

  private:
    friend class Row;
    using Slot = KeyIndex::Slot;
    static constexpr std::uint8_t kSelected = 1, kChecked = 2, kFree = 4;

    Slot NewSlot(const RowKey& key);
    void Resort();
    void Reorder(const std::vector<std::uint32_t>& permutation);
    void RefreshPlaces();

    Text name_;
    std::vector<Column> columns_;
    std::shared_ptr<StoreGroup> group_;
    std::shared_ptr<TextStore> store_;

    BlockVector<TextRef> cells_;      // slot * number of columns + column
    BlockVector<RowKey> keys_;        // by slot
    BlockVector<TextRef> tags_;       // by slot, grown when a tag is written
    BlockVector<std::uint8_t> marks_; // by slot
    boost::unordered_flat_map<std::uint64_t, CellLook> looks_; // by LookPlace
    KeyIndex index_{keys_};
    std::vector<Slot> order_;         // slots in the order of the rows
    std::vector<std::uint32_t> place_; // by slot, the inverse of order_; refreshed when asked for
    bool placesAreFresh_ = false;
    std::vector<Slot> freeSlots_;

    bool sorted_ = false;
    std::int16_t sortKey_ = 0;
    std::int16_t sortOrder_ = 0;
};

/// A row of a table: a handle that stays with its row through sorts and insertions. A handle to a row that is
/// gone throws at its next use.
class Row {
  public:
    /// 1-based place in the table at present.
    std::int32_t Index() const;
    std::string Key() const;
    std::int16_t ColumnCount() const { return table_->ColumnCount(); }
    TextView Text() const { return Cell(1); }
    /// Cell of column `i` + 1. @throws Failure IndexOutOfRange
    TextView SubItems(std::int16_t i) const { return Cell(static_cast<std::int16_t>(i + 1)); }
    /// Cell by column index from 1.
    TextView Cell(std::int16_t column) const { return table_->store_->Get(Ref(column)); }
    TextRef Ref(std::int16_t column) const { return table_->cells_[Place(column)]; }
    void SetCell(std::int16_t column, TextRef ref) { table_->cells_[Place(column)] = ref; }
    void SetCell(std::int16_t column, TextView text) { SetCell(column, table_->Store().Put(text)); }
    void SetSubItems(std::int16_t i, TextRef ref) { SetCell(static_cast<std::int16_t>(i + 1), ref); }
    void SetSubItems(std::int16_t i, TextView text) { SetCell(static_cast<std::int16_t>(i + 1), text); }

    TextView Tag() const;
    void SetTag(TextView tag);

    bool Selected() const { return HasMark(Table::kSelected); }
    bool Checked() const { return HasMark(Table::kChecked); }
    /// Both marks count alike in every command.
    bool Marked() const { return HasMark(Table::kSelected | Table::kChecked); }
    void SetSelected(bool on) { SetMark(Table::kSelected, on); }
    void SetChecked(bool on) { SetMark(Table::kChecked, on); }

    /// How the cell of a column is shown; column 0 is the row itself.
    CellLook Look(std::int16_t column = 0) const;
    void SetLook(std::int16_t column, const CellLook& look);

    friend bool operator==(const Row&, const Row&) = default;

  private:
    friend class Table;
    Row(Table& table, Table::Slot slot) : table_(&table), slot_(slot) {}
    void CheckAlive() const;
    std::size_t Place(std::int16_t column) const;
    std::uint64_t LookPlace(std::int16_t column) const;
    bool HasMark(std::uint8_t mark) const;
    void SetMark(std::uint8_t mark, bool on);

    Table* table_;
    Table::Slot slot_;
};

}  // namespace swiftroll

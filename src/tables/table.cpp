#include "tables/table.h"

#include <algorithm>
#include <cassert>

#include "tables/counting_sort.h"
#include "tables/symbol_ranks.h"
#include "tables/text_sort.h"
#include "text/edit.h"
#include "text/failure.h"

namespace swiftroll {
namespace {

constexpr std::uint32_t kPaint = 255;  // red

}  // namespace

std::shared_ptr<TextStore> StoreGroup::Acquire() {
    auto store = current_.lock();
    if (!store) {
        store = std::make_shared<TextStore>();
        current_ = store;
    }
    return store;
}

Table::Table(Text name, TextView tip, std::vector<Column> columns, std::shared_ptr<StoreGroup> group)
    : Tip(tip),
      name_(std::move(name)),
      baseTip_(tip),
      columns_(std::move(columns)),
      columnCount_(static_cast<std::int16_t>(columns_.size())),
      group_(std::move(group)),
      cells_(columns_.size()) {}

Column& Table::ColumnAt(ColumnId column) {
    if (column.Index() < 1 || column.Index() > ColumnCount()) ThrowIndexOutOfRange();
    return columns_[static_cast<std::size_t>(column.Section())];
}

const Column& Table::ColumnAt(ColumnId column) const {
    if (column.Index() < 1 || column.Index() > ColumnCount()) ThrowIndexOutOfRange();
    return columns_[static_cast<std::size_t>(column.Section())];
}

Column* Table::FindColumn(TextView key) {
    const auto found =
        std::find_if(columns_.begin(), columns_.end(), [&](const Column& c) { return c.Key == key; });
    return found == columns_.end() ? nullptr : &*found;
}

void Table::MoveColumn(ColumnId column, std::int16_t position) {
    if (position < 1 || position > ColumnCount()) ThrowIndexOutOfRange();
    const std::int16_t old = ColumnAt(column).Position;
    for (Column& other : columns_) {
        if (old < other.Position && other.Position <= position) --other.Position;
        if (position <= other.Position && other.Position < old) ++other.Position;
    }
    ColumnAt(column).Position = position;
}

TextStore& Table::Store() {
    if (!store_) store_ = group_->Acquire();
    return *store_;
}

Table::Slot Table::NewSlot() {
    if (!freeSlots_.empty()) {
        const Slot slot = freeSlots_.back();
        freeSlots_.pop_back();
        ++cellChanges_;  // of a row that is stored where another one was
        return slot;
    }
    const Slot slot = index_.SlotCount();
    if (slot == 0x7FFFFFFF) throw Failure(FailureKind::Overflow);
    cells_.Grow(slot + std::size_t{1});
    index_.AddSlot();
    return slot;
}

Row Table::Append(const std::optional<RowKey>& key, TextRef text) {
    Store();
    const Slot slot = NewSlot();
    if (key) index_.Insert(slot, *key);
    inSlotOrder_ = inSlotOrder_ && slot == order_.size();
    if (placesAreFresh_) {
        place_.resize(index_.SlotCount());
        place_[slot] = static_cast<std::uint32_t>(order_.size());
    }
    order_.push_back(slot);
    const Row row(*this, slot);
    cells_.Row(slot)[0] = text;
    return row;
}

Row Table::AddNew(RowKey key, TextRef text) {
    assert(!index_.Find(key));
    return Append(key, text);
}

Row Table::FindOrAdd(RowKey key, TextRef text) {
    const auto known = index_.Find(key);
    return known ? Row(*this, *known) : Append(key, text);
}

Row Table::Add(std::optional<std::int32_t> index, std::optional<RowKey> key, TextRef text) {
    if (index && (*index < 1 || *index > Count() + 1)) ThrowIndexOutOfRange();
    if (key && index_.Find(*key)) {
        throw Failure(FailureKind::DuplicateKey, Concat({store_->Get(key->first), store_->Get(key->second)}));
    }
    const Row row = Append(key, text);
    if (index && *index < Count()) {
        std::rotate(order_.begin() + (*index - 1), order_.end() - 1, order_.end());
        OrderChanged();
    }
    return row;
}

Row Table::Add(std::optional<std::int32_t> index, TextView key, TextView text) {
    const TextRef keyRef = Store().Intern(key);
    return Add(index, RowKey(keyRef), key == text ? keyRef : Store().Put(text));
}

std::optional<Row> Table::Find(TextView key) {
    if (!store_) return std::nullopt;
    const TextRef known = store_->FindInterned(key);
    if (key.empty() || !known.IsEmpty()) {
        if (auto row = Find(RowKey(known))) return row;
    }
    // A pair is kept as its two parts, so the text may be cut at any place where both parts are known.
    for (std::size_t cut = 1; cut < key.size(); ++cut) {
        const TextRef first = store_->FindInterned(key.substr(0, cut));
        if (first.IsEmpty()) continue;
        const TextRef second = store_->FindInterned(key.substr(cut));
        if (second.IsEmpty()) continue;
        if (auto row = Find(RowKey(first, second))) return row;
    }
    return std::nullopt;
}

Row Table::Item(TextView key) {
    if (const auto row = Find(key)) return *row;
    throw Failure(FailureKind::KeyNotFound, key);
}

void Table::Remove(std::int32_t index) {
    const Row row = Item(index);
    const Slot slot = row.slot_;
    for (int section = -1; section < ColumnCount() && !looks_.empty(); ++section) {
        looks_.erase(row.LookPlace(ColumnId::OfSection(section)));
    }
    index_.Erase(slot);
    if (slot < marks_.size()) WriteMarks(slot, 0);
    std::fill_n(cells_.Row(slot), columns_.size(), TextRef());
    if (slot < tags_.size()) tags_[slot] = TextRef();
    freeSlots_.push_back(slot);
    order_.erase(order_.begin() + (index - 1));
    // Taking the last row away moves no other.
    if (index <= Count()) inSlotOrder_ = placesAreFresh_ = false;
    ++orderChanges_;
    ++generation_;
}

std::optional<Row> Table::AddedAfter(const Row& row) {
    row.CheckAlive();
    const Slot next = row.slot_ + 1;
    if (next >= index_.SlotCount()) return std::nullopt;
    return Row(*this, next);
}

void Table::Clear() {
    cells_.Clear();
    tags_.Clear();
    marks_.Clear();
    looks_.clear();
    index_.Clear();
    order_ = {};
    place_ = {};
    freeSlots_ = {};
    placesAreFresh_ = false;
    inSlotOrder_ = true;
    markedCount_ = 0;
    ++markChanges_;
    ++orderChanges_;
    ++generation_;
    ++clearings_;
    store_.reset();
}

void Table::NeedAll() {
    if (!OnNeeded) return;
    for (std::int32_t i = 1; i <= Count(); ++i) Need(Item(i));
}

std::optional<Row> Table::Current() {
    if (currentGeneration_ != generation_) return std::nullopt;
    return Row(*this, currentSlot_);
}

void Table::SetCurrent(const Row& row) {
    row.CheckAlive();
    currentSlot_ = row.slot_;
    currentGeneration_ = row.generation_;
    if (OnCurrent) OnCurrent(row);
}

void Table::SetSorted(bool sorted) {
    sorted_ = sorted;
    Resort();
}

void Table::SetSortKey(ColumnId sortKey) {
    ColumnAt(sortKey);
    sortKey_ = sortKey;
    Resort();
}

void Table::SetSortOrder(std::int16_t sortOrder) {
    sortOrder_ = sortOrder;
    Resort();
}

void Table::SortBy(ColumnId sortKey, std::int16_t sortOrder) {
    ColumnAt(sortKey);
    sorted_ = true;
    sortKey_ = sortKey;
    sortOrder_ = sortOrder;
    Resort();
}

void Table::Resort() {
    if (!sorted_ || Count() < 2) return;
    const auto section = static_cast<std::size_t>(sortKey_.Section());
    if (const auto order = OrderBySymbols(section)) return Reorder(*order);
    std::vector<TextView> texts(order_.size());
    for (std::size_t i = 0; i < order_.size(); ++i) {
        texts[i] = store_->Get(cells_.Row(order_[i])[section]);
        PauseAt(i, OnPause);
    }
    Reorder(SortedOrder(texts, sortOrder_ == 1, OnPause));
}

/// The order of the rows by a column whose texts are all interned, as identifiers are: the texts that occur
/// are sorted, each once, and the rows follow by counting. Nothing for other columns.
std::optional<std::vector<std::uint32_t>> Table::OrderBySymbols(std::size_t section) const {
    std::vector<TextRef> refs(order_.size());
    for (std::size_t i = 0; i < order_.size(); ++i) {
        refs[i] = cells_.Row(order_[i])[section];
        if (!refs[i].IsInterned()) return std::nullopt;
        PauseAt(i, OnPause);
    }
    const SymbolRanks ranks(*store_, refs, sortOrder_ == 1, OnPause);
    return CountingOrder(refs.size(), ranks.Count(), [&](std::size_t i) {
        PauseAt(i, OnPause);
        return ranks.Of(refs[i]);
    });
}

void Table::SortByForms(const std::vector<TextView>& forms, ColumnId sortKey, std::int16_t sortOrder) {
    if (forms.size() != order_.size()) throw Failure(FailureKind::InvalidArgument);
    ColumnAt(sortKey);
    sorted_ = true;
    sortKey_ = sortKey;
    sortOrder_ = sortOrder;
    Reorder(SortedOrder(forms, sortOrder == 1, OnPause));
}

void Table::Reorder(const std::vector<std::uint32_t>& permutation) {
    if (permutation.empty()) return;
    std::vector<Slot> sorted(order_.size());
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        sorted[i] = order_[permutation[i]];
        PauseAt(i, OnPause);
    }
    order_ = std::move(sorted);
    OrderChanged();
}

void Table::OrderChanged() {
    inSlotOrder_ = placesAreFresh_ = false;
    ++orderChanges_;
}

std::int32_t Table::GatherMarked() {
    const auto isMarked = [&](Slot slot) { return slot < marks_.size() && marks_[slot] != 0; };
    const auto others = std::stable_partition(order_.begin(), order_.end(), isMarked);
    OrderChanged();
    return static_cast<std::int32_t>(others - order_.begin());
}

void Table::RefreshPlaces() const {
    place_.resize(index_.SlotCount());
    for (std::size_t i = 0; i < order_.size(); ++i) place_[order_[i]] = static_cast<std::uint32_t>(i);
    placesAreFresh_ = true;
}

std::int32_t RowView::Index() const {
    CheckAlive();
    if (table_->inSlotOrder_) return static_cast<std::int32_t>(slot_ + 1);
    if (!table_->placesAreFresh_) table_->RefreshPlaces();
    return static_cast<std::int32_t>(table_->place_[slot_] + 1);
}

void Row::EnsureVisible() const {
    CheckAlive();
    if (table_->OnReveal) table_->OnReveal(*this);
    if (table_->OnEnsureVisible) table_->OnEnsureVisible(*this);
}

std::string RowView::Key() const {
    CheckAlive();
    const RowKey& key = table_->index_.KeyOf(slot_);
    return Concat({table_->store_->Get(key.first), table_->store_->Get(key.second)});
}

TextView RowView::Tag() const {
    CheckAlive();
    return slot_ < table_->tags_.size() ? table_->store_->Get(table_->tags_[slot_]) : TextView();
}

void Row::SetTag(TextView tag) {
    CheckAlive();
    Owner().tags_.Grow(slot_ + std::size_t{1});
    Owner().tags_[slot_] = Owner().Store().Put(tag);
}

bool RowView::HasMark(std::uint8_t mark) const {
    CheckAlive();
    return slot_ < table_->marks_.size() && (table_->marks_[slot_] & mark) != 0;
}

void Row::SetMark(std::uint8_t mark, bool on) {
    CheckAlive();
    const std::uint8_t old = slot_ < table_->marks_.size() ? table_->marks_[slot_] : std::uint8_t{0};
    Owner().WriteMarks(slot_, static_cast<std::uint8_t>(on ? old | mark : old & ~mark));
}

std::uint64_t RowView::LookPlace(ColumnId column) const {
    return std::uint64_t{slot_} << 16 | static_cast<std::uint16_t>(column.Index());
}

bool RowView::IsPainted(ColumnId column) const {
    return table_->paintedColumn_ == column && Marked() && (!column || !Ref(column).IsEmpty());
}

CellLook RowView::Look(ColumnId column) const {
    CheckAlive();
    const auto found = table_->looks_.find(LookPlace(column));
    CellLook look = found == table_->looks_.end() ? CellLook() : found->second;
    if (IsPainted(column)) {
        look.ForeColor = kPaint;
        look.Bold = true;
    }
    return look;
}

void Row::SetLook(ColumnId column, const CellLook& look) {
    if (column) CellAt(column);
    CheckAlive();
    if (look == CellLook()) {
        Owner().looks_.erase(LookPlace(column));
    } else {
        Owner().looks_[LookPlace(column)] = look;
    }
}

}  // namespace swiftroll

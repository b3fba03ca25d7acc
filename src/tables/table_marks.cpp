// The marks of all rows of a table together: counts, snapshots, and walks over the rows that have one.
#include <bit>

#include "tables/table.h"

namespace swiftroll {
namespace {

constexpr std::size_t kBitsAWord = 64;

std::uint64_t BitOf(std::size_t stored) { return std::uint64_t{1} << stored % kBitsAWord; }

}  // namespace

void Table::WriteMarks(Slot slot, std::uint8_t marks) {
    if (slot >= marks_.size()) {
        if (marks == 0) return;
        marks_.Grow(slot + std::size_t{1});
    }
    std::uint8_t& present = marks_[slot];
    if (present == marks) return;
    markedCount_ += (marks != 0 ? 1 : 0) - (present != 0 ? 1 : 0);
    present = marks;
    ++markChanges_;
}

MarkSnapshot Table::Marks() const {
    MarkSnapshot snapshot;
    snapshot.rows_ = StoredCount();
    snapshot.generation_ = generation_;
    snapshot.selected_.resize((snapshot.rows_ + kBitsAWord - 1) / kBitsAWord);
    snapshot.checked_.resize(snapshot.selected_.size());
    const std::size_t written = std::min(snapshot.rows_, marks_.size());
    for (std::size_t i = 0; i < written; ++i) {
        if ((marks_[i] & kSelected) != 0) snapshot.selected_[i / kBitsAWord] |= BitOf(i);
        if ((marks_[i] & kChecked) != 0) snapshot.checked_[i / kBitsAWord] |= BitOf(i);
    }
    return snapshot;
}

bool Table::RestoreMarks(const MarkSnapshot& snapshot) {
    if (!CanRestore(snapshot)) return false;
    for (std::size_t i = 0; i < snapshot.rows_; ++i) {
        const bool selected = (snapshot.selected_[i / kBitsAWord] & BitOf(i)) != 0;
        const bool checked = (snapshot.checked_[i / kBitsAWord] & BitOf(i)) != 0;
        WriteMarks(static_cast<Slot>(i),
                   static_cast<std::uint8_t>((selected ? kSelected : 0) | (checked ? kChecked : 0)));
    }
    return true;
}

std::optional<MarkSnapshot::Difference> Table::MarksSince(const MarkSnapshot& snapshot) const {
    if (!CanRestore(snapshot)) return std::nullopt;
    const MarkSnapshot present = Marks();
    MarkSnapshot::Difference difference;
    for (std::size_t i = 0; i < present.selected_.size(); ++i) {
        const bool isOld = i < snapshot.selected_.size();
        const std::uint64_t selected = isOld ? snapshot.selected_[i] : 0;
        const std::uint64_t checked = isOld ? snapshot.checked_[i] : 0;
        const std::uint64_t before = selected | checked, after = present.selected_[i] | present.checked_[i];
        difference.added += std::popcount(after & ~before);
        difference.taken += std::popcount(before & ~after);
        difference.differs =
            difference.differs || selected != present.selected_[i] || checked != present.checked_[i];
    }
    return difference;
}

std::vector<std::int32_t> Table::PlacesOf(const std::vector<std::uint8_t>& hits) const {
    std::vector<std::int32_t> places;
    for (std::size_t i = 0; i < order_.size(); ++i) {
        if (order_[i] < hits.size() && hits[order_[i]] != 0)
            places.push_back(static_cast<std::int32_t>(i + 1));
    }
    return places;
}

}  // namespace swiftroll

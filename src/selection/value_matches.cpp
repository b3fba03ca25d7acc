#include "selection/value_matches.h"

#include "tables/symbol_ranks.h"

namespace swiftroll::modSelectionIn {
namespace {

std::vector<std::uint32_t> ListsOf(const TextStore& store, const std::vector<TextRef>& values, bool inOrder) {
    std::vector<std::uint32_t> lists;
    lists.reserve(values.size());
    if (inOrder) {
        const SymbolRanks ranks(store, values, false);
        for (const TextRef value : values) lists.push_back(ranks.Of(value));
    } else {
        for (const TextRef value : values) lists.push_back(ListOf(value));
    }
    return lists;
}

std::vector<RowLists::Entry> EntriesOf(const std::vector<std::uint32_t>& lists) {
    std::vector<RowLists::Entry> entries;
    entries.reserve(lists.size());
    for (const std::uint32_t list : lists) {
        entries.push_back({list, static_cast<std::int32_t>(entries.size() + 1)});
    }
    return entries;
}

}  // namespace

ValueMatches::ValueMatches(const TextStore& store, const std::vector<TextRef>& values, Comparison comparison)
    : comparison_(comparison),
      listOfRow_(ListsOf(store, values, comparison != Comparison::Equal)),
      lists_(EntriesOf(listOfRow_)),
      to_(values.size()),
      isGiven_(comparison == Comparison::Equal ? store.InternedCount() + 1 : 0) {}

std::span<const std::int32_t> ValueMatches::NewMatches(std::int32_t row) {
    const std::uint32_t list = listOfRow_[static_cast<std::size_t>(row - 1)];
    const std::size_t begin = lists_.Begin(list), end = lists_.End(list);
    switch (comparison_) {
        case Comparison::AtMost: {
            const std::size_t from = from_;
            from_ = std::max(from_, end);
            return lists_.Between(from, end);
        }
        case Comparison::AtLeast: {
            const std::size_t to = to_;
            to_ = std::min(to_, begin);
            return lists_.Between(begin, to);
        }
        case Comparison::Equal:
            break;
    }
    if (isGiven_[list]) return {};
    isGiven_[list] = true;
    return lists_.Between(begin, end);
}

}  // namespace swiftroll::modSelectionIn

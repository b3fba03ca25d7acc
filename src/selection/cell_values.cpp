#include "selection/cell_values.h"

#include "list/sort_keys.h"
#include "selection/row_lists.h"
#include "tables/columns.h"

namespace swiftroll::modSelectionIn {
namespace {

constexpr std::size_t kPathNumberLength = 6;

}  // namespace

void CellValues::ReadColumn(const OptionRecord& options, Table& table, ColumnId column) {
    std::vector<std::optional<TextRef>> known(table.Store().InternedCount() + 1);
    const auto formOf = [&](TextView text) {
        return store.Intern(modCalcOut::KeepAlphaNum(options, text, false));
    };
    values.reserve(static_cast<std::size_t>(table.Count()));
    TextRef previous;
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        const Row row = table.Item(i);
        const TextRef ref = row.Ref(column);
        // The name of somebody stands once, and the rows of his links follow each other.
        const bool isRepeated = ref == std::exchange(previous, ref) && !values.empty();
        if (isRepeated || !ref.IsInterned()) {
            values.push_back(isRepeated ? values.back() : formOf(row.Cell(column)));
            continue;
        }
        auto& form = known[ListOf(ref)];
        if (!form) form = formOf(row.Cell(column));
        values.push_back(*form);
    }
}

void CellValues::ReadPathNumbers(Table& lvwKinship) {
    for (std::int32_t i = 1; i <= lvwKinship.Count(); ++i) {
        values.push_back(store.Intern(lvwKinship.Item(i).Cell(Kinship::SeqNr).substr(0, kPathNumberLength)));
    }
}

}  // namespace swiftroll::modSelectionIn

#pragma once

#include "app/application.h"

namespace swiftroll::modSelectionIn {

/// The texts that the value modes compare, one a row, each distinct one made and stored once.
struct CellValues {
    TextStore store;
    std::vector<TextRef> values;

    /// The cells of a column in the form that the options ask for.
    /// @throws Failure IndexOutOfRange
    void ReadColumn(const OptionRecord& options, Table& table, ColumnId column);
    /// The numbers of the paths that the rows of `lvwKinship` belong to.
    void ReadPathNumbers(Table& lvwKinship);
};

}  // namespace swiftroll::modSelectionIn

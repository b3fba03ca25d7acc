#pragma once

#include <vector>

#include "kinship/kinship_codes.h"

namespace swiftroll::modKinshipOutput {

/// What stands in a cell of the grid of a drawing.
enum class CellKind {
    Person,            // the box of the individual `id`
    UnknownPerson,     // the box of a partner who is not known
    Marriage,          // a marriage line of the family `id`, over `span` gaps
    Child1Parent,      // a vertical line between one parent and one child
    Child2Parents,     // a vertical line from a marriage line down to one child
    Children1Parent,   // a vertical stem from one parent to the bar over two siblings
    Children2Parents,  // a vertical stem from a marriage line to such a bar
    ChildLeft          // the bar over two siblings
};

/// A cell by its place: x goes along the path, y towards the descendants. Even lines hold boxes, odd ones the
/// lines between them.
struct GridCell {
    std::int32_t x = 0, y = 0;
    CellKind kind = CellKind::Person;
    std::int32_t span = 0;
    Text id{};
};

/// One path as cells of a grid, in the order of the lines and of the cells in a line.
struct KinshipGrid {
    std::int32_t lMinX = 0, lMaxX = 0, lMinY = 0, lMaxY = 0;
    std::vector<GridCell> asGrid;
};

/// The grid of the path in `lvwKinship`, which stands in the order of `SeqNr`, from the row `lRow` on; its
/// first person stands at (0, 0). `bSpouses` draws couples whole. After a failure, which is reported, what
/// was made so far.
KinshipGrid MakeKinshipTable(TableSet& tables, Trail& trail, std::int32_t lRow, bool bSpouses);
/// The same where the rows of the path are found otherwise, in whatever order the table stands.
KinshipGrid MakeKinshipTable(TableSet& tables, Trail& trail, const modKinship::PathRows& rowAt,
                             std::int32_t lRow, bool bSpouses);

}  // namespace swiftroll::modKinshipOutput

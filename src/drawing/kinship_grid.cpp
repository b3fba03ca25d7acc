#include "drawing/kinship_grid.h"

#include <algorithm>

#include "tables/columns.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modKinshipOutput {
namespace {

/// Walks over the codes of a path and writes cells relative to where it stands.
class GridWalk {
  public:
    GridWalk(TableSet& tables, Trail& trail, const modKinship::PathRows& rowAt, KinshipGrid& grid)
        : tables_(tables), trail_(trail), rowAt_(rowAt), grid_(grid) {}

    void Run(const modKinship::KinshipCodes& codes, bool bSpouses) {
        Put(0, 0, Person(IdAt(codes.lFirst)));
        for (std::int32_t row = codes.lFirst; row < codes.lLast; ++row) {
            row_ = row;
            if (bSpouses) {
                StepWithSpouses(codes.Of(row));
            } else {
                Step(codes.Of(row));
            }
            WidenTo(lX_, lY_);
        }
    }

  private:
    void Step(TextView code) {
        if (code == "P") {
            Put(0, 1, {.kind = CellKind::Child1Parent});
            Put(0, 2, Next());
            Move(0, 2);
        } else if (code == "p") {
            Put(1, 2, Next());
            Move(1, 2);
        } else if (code == "E") {
            Put(0, -1, {.kind = CellKind::Child1Parent});
            Put(0, -2, Next());
            Move(0, -2);
        } else if (code == "e") {
            Put(0, -1, {.kind = CellKind::ChildLeft});
            Put(1, -1, {.kind = CellKind::Children1Parent});
            Put(1, -2, Next());
            Move(1, -2);
        } else if (code == "C1") {
            Put(1, 0, Marriage(1));
            Put(2, 0, Next());
            Move(2, 0);
        }
    }

    void StepWithSpouses(TextView code) {
        if (code == "P") {
            Put(1, 0, Marriage(1));
            Put(2, 0, PartnerOf(row_));
            Put(1, 1, {.kind = CellKind::Child2Parents});
            Put(1, 2, Next());
            grid_.lMaxX = std::max(grid_.lMaxX, lX_ + 2);
            Move(1, 2);
        } else if (code == "p") {
            Put(0, 2, Next());
            Move(0, 2);
        } else if (code == "E") {
            Put(-1, -2, PartnerOf(row_ + 1));
            Put(0, -2, Marriage(1));
            Put(0, -1, {.kind = CellKind::Child2Parents});
            Put(1, -2, Next());
            grid_.lMinX = std::min(grid_.lMinX, lX_ - 1);
            Move(1, -2);
        } else if (code == "e") {
            Put(0, -2, PartnerOf(row_ + 1));
            Put(1, -2, Marriage(1));
            Put(2, -2, Next());
            Put(0, -1, {.kind = CellKind::ChildLeft});
            Put(1, -1, {.kind = CellKind::Children2Parents});
            Move(2, -2);
        } else if (code.starts_with('C')) {
            const std::int32_t span = ToLong(code.substr(1));
            Put(1, 0, Marriage(span));
            Put(span + 1, 0, PartnerOf(row_));
            Move(span + 1, 0);
        }
    }

    Text IdAt(std::int32_t row) const { return Text(rowAt_(row).Cell(Kinship::IDIndi)); }
    Text FamilyOfRow() const { return Text(rowAt_(row_).Cell(Kinship::IDFamily)); }
    static GridCell Person(Text id) { return {.kind = CellKind::Person, .id = std::move(id)}; }
    GridCell Next() const { return Person(IdAt(row_ + 1)); }
    GridCell Marriage(std::int32_t span) const {
        return {.kind = CellKind::Marriage, .span = span, .id = FamilyOfRow()};
    }
    GridCell PartnerOf(std::int32_t row) const {
        Text id = modKinship::GetSpouseID(tables_, trail_, IdAt(row), FamilyOfRow());
        if (id == modKinship::kUnknownID) return {.kind = CellKind::UnknownPerson};
        return Person(std::move(id));
    }

    void Put(std::int32_t x, std::int32_t y, GridCell cell) {
        cell.x = lX_ + x;
        cell.y = lY_ + y;
        grid_.asGrid.push_back(std::move(cell));
    }
    void Move(std::int32_t x, std::int32_t y) {
        lX_ += x;
        lY_ += y;
    }
    void WidenTo(std::int32_t x, std::int32_t y) {
        grid_.lMinX = std::min(grid_.lMinX, x);
        grid_.lMaxX = std::max(grid_.lMaxX, x);
        grid_.lMinY = std::min(grid_.lMinY, y);
        grid_.lMaxY = std::max(grid_.lMaxY, y);
    }

    TableSet& tables_;
    Trail& trail_;
    const modKinship::PathRows& rowAt_;
    KinshipGrid& grid_;
    std::int32_t row_ = 0;
    std::int32_t lX_ = 0, lY_ = 0;
};

/// Puts the cells in order. What was written last to a place replaces what stood there; a person without an
/// identifier, which only a reported failure leaves, is an empty cell.
void SortCells(std::vector<GridCell>& cells) {
    std::stable_sort(cells.begin(), cells.end(),
                     [](const GridCell& a, const GridCell& b) { return a.y != b.y ? a.y < b.y : a.x < b.x; });
    const auto isReplaced = [&](const GridCell& cell) {
        const GridCell* const next = &cell + 1;
        return next != cells.data() + cells.size() && next->x == cell.x && next->y == cell.y;
    };
    std::vector<GridCell> kept;
    kept.reserve(cells.size());
    for (GridCell& cell : cells) {
        if (isReplaced(cell) || (cell.kind == CellKind::Person && cell.id.empty())) continue;
        kept.push_back(std::move(cell));
    }
    cells = std::move(kept);
}

}  // namespace

KinshipGrid MakeKinshipTable(TableSet& tables, Trail& trail, std::int32_t lRow, bool bSpouses) {
    return MakeKinshipTable(
        tables, trail, [&](std::int32_t row) { return tables.lvwKinship.Item(row); }, lRow, bSpouses);
}

KinshipGrid MakeKinshipTable(TableSet& tables, Trail& trail, const modKinship::PathRows& rowAt,
                             std::int32_t lRow, bool bSpouses) {
    KinshipGrid grid;
    trail.Guard(
        "MakeKinshipTable",
        [&] {
            GridWalk(tables, trail, rowAt, grid)
                .Run(modKinship::MakeKinshipCodes(rowAt, lRow, bSpouses), bSpouses);
        },
        [&] {
            return Concat({Decimal(lRow), "/", bSpouses ? "True" : "False"});
        });
    SortCells(grid.asGrid);
    return grid;
}

}  // namespace swiftroll::modKinshipOutput

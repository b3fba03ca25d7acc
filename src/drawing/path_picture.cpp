#include "drawing/path_picture.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "drawing/cell_painter.h"
#include "drawing/tagged_text.h"
#include "kinship/relations.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinshipOutput {
namespace {

constexpr std::size_t kLineDigits = 6;

Text KeyOf(TextView sPathNumber, std::int32_t lLine) {
    return Concat({sPathNumber, "-", Decimal(lLine, kLineDigits)});
}

bool Overlap(const CellRectangle& a, const CellRectangle& b) {
    return a.left <= b.left + b.width && b.left <= a.left + a.width && a.top <= b.top + b.height &&
           b.top <= a.top + a.height;
}

bool IsBox(const GridCell& cell) {
    return cell.kind == CellKind::Person || cell.kind == CellKind::UnknownPerson;
}

}  // namespace

bool PathPicture::Follow(TextView sPathNumber, bool bSpouses) {
    Basis basis = BasisOf(sPathNumber, bSpouses);
    if (basis == basis_) return false;
    basis_ = std::move(basis);
    cells_.clear();
    boxes_.clear();
    width_ = height_ = 0;
    try {
        Build(RowsOfPath());
    } catch (const std::exception&) {
        // Sizes that no page can have: the command that writes the drawing tells them.
        cells_.clear();
        boxes_.clear();
    }
    return true;
}

PathPicture::Basis PathPicture::BasisOf(TextView sPathNumber, bool bSpouses) const {
    Basis basis{Text(sPathNumber), bSpouses, source_.tables.lvwKinship.Clearings(),
                source_.tables.lvwIn.Clearings(), std::nullopt};
    if (sPathNumber.empty()) return basis;
    try {
        basis.sizes.emplace(source_.options);
        // What the drawing command proposes where they differ.
        if (bSpouses) basis.sizes->lGapX = basis.sizes->lBoxX;
    } catch (const Failure&) {
        basis.sizes.reset();
    }
    return basis;
}

/// The rows of the path, if it, and all that it names, stands in the tables: a failed search may leave a part
/// of one.
std::vector<Row> PathPicture::RowsOfPath() const {
    std::vector<Row> rows;
    if (!basis_.sizes) return rows;
    for (std::int32_t line = 1;; ++line) {
        const auto row = source_.tables.lvwKinship.Find(TextView(KeyOf(basis_.sPathNumber, line)));
        if (!row || !source_.tables.lvwIn.Find(row->Cell(Kinship::IDIndi))) return {};
        rows.push_back(*row);
        if (modKinship::RelationOf(row->Cell(Kinship::Type)) == modKinship::Relation::Other) return rows;
        if (!source_.tables.lvwFamily.Find(row->Cell(Kinship::IDFamily))) return {};
    }
}

void PathPicture::Build(const std::vector<Row>& rows) {
    if (rows.empty()) return;
    const auto rowAt = [&](std::int32_t line) { return rows.at(static_cast<std::size_t>(line - 1)); };
    KinshipGrid grid = MakeKinshipTable(source_.tables, source_.feedback.trail, rowAt, 1, basis_.bSpouses);
    cells_.reserve(grid.asGrid.size());
    std::int64_t top = std::numeric_limits<std::int64_t>::max(), left = top;
    for (GridCell& cell : grid.asGrid) {
        const CellRectangle place = RectangleOf(cell, grid, *basis_.sizes);
        top = std::min(top, place.top);
        left = std::min(left, place.left);
        if (IsBox(cell)) boxes_.push_back(cells_.size());
        cells_.push_back({std::move(cell), place});
    }
    for (PlacedCell& cell : cells_) {
        cell.place.top -= top;
        cell.place.left -= left;
        width_ = std::max(width_, cell.place.left + cell.place.width);
        height_ = std::max(height_, cell.place.top + cell.place.height);
    }
}

Text PathPicture::NameOf(int box) const {
    const GridCell& cell = CellOf(box).cell;
    if (cell.kind == CellKind::UnknownPerson || !IsKnown(cell)) return Text("Conjoint inconnu"_t);
    const CellTexts texts(source_, CellFont());
    const Text text = ReplaceAll(ReplaceAll(texts.TextOf(cell), kIdBegins, "<br>"), kIdEnds, "");
    Text name;
    for (const modPreview::TextPiece& piece : modPreview::SplitTags(text)) {
        if (!name.empty()) name += ", ";
        name += piece.text;
    }
    return name;
}

int PathPicture::BoxOf(TextView sID) const {
    for (int box = 0; box < BoxCount(); ++box) {
        if (IndividualIn(box) == sID) return box;
    }
    return -1;
}

int PathPicture::BoxAt(double x, double y) const {
    const auto column = static_cast<std::int64_t>(x), row = static_cast<std::int64_t>(y);
    for (int box = 0; box < BoxCount(); ++box) {
        if (Overlap(PlaceOf(box), {row, column, 0, 0})) return box;
    }
    return -1;
}

int PathPicture::Neighbour(int box, int dx, int dy) const {
    const CellRectangle& from = PlaceOf(box);
    int nearest = -1;
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    for (int other = 0; other < BoxCount(); ++other) {
        const std::int64_t x = PlaceOf(other).left - from.left, y = PlaceOf(other).top - from.top;
        const std::int64_t ahead = x * dx + y * dy, aside = std::abs(x * dy) + std::abs(y * dx);
        // A box at a steeper angle lies in the other direction.
        if (ahead <= 0 || aside > 4 * ahead) continue;
        const std::int64_t distance = ahead + 2 * aside;
        if (distance >= least) continue;
        least = distance;
        nearest = other;
    }
    return nearest;
}

/// Whether what a cell names still stands in the tables.
bool PathPicture::IsKnown(const GridCell& cell) const {
    const TextView id = cell.id;
    if (cell.kind == CellKind::Person) return source_.tables.lvwIn.Find(id).has_value();
    return cell.kind != CellKind::Marriage || source_.tables.lvwFamily.Find(id).has_value();
}

void PathPicture::Draw(DrawingSurface& surface, const CellRectangle& area, PictureDetail detail) const {
    const CellFont font = ParseCellFont(source_.options.txtFont.Get()).value_or(CellFont());
    const CellTexts texts(source_, font);
    const modPrint::CellPainter painter(source_.options, font);
    for (const PlacedCell& cell : cells_) {
        if (!Overlap(cell.place, area)) continue;
        const TextView sClass = texts.ClassOf(cell.cell);
        if (detail == PictureDetail::Grounds) {
            if (IsBox(cell.cell)) painter.DrawGround(surface, sClass, cell.place);
            continue;
        }
        const bool hasText = detail == PictureDetail::Texts && IsKnown(cell.cell);
        painter.Draw(surface, sClass, hasText ? texts.TextOf(cell.cell) : Text(), cell.place,
                     basis_.sizes->bLandscape);
    }
}

}  // namespace swiftroll::modKinshipOutput

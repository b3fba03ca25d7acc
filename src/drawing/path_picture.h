#pragma once

#include "app/drawing_device.h"
#include "drawing/cell_shape.h"
#include "drawing/cell_texts.h"

namespace swiftroll::modKinshipOutput {

/// How much of a picture is drawn: all, boxes and lines alone, or the grounds of the boxes, where nothing
/// else could be told apart.
enum class PictureDetail { Texts, Lines, Grounds };

/// The picture of one path for a window: the boxes and lines of its drawing, whose texts and colours are made
/// only for what is drawn. Places are in pixels of the page, from the corner of the drawing.
class PathPicture {
  public:
    explicit PathPicture(const DrawingSource& source) : source_(source) {}

    /// Takes the path of this number, the first part of `SeqNr`, with whole couples or not; an empty number
    /// takes none. True when the picture is another one than before. A path that cannot be drawn leaves an
    /// empty picture and shows nothing.
    bool Follow(TextView sPathNumber, bool bSpouses);

    bool IsEmpty() const { return cells_.empty(); }
    std::int64_t Width() const { return width_; }
    std::int64_t Height() const { return height_; }

    /// Boxes count from 0, those of the ancestors first.
    int BoxCount() const { return static_cast<int>(boxes_.size()); }
    const CellRectangle& PlaceOf(int box) const { return CellOf(box).place; }
    /// The individual in a box; an empty text for a partner who is not known.
    const Text& IndividualIn(int box) const { return CellOf(box).cell.id; }
    /// What stands in a box, as one line.
    Text NameOf(int box) const;
    /// The first box of an individual, or -1.
    int BoxOf(TextView sID) const;
    /// The box at a point, or -1.
    int BoxAt(double x, double y) const;
    /// The nearest box in a direction, of which one part is 0 and the other 1 or -1; or -1.
    int Neighbour(int box, int dx, int dy) const;

    /// Draws what lies in `area`.
    void Draw(DrawingSurface& surface, const CellRectangle& area, PictureDetail detail) const;

  private:
    struct PlacedCell {
        GridCell cell;
        CellRectangle place;
    };
    /// What a picture was made of.
    struct Basis {
        Text sPathNumber;
        bool bSpouses = false;
        std::uint32_t lKinship = 0, lIn = 0;  // clearings of the tables
        std::optional<CellSizes> sizes;
        friend bool operator==(const Basis&, const Basis&) = default;
    };
    Basis BasisOf(TextView sPathNumber, bool bSpouses) const;
    std::vector<Row> RowsOfPath() const;
    void Build(const std::vector<Row>& rows);
    bool IsKnown(const GridCell& cell) const;
    const PlacedCell& CellOf(int box) const { return cells_[boxes_[static_cast<std::size_t>(box)]]; }

    DrawingSource source_;
    Basis basis_;
    std::vector<PlacedCell> cells_;
    std::vector<std::size_t> boxes_;  // those of the cells that are boxes
    std::int64_t width_ = 0, height_ = 0;
};

}  // namespace swiftroll::modKinshipOutput

// Where the people and lines of a path stand in the grid, and on the page.
#include "drawing/cell_shape.h"
#include "kinship/kinship_fixture.h"

namespace swiftroll::test {
namespace {

using modKinshipOutput::CellKind;
using modKinshipOutput::GridCell;
using modKinshipOutput::KinshipGrid;

/// A cell as text: its place and what stands there.
Text Described(const GridCell& cell) {
    const TextView names[] = {
        "",         "?", "x", "1Child1Parent", "1Child2Parents", "2Children1Parent", "2Children2Parents",
        "ChildLeft"};
    return Concat({Decimal(cell.x), ",", Decimal(cell.y), " ", names[static_cast<std::size_t>(cell.kind)],
                   cell.kind == CellKind::Marriage ? Decimal(cell.span) : Text(), cell.id});
}

/// The cells of the paths from a row on.
std::vector<Text> CellsOf(AfterRead& t, std::int32_t row, bool spouses) {
    std::vector<Text> cells;
    for (const GridCell& cell : modKinshipOutput::MakeKinshipTable(t.main, t.main.trail, row, spouses).asGrid)
        cells.push_back(Described(cell));
    return cells;
}

/// Three generations: the grandparents' children Dad and Aunt; Dad's child Kid, Aunt's child Cousin, and the
/// Cousin's wife with her father.
struct Family : AfterRead {
    Family()
        : AfterRead({"Opa m", "Oma f", "Dad m", "Aunt f", "Mom f", "Kid m", "Uncle m", "Cousin m", "Wife f",
                     "Pop m"},
                    {"Opa Oma Dad Aunt", "Dad Mom Kid", "Uncle Aunt Cousin", "Cousin Wife", "Pop - Wife"}) {
        Find("Kid", "Pop");
        main.lvwKinship.SortBy(Kinship::SeqNr, 0);
    }
    KinshipGrid Grid(std::int32_t row, bool spouses) {
        return modKinshipOutput::MakeKinshipTable(main, main.trail, row, spouses);
    }
};

TEST(KinshipGrid, PutsThePeopleOfThePathAlone) {
    Family t;
    EXPECT_EQ(
        t.Paths(),
        Rows({"000001 Kid Fils Dad Fils Opa Père Aunt Mère Cousin Epoux Wife Fille Pop (001, 0007)"_t}));
    EXPECT_EQ(CellsOf(t, 1, false),
              Rows({"1,-4 @Opa@", "0,-3 ChildLeft", "1,-3 2Children1Parent", "0,-2 @Dad@", "2,-2 @Aunt@",
                    "4,-2 @Pop@", "0,-1 1Child1Parent", "2,-1 1Child1Parent", "4,-1 1Child1Parent",
                    "0,0 @Kid@", "2,0 @Cousin@", "3,0 x1@F4@", "4,0 @Wife@"}));
    const KinshipGrid grid = t.Grid(1, false);
    EXPECT_EQ(grid.lMinX, 0);
    EXPECT_EQ(grid.lMaxX, 4);
    EXPECT_EQ(grid.lMinY, -4);
    EXPECT_EQ(grid.lMaxY, 0);
    // From the middle of the path on.
    EXPECT_EQ(CellsOf(t, 5, false),
              Rows({"2,-2 @Pop@", "2,-1 1Child1Parent", "0,0 @Cousin@", "1,0 x1@F4@", "2,0 @Wife@"}));
}

TEST(KinshipGrid, PutsCouplesWhole) {
    Family t;
    EXPECT_EQ(CellsOf(t, 1, true), Rows({"1,-4 @Oma@",
                                         "2,-4 x1@F1@",
                                         "3,-4 @Opa@",
                                         "1,-3 ChildLeft",
                                         "2,-3 2Children2Parents",
                                         "-1,-2 @Mom@",
                                         "0,-2 x1@F2@",
                                         "1,-2 @Dad@",
                                         "3,-2 @Aunt@",
                                         "4,-2 x1@F3@",
                                         "5,-2 @Uncle@",
                                         "7,-2 ?",
                                         "8,-2 x1@F5@",
                                         "9,-2 @Pop@",
                                         "0,-1 1Child2Parents",
                                         "4,-1 1Child2Parents",
                                         "8,-1 1Child2Parents",
                                         "0,0 @Kid@",
                                         "4,0 @Cousin@",
                                         "5,0 x3@F4@",
                                         "8,0 @Wife@"}));
    const KinshipGrid grid = t.Grid(1, true);
    EXPECT_EQ(grid.lMinX, -1);
    EXPECT_EQ(grid.lMaxX, 9);
    EXPECT_EQ(t.main.trail.Reports(), 0);
}

TEST(KinshipGrid, ThePartnerOfSomebodyWithoutSexIsUnknown) {
    AfterRead t({"Dad", "Mom f", "Kid m"}, {"Dad Mom Kid"});
    t.Find("Dad", "Kid");
    EXPECT_EQ(CellsOf(t, 1, true),
              Rows({"0,0 @Dad@", "1,0 x1@F1@", "2,0 ?", "1,1 1Child2Parents", "1,2 @Kid@"}));
}

TEST(KinshipGrid, APartnerWithoutRecordIsUnknownAndAMissingFamilyIsReported) {
    AfterRead t({"Dad m", "Kid m"}, {"Dad Ghost Kid"});
    t.Find("Dad", "Kid");
    EXPECT_EQ(CellsOf(t, 1, true),
              Rows({"0,0 @Dad@", "1,0 x1@F1@", "2,0 ?", "1,1 1Child2Parents", "1,2 @Kid@"}));
    EXPECT_EQ(t.main.trail.Reports(), 0);
    t.main.lvwFamily.Clear();
    EXPECT_EQ(CellsOf(t, 1, true), Rows({"0,0 @Dad@", "1,0 x1@F1@", "1,1 1Child2Parents", "1,2 @Kid@"}));
    EXPECT_EQ(t.main.trail.Reports(), 1);
}

/// The rectangle of a cell as "top,left,height,width".
Text Rectangle(frmMain& main, const KinshipGrid& grid, const GridCell& cell) {
    const auto r = RectangleOf(cell, grid, modKinshipOutput::CellSizes(main));
    return Concat({Decimal(r.top), ",", Decimal(r.left), ",", Decimal(r.height), ",", Decimal(r.width)});
}

TEST(CellShape, FollowsTheSizesInBothOrientations) {
    TestMain t;
    t.main.txtKinH.SetText("51");
    t.main.txtKinV.SetText("31");
    const KinshipGrid grid{.lMinX = -1, .lMaxX = 3, .lMinY = -2, .lMaxY = 2, .asGrid = {}};
    const struct {
        GridCell cell;
        TextView onTop, onTheLeft;
    } cases[] = {{{0, 0, CellKind::Person}, "111,150,80,150", "240,201,80,150"},
                 {{-1, -2, CellKind::UnknownPerson}, "0,0,80,150", "320,0,80,150"},
                 {{0, 0, CellKind::Marriage, 3}, "111,150,64,153", "227,201,93,120"},
                 {{1, -1, CellKind::Child1Parent}, "80,201,31,25", "274,150,15,51"},
                 {{1, -1, CellKind::Child2Parents}, "65,201,46,25", "274,121,15,80"},
                 {{1, -1, CellKind::Children1Parent}, "80,201,15,25", "274,150,15,25"},
                 {{1, -1, CellKind::Children2Parents}, "65,201,30,25", "274,121,15,54"},
                 {{1, 1, CellKind::ChildLeft}, "206,276,15,201", "138,376,111,25"}};
    for (const auto& c : cases) {
        t.main.txtKinshipLandscape.SetChecked(true);
        EXPECT_EQ(Rectangle(t.main, grid, c.cell), c.onTop) << Described(c.cell);
        t.main.txtKinshipLandscape.SetChecked(false);
        EXPECT_EQ(Rectangle(t.main, grid, c.cell), c.onTheLeft) << Described(c.cell);
    }
    const modKinshipOutput::CellSizes left(t.main);
    EXPECT_EQ(DrawingHeight(grid, left), 302);
    EXPECT_EQ(RuleWidth(grid, left), 562);
    t.main.txtKinshipLandscape.SetChecked(true);
    const modKinshipOutput::CellSizes top(t.main);
    EXPECT_EQ(DrawingHeight(grid, top), 302);
    EXPECT_EQ(RuleWidth(grid, top), 512);
    t.main.txtKinWidth.SetText("2000000000");
    EXPECT_THROW(Rectangle(t.main, grid, {3, 2, CellKind::Person}), Failure) << "beyond 32 bits";
    t.main.txtKinWidth.SetText("large");
    EXPECT_THROW(modKinshipOutput::CellSizes{t.main}, Failure);
}

}  // namespace
}  // namespace swiftroll::test

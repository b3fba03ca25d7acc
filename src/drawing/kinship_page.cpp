#include "drawing/kinship_page.h"

#include "app/french_date.h"
#include "tables/column_numbers.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinshipOutput {
namespace {

constexpr std::int64_t lPageLeft = 10;
constexpr std::size_t kBufferSize = std::size_t{1} << 16;
constexpr int kFirst = 1, kLast = 9;

constexpr TextView kBoxStyle =
    "{ border: 1pt solid black; text-align: Center; margin-top: 0pt; margin-bottom: 1pt; background-color:";

// A connector that is turned has its visible edge on another side.
constexpr TextView kLinesLandscape[] = {
    "table.SpouseLine { border: 2pt double black; text-align: Center; margin-top: 0pt; margin-bottom: 1pt; "
    "border-top: 0pt; border-left: 0pt; border-right: 0pt }",
    "table.ChildVLine { border: 1pt solid black; border-top: 0pt; border-bottom: 0pt; border-left: 0pt }",
    "table.ChildHLine { border: 1pt solid black;  border-bottom: 0pt }"};
constexpr TextView kLinesPortrait[] = {
    "table.SpouseLine { border: 2pt double black; text-align: Center; margin-top: 0pt; margin-bottom: 1pt; "
    "border-top: 0pt; border-bottom: 0pt; border-left: 0pt }",
    "table.ChildVLine { border: 1pt solid black; border-bottom: 0pt; border-left: 0pt; border-right: 0pt }",
    "table.ChildHLine { border: 1pt solid black;  border-right: 0pt }"};

}  // namespace

KinshipPage::KinshipPage(Application& app, TextView sKinshipTitle)
    : app_(app),
      sKinshipTitle_(sKinshipTitle),
      font_(ParseCellFont(app.txtFont.Get()).value_or(CellFont())),
      texts_(app, font_) {}

bool KinshipPage::DisplayHtmlKinship(int iStage, const KinshipGrid& grid) {
    const CellSizes sizes(app_);
    try {
        if (iStage == kFirst) {
            file_ = app_.ports.files.Open(app_.cboKinship.Get(), Files::Mode::Write);
            WriteHead(sizes);
        }
        if (iStage != kLast) {
            WriteDrawing(grid, sizes);
        } else {
            WriteFoot();
            Flush();
            file_->Close();
            app_.pnlMessage.Set(Concat({sKinshipTitle_, " : Terminé"_t}));
        }
    } catch (const std::exception&) {
        const Failure failure = CurrentFailure();
        app_.Box(" - Kinship", Concat({"Erreur d'écriture dans le fichier "_t, app_.cboKinship.Get(), ".",
                                       kLineEnd, failure.What(), " (", Decimal(failure.Number()), ")"}));
        file_.reset();
        return true;
    }
    return false;
}

void KinshipPage::WriteHead(const CellSizes& sizes) {
    WriteLine({"<HTML>"});
    WriteLine({"<HEAD>"});
    WriteLine({"<style type=\"text/css\">"});
    WriteLine({"<!--"});
    WriteLine({"p       { margin-top: 0; margin-bottom: 0 }"});
    WriteLine({"p.Right { text-align: right }"});
    WriteLine({"table   { position: absolute; border-spacing: 0; cellpadding: 0; cellspacing: 0; font:",
               font_.italic ? "italic " : "", ReplaceAll(font_.size, ",", "."), "pt \"", font_.name,
               "\"; color:", Long2Color(font_.colour), "}"});
    WriteLine({"table.IndivMBox  ", kBoxStyle, Long2Color(app_.cmdColorMale.Colour()), "}"});
    WriteLine({"table.IndivFBox  ", kBoxStyle, Long2Color(app_.cmdColorFemale.Colour()), "}"});
    WriteLine({"table.IndivUBox  ", kBoxStyle, Long2Color(app_.cmdColorUndefined.Colour()), "}"});
    for (const TextView line : sizes.bLandscape ? kLinesLandscape : kLinesPortrait) WriteLine({line});
    WriteLine(
        {"table.hr { border: 1pt solid red;  border-bottom: 0pt;  border-left: 0pt;  border-right: 0pt }"});
    WriteLine({"-->"});
    WriteLine({"</style>"});
    WriteLine({"<title>", sKinshipTitle_, "</title>"});
    WriteLine({"</HEAD><BODY>"});
}

void KinshipPage::WriteDrawing(const KinshipGrid& grid, const CellSizes& sizes) {
    constexpr std::int64_t kBeforeRule = 20, kBehindRule = 10;
    for (const GridCell& cell : grid.asGrid) WriteCell(cell, RectangleOf(cell, grid, sizes));
    lPageTop_ += kBeforeRule + DrawingHeight(grid, sizes);
    WriteLine({"<table class=hr style=\"top:", Decimal(lPageTop_), "; left:0; height:1; width:",
               Decimal(RuleWidth(grid, sizes)), "\"><tr><td>&nbsp;</td></tr></TABLE>"});
    lPageTop_ += kBehindRule;
}

void KinshipPage::WriteCell(const GridCell& cell, const CellRectangle& rectangle) {
    const Text text = TextOf(cell);
    WriteLine({"<table class=", ClassOf(cell), " style=\"top:", Decimal(lPageTop_ + rectangle.top),
               ";left:", Decimal(lPageLeft + rectangle.left), ";height:", Decimal(rectangle.height),
               ";width:", Decimal(rectangle.width), "\"><tr><td>",
               text.empty() ? TextView("&nbsp;") : TextView(text), "</td></tr></table>"});
}

TextView KinshipPage::ClassOf(const GridCell& cell) const {
    switch (cell.kind) {
        case CellKind::Person: {
            const auto person = app_.lvwIn.Find(TextView(cell.id));
            const TextView sex = person ? person->Cell(In::Sex) : TextView();
            return sex == "M" ? "IndivMBox" : sex == "F" ? "IndivFBox" : "IndivUBox";
        }
        case CellKind::UnknownPerson:
            return "IndivUBox";
        case CellKind::Marriage:
            return "SpouseLine";
        case CellKind::ChildLeft:
            return "ChildHLine";
        case CellKind::Child1Parent:
        case CellKind::Child2Parents:
        case CellKind::Children1Parent:
        case CellKind::Children2Parents:
            break;
    }
    return "ChildVLine";
}

Text KinshipPage::TextOf(const GridCell& cell) const {
    if (cell.kind == CellKind::Person) return texts_.IndividualInfos(cell.id);
    if (cell.kind == CellKind::UnknownPerson) return "<p>?</p>";
    if (cell.kind == CellKind::Marriage) return texts_.FamilyInfos(cell.id);
    return {};
}

void KinshipPage::WriteFoot() {
    WriteLine({"<table style=\"left:0; top:", Decimal(lPageTop_),
               "\"><tr><td><p><font size=\"1\" color=\"#000000\">", "Généré par <a href=\""_t,
               app_.sWebAddress, "\">SwiftRoll</a> (v", app_.sVersion, ") le ",
               ShortDate(app_.ports.clock.Now()), "</font></p></td></tr></table></BODY></HTML>"});
}

void KinshipPage::WriteLine(std::initializer_list<TextView> pieces) {
    for (const TextView piece : pieces) buffer_ += piece;
    buffer_ += kLineEnd;
    if (buffer_.size() >= kBufferSize) Flush();
}

void KinshipPage::Flush() {
    file_->Write(buffer_);
    buffer_.clear();
}

}  // namespace swiftroll::modKinshipOutput

#include "drawing/kinship_page.h"

#include "app/french_date.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinshipOutput {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

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

KinshipPage::KinshipPage(const DrawingSource& source, TextView sKinshipTitle, const Product& product,
                         Files& files, Clock& clock)
    : KinshipDocument(source, sKinshipTitle), product_(product), files_(files), clock_(clock) {}

void KinshipPage::Begin(const CellSizes& sizes) {
    file_ = files_.Open(source_.options.cboKinship.Get(), Files::Mode::Write);
    WriteLine({"<HTML>"});
    WriteLine({"<HEAD>"});
    WriteLine({"<style type=\"text/css\">"});
    WriteLine({"<!--"});
    WriteLine({"p       { margin-top: 0; margin-bottom: 0 }"});
    WriteLine({"p.Right { text-align: right }"});
    WriteLine({"table   { position: absolute; border-spacing: 0; cellpadding: 0; cellspacing: 0; font:",
               font_.italic ? "italic " : "", ReplaceAll(font_.size, ",", "."), "pt \"", font_.name,
               "\"; color:", Long2Color(font_.colour), "}"});
    WriteLine({"table.IndivMBox  ", kBoxStyle, Long2Color(source_.options.cmdColorMale.Colour()), "}"});
    WriteLine({"table.IndivFBox  ", kBoxStyle, Long2Color(source_.options.cmdColorFemale.Colour()), "}"});
    WriteLine({"table.IndivUBox  ", kBoxStyle, Long2Color(source_.options.cmdColorUndefined.Colour()), "}"});
    for (const TextView line : sizes.bLandscape ? kLinesLandscape : kLinesPortrait) WriteLine({line});
    WriteLine(
        {"table.hr { border: 1pt solid red;  border-bottom: 0pt;  border-left: 0pt;  border-right: 0pt }"});
    WriteLine({"-->"});
    WriteLine({"</style>"});
    WriteLine({"<title>", sKinshipTitle_, "</title>"});
    WriteLine({"</HEAD><BODY>"});
}

void KinshipPage::WriteCell(TextView sClass, TextView sText, const CellRectangle& place, const CellSizes&) {
    WriteLine({"<table class=", sClass, " style=\"top:", Decimal(place.top), ";left:", Decimal(place.left),
               ";height:", Decimal(place.height), ";width:", Decimal(place.width), "\"><tr><td>",
               sText.empty() ? TextView("&nbsp;") : sText, "</td></tr></table>"});
}

void KinshipPage::EndDrawing(std::int64_t lTop, std::int64_t lWidth, TextView) {
    WriteLine({"<table class=hr style=\"top:", Decimal(lTop), "; left:0; height:1; width:", Decimal(lWidth),
               "\"><tr><td>&nbsp;</td></tr></TABLE>"});
}

void KinshipPage::End(std::int64_t lTop) {
    WriteLine({"<table style=\"left:0; top:", Decimal(lTop),
               "\"><tr><td><p><font size=\"1\" color=\"#000000\">", "Généré par <a href=\""_t,
               product_.sWebAddress, "\">SwiftRoll</a> (v", product_.sVersion, ") le ",
               ShortDate(clock_.Now()), "</font></p></td></tr></table></BODY></HTML>"});
    Flush();
    file_->Close();
}

void KinshipPage::Fail(const Failure& failure) {
    TellWriteFailure(failure);
    file_.reset();
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

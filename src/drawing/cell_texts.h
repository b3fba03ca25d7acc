#pragma once

#include "app/cell_font.h"
#include "drawing/drawing_source.h"
#include "drawing/kinship_grid.h"
#include "gedcom/places.h"

namespace swiftroll::modKinshipOutput {

/// The text of a partner who is not known.
inline constexpr TextView kUnknownPartner = "<p>?</p>";
/// What stands around an identifier in a text.
inline constexpr TextView kIdBegins = "<p class=Right style=\"text-align: right\">", kIdEnds = "</p>";

/// What stands in the boxes and on the marriage lines of a drawing, as fragments of HTML, under the options
/// of the moment at which this was made.
class CellTexts {
  public:
    CellTexts(const DrawingSource& source, const CellFont& font);

    /// The text of the box of an individual by its key in `lvwIn`; empty after a failure, which is reported.
    /// Of somebody who is hidden as living it tells nothing else.
    Text IndividualInfos(TextView sID) const;
    /// The text of a marriage line by the key of the family in `lvwFamily`; empty when nothing is to be told,
    /// nor may be, or after a failure, which is reported.
    Text FamilyInfos(TextView sFamID) const;
    /// The class of a cell, and its text; lines have none.
    TextView ClassOf(const GridCell& cell) const;
    Text TextOf(const GridCell& cell) const;

  private:
    void AppendEvent(Text& text, TextView marker, bool withDate, TextView from, TextView to, bool withPlace,
                     TextView place) const;
    DrawingSource source_;
    CellFont font_;
    modReadGedcom::PlaceFormatter places_;
};

/// Two years as a range: one when they are the same, "?" for one that is missing.
Text TakeDateFromTo(TextView sFrom, TextView sTo);

/// A colour 0x00BBGGRR as a style sheet writes it: "#RRGGBB".
Text Long2Color(std::uint32_t lColor);

}  // namespace swiftroll::modKinshipOutput

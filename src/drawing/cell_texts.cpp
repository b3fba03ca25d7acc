#include "drawing/cell_texts.h"

#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::modKinshipOutput {
CellTexts::CellTexts(const DrawingSource& source, const CellFont& font)
    : source_(source), font_(font), places_(source.options) {}

Text CellTexts::IndividualInfos(TextView sID) const {
    return source_.feedback.trail.Guard(
        "IndividualInfos",
        [&] {
            const Row person = source_.tables.lvwIn.Item(sID);
            Text text =
                Concat({font_.bold ? "<b>" : "", font_.underline ? "<u>" : "", font_.italic ? "<i>" : ""});
            const bool isHidden = source_.living.IsLiving(person);
            if (!isHidden && source_.options.optFullName.Index() == 0)
                text += Concat({person.Cell(In::FirstName), ", "});
            text += isHidden ? Text(modPrivacy::kLivingName) : UpperCase(person.Cell(In::LastName));
            text +=
                Concat({font_.italic ? "</i>" : "", font_.underline ? "</u>" : "", font_.bold ? "</b>" : ""});
            if (isHidden) return text;
            AppendEvent(text, "<br>°"_t, source_.options.chkIndiBirthDate.Checked(),
                        person.Cell(In::BirthMin), person.Cell(In::BirthMax),
                        source_.options.chkIndiBirthPlace.Checked(), person.Cell(In::BirthPlace));
            AppendEvent(text, "<br>+", source_.options.chkIndiDeathDate.Checked(), person.Cell(In::DeathMin),
                        person.Cell(In::DeathMax), source_.options.chkIndiDeathPlace.Checked(),
                        person.Cell(In::DeathPlace));
            if (source_.options.chkIndiID.Checked()) text += Concat({kIdBegins, sID, kIdEnds});
            return text;
        },
        [&] { return Text(sID); });
}

void CellTexts::AppendEvent(Text& text, TextView marker, bool withDate, TextView from, TextView to,
                            bool withPlace, TextView place) const {
    const bool hasDate = withDate && (!from.empty() || !to.empty());
    const bool hasPlace = withPlace && !place.empty();
    if (!hasDate && !hasPlace) return;
    text += marker;
    if (withDate) text += Concat({TakeDateFromTo(from, to), " "});
    if (withPlace) text += Concat({" ", places_.Take1Place(place)});
}

Text CellTexts::FamilyInfos(TextView sFamID) const {
    return source_.feedback.trail.Guard(
        "FamilyInfos",
        [&] {
            const Row family = source_.tables.lvwFamily.Item(sFamID);
            if (source_.living.HidesFamily(family)) return Text();
            const TextView from = family.Cell(Family::MarrMin), to = family.Cell(Family::MarrMax);
            const TextView place = family.Cell(Family::MarrPlace);
            const bool withDate = source_.options.chkMarrDate.Checked(),
                       withPlace = source_.options.chkMarrPlace.Checked();
            Text text;
            if ((withDate && (!from.empty() || !to.empty())) || (withPlace && !place.empty())) {
                text = "x ";
                if (withDate && !from.empty()) text += Concat({TakeDateFromTo(from, to), " "});
                if (withPlace) text += Concat({" ", places_.Take1Place(place)});
            }
            if (source_.options.chkMarrID.Checked()) text += Concat({kIdBegins, sFamID, kIdEnds});
            return text;
        },
        [&] { return Text(sFamID); });
}

TextView CellTexts::ClassOf(const GridCell& cell) const {
    switch (cell.kind) {
        case CellKind::Person: {
            const auto person = source_.tables.lvwIn.Find(TextView(cell.id));
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

Text CellTexts::TextOf(const GridCell& cell) const {
    if (cell.kind == CellKind::Person) return IndividualInfos(cell.id);
    if (cell.kind == CellKind::UnknownPerson) return Text(kUnknownPartner);
    if (cell.kind == CellKind::Marriage) return FamilyInfos(cell.id);
    return {};
}

Text TakeDateFromTo(TextView sFrom, TextView sTo) {
    const TextView from = sFrom.empty() ? "?" : sFrom, to = sTo.empty() ? "?" : sTo;
    return from == to ? Text(from) : Concat({from, "-", to});
}

Text Long2Color(std::uint32_t lColor) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    Text colour = "#";
    for (int i = 0; i < 3; ++i, lColor >>= 8) {
        colour += kDigits[lColor >> 4 & 0xF];
        colour += kDigits[lColor & 0xF];
    }
    return colour;
}

}  // namespace swiftroll::modKinshipOutput

#include "kinship/kinship_codes.h"

#include "kinship/relations.h"
#include "tables/columns.h"
#include "text/edit.h"

namespace swiftroll::modKinship {
namespace {

/// The code of a couple with those of the rows before and after it, beside spouses: coming down from a child
/// and going up on the other side takes the most room.
TextView WidthBesideSpouses(TextView before, TextView code, TextView after) {
    const Text all = Concat({before, code, after});
    if (all == "pC1E" || all == "PC1e") return "C2";
    if (all == "pC1e") return "C1";
    if (all == "PC1E") return "C3";
    return code;
}

}  // namespace

TextView KinshipCodes::Of(std::int32_t row) const {
    if (row < lFirst || row - lFirst >= static_cast<std::int32_t>(asCode.size())) return {};
    return asCode[static_cast<std::size_t>(row - lFirst)];
}

KinshipCodes MakeKinshipCodes(const PathRows& rowAt, std::int32_t lRow, bool bSpouses) {
    KinshipCodes codes;
    codes.lFirst = lRow;
    std::vector<TextView>& asCode = codes.asCode;
    const auto typeAt = [&](std::int32_t row) { return RelationOf(rowAt(row).Cell(Kinship::Type)); };
    const auto familyAt = [&](std::int32_t row) { return rowAt(row).Cell(Kinship::IDFamily); };
    std::int32_t i = codes.lFirst;
    for (Relation type = typeAt(i); type != Relation::Other; type = typeAt(i)) {
        const bool turns = type == Relation::Child && typeAt(i + 1) == Relation::Parent;
        if (type == Relation::Spouse) asCode.push_back("C1");
        if (type == Relation::Parent) asCode.push_back("P");
        if (type == Relation::Child && !turns) asCode.push_back("E");
        if (turns) {
            const bool sameCouple = familyAt(i) == familyAt(i + 1);
            asCode.insert(asCode.end(), {sameCouple ? "e" : "E", sameCouple ? "p" : "P"});
        }
        i += turns ? 2 : 1;
    }
    asCode.emplace_back();
    codes.lLast = i;
    for (std::int32_t j = codes.lFirst; bSpouses && j <= codes.lLast; ++j) {
        asCode[static_cast<std::size_t>(j - codes.lFirst)] =
            WidthBesideSpouses(codes.Of(j - 1), codes.Of(j), codes.Of(j + 1));
    }
    return codes;
}

KinshipCodes MakeKinshipCodes(Table& lvwKinship, std::int32_t lRow, bool bSpouses) {
    return MakeKinshipCodes([&](std::int32_t row) { return lvwKinship.Item(row); }, lRow, bSpouses);
}

Text GetSpouseID(TableSet& tables, Trail& trail, TextView sIndiID, TextView sFamID) {
    return trail.Guard(
        "GetSpouseID",
        [&]() -> Text {
            const Row family = tables.lvwFamily.Item(sFamID), person = tables.lvwIn.Item(sIndiID);
            const TextView sex = person.Cell(In::Sex);
            TextView spouse;
            if (sex == "M") spouse = family.Cell(Family::IDWife);
            if (sex == "F") spouse = family.Cell(Family::IDHusb);
            return Text(tables.lvwIn.Find(spouse) ? spouse : kUnknownID);
        },
        [&] {
            return Concat({sIndiID, "/", sFamID});
        });
}

}  // namespace swiftroll::modKinship

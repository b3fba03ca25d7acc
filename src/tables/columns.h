#pragma once

#include <algorithm>
#include <array>
#include <span>

#include "tables/column_id.h"
#include "text/literal.h"

namespace swiftroll {

enum class Alignment { Left, Right, Centre };

/// What the cells of a column hold, which decides how they are sorted and grouped. Numbers with leading zeros
/// are words: they sort as such.
enum class CellKind { Words, Identifier, SmallestYear, LargestYear, Number };

/// Whom a cell speaks of.
enum class Subject { Nothing, Individual, Family, Group };

/// What a click on a cell means.
struct CellMeaning {
    Subject subject = Subject::Nothing;
    /// The columns with the identifiers of the individual and of the family that go with the cell.
    ColumnId individual = {}, family = {};
    /// Whether the cell names the subject, so that a double click goes there.
    bool namesIt = false;

    /// The same for a cell that names the subject.
    constexpr CellMeaning Named() const { return {subject, individual, family, true}; }
};

/// First width of a column in hundredths of a millimetre: one inch, or what shows most texts of a kind whole.
inline constexpr std::int32_t kColumnWidth = 2540, kNameWidth = 3200, kSequenceWidth = 3700,
                              kPlaceWidth = 4200, kPersonWidth = 4200, kFamilyWidth = 6400,
                              kRelationWidth = 6400;

/// All that is known of a column of a table.
struct ColumnFacts {
    ColumnId id;
    TextView key;
    TextView caption;
    CellKind kind = CellKind::Words;
    CellMeaning meaning = {};
    std::int32_t width = kColumnWidth;
    Alignment align = Alignment::Left;
    /// Whether the column of `lvwOut` is part of the key of its groups when it stands before `Number`;
    /// `lvwIn` has a column of the same key then.
    bool formsGroups = false;

    constexpr bool IsYear() const { return kind == CellKind::SmallestYear || kind == CellKind::LargestYear; }
};

/// Whether the rows of a table of columns stand in the order of their numbers, and none is missing before
/// `end`.
constexpr bool FollowTheirNumbers(std::span<const ColumnFacts> columns, int end) {
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        if (columns[static_cast<std::size_t>(i)].id != ColumnId::OfSection(i)) return false;
    }
    return ColumnId::OfIndex(end).Section() == static_cast<int>(columns.size());
}

/// The column of a key among the columns of a table; no column when there is none.
constexpr ColumnId ColumnOfKey(std::span<const ColumnFacts> columns, TextView key) {
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const ColumnFacts& column) { return column.key == key; });
    return found == columns.end() ? ColumnId() : found->id;
}

// Each table of columns stands beside the enumeration that logic names them by. A new column is a row here
// and a name there, at the same place.

namespace In {
enum Columns : std::int16_t {
    ID = 1,
    LastName,
    FirstName,
    BirthPlace,
    BirthMin,
    BirthMax,
    DeathPlace,
    DeathMin,
    DeathMax,
    Place,
    DateMin,
    DateMax,
    Sex,
    MarrPlace,
    MarrMin,
    MarrMax,
    IslandNr,
    kEnd
};
}  // namespace In
template <>
inline constexpr bool kNumbersColumns<In::Columns> = true;
namespace In {
inline constexpr CellMeaning kPerson{Subject::Individual, ID};
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {ID, "ID", "ID"_t, CellKind::Identifier, kPerson},
    {LastName, "LastName", "Nom"_t, CellKind::Words, kPerson, kNameWidth},
    {FirstName, "FirstName", "Prénom"_t, CellKind::Words, kPerson, kNameWidth},
    {BirthPlace, "BirthPlace", "Naiss.Lieu"_t, CellKind::Words, kPerson, kPlaceWidth},
    {BirthMin, "BirthMin", "Naiss.Min"_t, CellKind::SmallestYear, kPerson},
    {BirthMax, "BirthMax", "Naiss.Max"_t, CellKind::LargestYear, kPerson},
    {DeathPlace, "DeathPlace", "Décès.Lieu"_t, CellKind::Words, kPerson, kPlaceWidth},
    {DeathMin, "DeathMin", "Décès.Min"_t, CellKind::SmallestYear, kPerson},
    {DeathMax, "DeathMax", "Décès.Max"_t, CellKind::LargestYear, kPerson},
    {Place, "Place", "Lieu"_t, CellKind::Words, kPerson, kPlaceWidth},
    {DateMin, "DateMin", "Date Min"_t, CellKind::SmallestYear, kPerson},
    {DateMax, "DateMax", "Date Max"_t, CellKind::LargestYear, kPerson},
    {Sex, "Sex", "Sexe"_t, CellKind::Words, kPerson},
    {MarrPlace, "MarrPlace", "Mar.Lieu"_t, CellKind::Words, kPerson, kPlaceWidth},
    {MarrMin, "MarrMin", "Mar.Min"_t, CellKind::SmallestYear, kPerson},
    {MarrMax, "MarrMax", "Mar.Max"_t, CellKind::LargestYear, kPerson},
    {IslandNr, "IslandNr", "N° d'îlot"_t, CellKind::Words, kPerson},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace In

namespace Out {
enum Columns : std::int16_t {
    ID = 1,
    LastName,
    Number,
    Place,
    DateMin,
    DateMax,
    FirstName,
    BirthPlace,
    BirthMin,
    BirthMax,
    DeathPlace,
    DeathMin,
    DeathMax,
    MarrPlace,
    MarrMin,
    MarrMax,
    Sex,
    IslandNr,
    kEnd
};
}  // namespace Out
template <>
inline constexpr bool kNumbersColumns<Out::Columns> = true;
namespace Out {
inline constexpr CellMeaning kGroup{Subject::Group};
inline constexpr Alignment kLeft = Alignment::Left;
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {ID, "ID", "ID"_t, CellKind::Identifier, kGroup, kColumnWidth, kLeft, true},
    {LastName, "LastName", "Nom"_t, CellKind::Words, kGroup, kNameWidth, kLeft, true},
    {Number, "Number", "Nbre"_t, CellKind::Number, kGroup, kColumnWidth, Alignment::Right},
    {Place, "Place", "Lieu"_t, CellKind::Words, kGroup, kPlaceWidth, kLeft, true},
    {DateMin, "DateMin", "Date Min"_t, CellKind::SmallestYear, kGroup},
    {DateMax, "DateMax", "Date Max"_t, CellKind::LargestYear, kGroup},
    {FirstName, "FirstName", "Prénom"_t, CellKind::Words, kGroup, kNameWidth, kLeft, true},
    {BirthPlace, "BirthPlace", "Naiss.Lieu"_t, CellKind::Words, kGroup, kPlaceWidth, kLeft, true},
    {BirthMin, "BirthMin", "Naiss.Min"_t, CellKind::SmallestYear, kGroup},
    {BirthMax, "BirthMax", "Naiss.Max"_t, CellKind::LargestYear, kGroup},
    {DeathPlace, "DeathPlace", "Décès.Lieu"_t, CellKind::Words, kGroup, kPlaceWidth, kLeft, true},
    {DeathMin, "DeathMin", "Décès.Min"_t, CellKind::SmallestYear, kGroup},
    {DeathMax, "DeathMax", "Décès.Max"_t, CellKind::LargestYear, kGroup},
    {MarrPlace, "MarrPlace", "Mar. Lieu"_t, CellKind::Words, kGroup, kPlaceWidth, kLeft, true},
    {MarrMin, "MarrMin", "Mar.Min"_t, CellKind::SmallestYear, kGroup},
    {MarrMax, "MarrMax", "Mar.Max"_t, CellKind::LargestYear, kGroup},
    {Sex, "Sex", "Sexe"_t, CellKind::Words, kGroup, kColumnWidth, kLeft, true},
    {IslandNr, "IslandNr", "N° d'îlot"_t, CellKind::Words, kGroup, kColumnWidth, kLeft, true},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
// A group takes its texts and its years from the columns of the same keys.
static_assert(std::all_of(kColumns.begin(), kColumns.end(), [](const ColumnFacts& column) {
    return column.kind == CellKind::Number || ColumnOfKey(In::kColumns, column.key);
}));
}  // namespace Out

namespace Family {
enum Columns : std::int16_t {
    IDFam = 1,
    IDHusb,
    IDWife,
    IDFams,
    MarrPlace,
    MarrMin,
    MarrMax,
    Fam,
    Husb,
    Wife,
    Fams,
    kEnd
};
}  // namespace Family
template <>
inline constexpr bool kNumbersColumns<Family::Columns> = true;
namespace Family {
inline constexpr CellMeaning kFamily{Subject::Family, {}, IDFam};
inline constexpr CellMeaning kHusband{Subject::Individual, IDHusb, IDFam, true};
inline constexpr CellMeaning kWife{Subject::Individual, IDWife, IDFam, true};
inline constexpr CellMeaning kSpouse{Subject::Individual, IDFams, IDFam, true};
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {IDFam, "IDFam", "ID Famille"_t, CellKind::Identifier, kFamily},
    {IDHusb, "IDHusb", "ID Epoux"_t, CellKind::Identifier, kHusband},
    {IDWife, "IDWife", "ID Epouse"_t, CellKind::Identifier, kWife},
    {IDFams, "IDFams", "ID Conjoint"_t, CellKind::Identifier, kSpouse},
    {MarrPlace, "MarrPlace", "Marr.Lieu"_t, CellKind::Words, kFamily, kPlaceWidth},
    {MarrMin, "MarrMin", "Marr.Min"_t, CellKind::SmallestYear, kFamily},
    {MarrMax, "MarrMax", "Marr.Max"_t, CellKind::LargestYear, kFamily},
    {Fam, "Fam", "Famille"_t, CellKind::Words, kFamily, kFamilyWidth},
    {Husb, "Husb", "Epoux"_t, CellKind::Words, kHusband, kPersonWidth},
    {Wife, "Wife", "Epouse"_t, CellKind::Words, kWife, kPersonWidth},
    {Fams, "Fams", "Conjoint"_t, CellKind::Words, kSpouse},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace Family

namespace FamilyXref {
enum Columns : std::int16_t { IDFam = 1, Type, IDIndi, Sex, Family, Indi, kEnd };
}  // namespace FamilyXref
template <>
inline constexpr bool kNumbersColumns<FamilyXref::Columns> = true;
namespace FamilyXref {
inline constexpr CellMeaning kFamily{Subject::Family, IDIndi, IDFam, true};
inline constexpr CellMeaning kMember{Subject::Individual, IDIndi, IDFam};
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {IDFam, "IDFam", "ID Famille"_t, CellKind::Identifier, kFamily},
    {Type, "Type", "Type"_t, CellKind::Words, kMember},
    {IDIndi, "IDIndi", "ID Individu"_t, CellKind::Identifier, kMember.Named()},
    {Sex, "Sex", "Sexe"_t, CellKind::Words, kMember},
    {Family, "Family", "Famille"_t, CellKind::Words, kFamily, kFamilyWidth},
    {Indi, "Indi", "Individu"_t, CellKind::Words, kMember.Named(), kPersonWidth},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace FamilyXref

namespace Xref {
enum Columns : std::int16_t { IDIndi1 = 1, Type, IDIndi2, Indi1, Indi2, IDFamily, Family, kEnd };
}  // namespace Xref
template <>
inline constexpr bool kNumbersColumns<Xref::Columns> = true;
namespace Xref {
inline constexpr CellMeaning kFirst{Subject::Individual, IDIndi1, IDFamily};
inline constexpr CellMeaning kSecond{Subject::Individual, IDIndi2, IDFamily, true};
inline constexpr CellMeaning kFamily{Subject::Family, {}, IDFamily, true};
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {IDIndi1, "IDIndi1", "ID Individu 1"_t, CellKind::Identifier, kFirst.Named()},
    {Type, "Type", "Type"_t, CellKind::Words, kFirst},
    {IDIndi2, "IDIndi2", "ID Individu 2"_t, CellKind::Identifier, kSecond},
    {Indi1, "Indi1", "Individu 1"_t, CellKind::Words, kFirst.Named(), kPersonWidth},
    {Indi2, "Indi2", "Individu 2"_t, CellKind::Words, kSecond, kPersonWidth},
    {IDFamily, "IDFamily", "ID Famille"_t, CellKind::Identifier, kFamily},
    {Family, "Family", "Famille"_t, CellKind::Words, kFamily, kFamilyWidth},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace Xref

// Despite their keys, by which they are sorted, `Indi1` and `Indi2` hold identifiers.
namespace Xref1 {
enum Columns : std::int16_t { Indi1 = 1, Type, Indi2, IDFamily, Family, kEnd };
}  // namespace Xref1
template <>
inline constexpr bool kNumbersColumns<Xref1::Columns> = true;
namespace Xref1 {
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {Indi1, "Indi1", "Individu 1"_t},
    {Type, "Type", "Type"_t},
    {Indi2, "Indi2", "Individu 2"_t},
    {IDFamily, "IDFamily", "ID Famille"_t, CellKind::Identifier},
    {Family, "Family", "Famille"_t, CellKind::Words, {}, kFamilyWidth},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace Xref1

namespace Kinship {
enum Columns : std::int16_t { SeqNr = 1, IDIndi, Indi, Type, IDFamily, Family, NrSpouses, NrLink, kEnd };
}  // namespace Kinship
template <>
inline constexpr bool kNumbersColumns<Kinship::Columns> = true;
namespace Kinship {
inline constexpr CellMeaning kPerson{Subject::Individual, IDIndi, IDFamily};
inline constexpr CellMeaning kFamily{Subject::Family, IDIndi, IDFamily, true};
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {SeqNr, "SeqNr", "N° Séq"_t, CellKind::Words, kPerson, kSequenceWidth},
    {IDIndi, "IDIndi", "ID Individu"_t, CellKind::Identifier, kPerson.Named()},
    {Indi, "Indi", "Individu"_t, CellKind::Words, kPerson.Named(), kPersonWidth},
    {Type, "Type", "Type"_t, CellKind::Words, kPerson.Named(), kColumnWidth, Alignment::Centre},
    {IDFamily, "IDFamily", "ID Famille"_t, CellKind::Identifier, kFamily},
    {Family, "Family", "Famille"_t, CellKind::Words, kFamily, kFamilyWidth},
    {NrSpouses, "NrSpouses", "Conjoints"_t, CellKind::Words, {}, kColumnWidth, Alignment::Centre},
    {NrLink, "NrLink", "Liaisons"_t, CellKind::Words, {}, kColumnWidth, Alignment::Centre},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace Kinship

// What a path, or a relative, is called and how near it is. Neither leads to rows of other tables.
namespace Paths {
enum Columns : std::int16_t {
    Path = 1,
    Relation,
    Spouses,
    Links,
    CivilDegree,
    CanonDegree,
    Ancestors,
    Visible,
    kEnd
};
}  // namespace Paths
template <>
inline constexpr bool kNumbersColumns<Paths::Columns> = true;
namespace Paths {
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {Path, "Path", "N°"_t},
    {Relation, "Relation", "Lien", CellKind::Words, {}, kRelationWidth},
    {Spouses, "Spouses", "Conjoints", CellKind::Words, {}, kColumnWidth, Alignment::Centre},
    {Links, "Links", "Liaisons", CellKind::Words, {}, kColumnWidth, Alignment::Centre},
    {CivilDegree, "CivilDegree", "Degré civil"_t, CellKind::Number, {}, kColumnWidth, Alignment::Centre},
    {CanonDegree, "CanonDegree", "Degré canonique"_t, CellKind::Number, {}, kNameWidth, Alignment::Centre},
    {Ancestors, "Ancestors", "Ancêtres communs"_t, CellKind::Words, {}, kPersonWidth},
    {Visible, "Visible", "Affiché"_t, CellKind::Words, {}, kColumnWidth, Alignment::Centre},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace Paths

namespace Relatives {
enum Columns : std::int16_t {
    ID = 1,
    LastName,
    FirstName,
    Sex,
    Relation,
    CivilDegree,
    CanonDegree,
    Ancestors,
    kEnd
};
}  // namespace Relatives
template <>
inline constexpr bool kNumbersColumns<Relatives::Columns> = true;
namespace Relatives {
inline constexpr CellMeaning kPerson{Subject::Individual, ID, {}, true};
inline constexpr auto kColumns = std::to_array<ColumnFacts>({
    {ID, "ID", "ID"_t, CellKind::Identifier, kPerson},
    {LastName, "LastName", "Nom"_t, CellKind::Words, kPerson, kNameWidth},
    {FirstName, "FirstName", "Prénom"_t, CellKind::Words, kPerson, kNameWidth},
    {Sex, "Sex", "Sexe"_t, CellKind::Words, kPerson, kColumnWidth, Alignment::Centre},
    {Relation, "Relation", "Lien", CellKind::Words, kPerson, kRelationWidth},
    {CivilDegree, "CivilDegree", "Degré civil"_t, CellKind::Number, kPerson, kColumnWidth, Alignment::Centre},
    {CanonDegree, "CanonDegree", "Degré canonique"_t, CellKind::Number, kPerson, kNameWidth,
     Alignment::Centre},
    {Ancestors, "Ancestors", "Ancêtres communs"_t, CellKind::Words, kPerson, kPersonWidth},
});
static_assert(FollowTheirNumbers(kColumns, kEnd));
}  // namespace Relatives

}  // namespace swiftroll

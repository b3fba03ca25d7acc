#include "tables/schema.h"

#include "text/literal.h"

namespace swiftroll {
namespace {

struct ColumnText {
    TextView key;
    TextView caption;
    Alignment align = Alignment::Left;
    std::int32_t width = Column().Width;
};

/// Widths, in hundredths of a millimetre, that show most texts of a kind whole at the first start.
constexpr std::int32_t kSequenceWidth = 3700, kNameWidth = 3200, kPlaceWidth = 4200, kPersonWidth = 4200,
                       kFamilyWidth = 6400;

std::vector<Column> MakeColumns(std::initializer_list<ColumnText> texts) {
    std::vector<Column> columns;
    for (const ColumnText& text : texts) {
        Column column;
        column.Index = column.Position = static_cast<std::int16_t>(columns.size() + 1);
        column.Key = text.key;
        column.Caption = text.caption;
        column.Align = text.align;
        column.Width = text.width;
        columns.push_back(std::move(column));
    }
    return columns;
}

std::vector<Column> InColumns() {
    return MakeColumns({{"ID", "ID"_t},
                        {"LastName", "Nom"_t, Alignment::Left, kNameWidth},
                        {"FirstName", "Prénom"_t, Alignment::Left, kNameWidth},
                        {"BirthPlace", "Naiss.Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"BirthMin", "Naiss.Min"_t},
                        {"BirthMax", "Naiss.Max"_t},
                        {"DeathPlace", "Décès.Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"DeathMin", "Décès.Min"_t},
                        {"DeathMax", "Décès.Max"_t},
                        {"Place", "Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"DateMin", "Date Min"_t},
                        {"DateMax", "Date Max"_t},
                        {"Sex", "Sexe"_t},
                        {"MarrPlace", "Mar.Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"MarrMin", "Mar.Min"_t},
                        {"MarrMax", "Mar.Max"_t},
                        {"IslandNr", "N° d'îlot"_t}});
}

std::vector<Column> OutColumns() {
    return MakeColumns({{"ID", "ID"_t},
                        {"LastName", "Nom"_t, Alignment::Left, kNameWidth},
                        {"Number", "Nbre"_t, Alignment::Right},
                        {"Place", "Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"DateMin", "Date Min"_t},
                        {"DateMax", "Date Max"_t},
                        {"FirstName", "Prénom"_t, Alignment::Left, kNameWidth},
                        {"BirthPlace", "Naiss.Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"BirthMin", "Naiss.Min"_t},
                        {"BirthMax", "Naiss.Max"_t},
                        {"DeathPlace", "Décès.Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"DeathMin", "Décès.Min"_t},
                        {"DeathMax", "Décès.Max"_t},
                        {"MarrPlace", "Mar. Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"MarrMin", "Mar.Min"_t},
                        {"MarrMax", "Mar.Max"_t},
                        {"Sex", "Sexe"_t},
                        {"IslandNr", "N° d'îlot"_t}});
}

std::vector<Column> XrefColumns() {
    return MakeColumns({{"IDIndi1", "ID Individu 1"_t},
                        {"Type", "Type"_t},
                        {"IDIndi2", "ID Individu 2"_t},
                        {"Indi1", "Individu 1"_t, Alignment::Left, kPersonWidth},
                        {"Indi2", "Individu 2"_t, Alignment::Left, kPersonWidth},
                        {"IDFamily", "ID Famille"_t},
                        {"Family", "Famille"_t, Alignment::Left, kFamilyWidth}});
}

std::vector<Column> Xref1Columns() {
    return MakeColumns({{"Indi1", "Individu 1"_t},
                        {"Type", "Type"_t},
                        {"Indi2", "Individu 2"_t},
                        {"IDFamily", "ID Famille"_t},
                        {"Family", "Famille"_t, Alignment::Left, kFamilyWidth}});
}

std::vector<Column> FamilyColumns() {
    return MakeColumns({{"IDFam", "ID Famille"_t},
                        {"IDHusb", "ID Epoux"_t},
                        {"IDWife", "ID Epouse"_t},
                        {"IDFams", "ID Conjoint"_t},
                        {"MarrPlace", "Marr.Lieu"_t, Alignment::Left, kPlaceWidth},
                        {"MarrMin", "Marr.Min"_t},
                        {"MarrMax", "Marr.Max"_t},
                        {"Fam", "Famille"_t, Alignment::Left, kFamilyWidth},
                        {"Husb", "Epoux"_t, Alignment::Left, kPersonWidth},
                        {"Wife", "Epouse"_t, Alignment::Left, kPersonWidth},
                        {"Fams", "Conjoint"_t}});
}

std::vector<Column> FamilyXrefColumns() {
    return MakeColumns({{"IDFam", "ID Famille"_t},
                        {"Type", "Type"_t},
                        {"IDIndi", "ID Individu"_t},
                        {"Sex", "Sexe"_t},
                        {"Family", "Famille"_t, Alignment::Left, kFamilyWidth},
                        {"Indi", "Individu"_t, Alignment::Left, kPersonWidth}});
}

std::vector<Column> KinshipColumns() {
    return MakeColumns({{"SeqNr", "N° Séq"_t, Alignment::Left, kSequenceWidth},
                        {"IDIndi", "ID Individu"_t},
                        {"Indi", "Individu"_t, Alignment::Left, kPersonWidth},
                        {"Type", "Type"_t, Alignment::Centre},
                        {"IDFamily", "ID Famille"_t},
                        {"Family", "Famille"_t, Alignment::Left, kFamilyWidth},
                        {"NrSpouses", "Conjoints"_t, Alignment::Centre},
                        {"NrLink", "Liaisons"_t, Alignment::Centre}});
}

std::shared_ptr<StoreGroup> OwnGroup() { return std::make_shared<StoreGroup>(); }

}  // namespace

TableSet::TableSet()
    : lvwIn("lvwIn", "Liste des individus se trouvant dans le fichier GEDCOM en Entrée."_t, InColumns(),
            readGroup_),
      lvwOut("lvwOut",
             "Liste des individus définis dans le ficher GEDCOM en entrée regroupés suivant les colonnes qui "
             "se trouvent "
             "avant la colonne Nbre."_t,
             OutColumns(), OwnGroup()),
      lvwXref("lvwXref", "Ensemble de tous les liens entres les individus."_t, XrefColumns(), readGroup_),
      lvwXref1("lvwXref1", TextView(), Xref1Columns(), OwnGroup()),
      lvwFamily("lvwFamily", "Liste des familles."_t, FamilyColumns(), readGroup_),
      lvwFamilyXref("lvwFamilyXref", "Composition des familles."_t, FamilyXrefColumns(), readGroup_),
      lvwKinship(
          "lvwKinship",
          "Ensemble des liens de parenté entre les 2 individus sélectionnés dans la liste en Entrée."_t,
          KinshipColumns(), OwnGroup()) {}

std::vector<Table*> TableSet::All() {
    return {&lvwIn, &lvwOut, &lvwXref, &lvwXref1, &lvwFamily, &lvwFamilyXref, &lvwKinship};
}

std::vector<Table*> TableSet::Shown() {
    return {&lvwIn, &lvwOut, &lvwFamilyXref, &lvwXref, &lvwFamily, &lvwKinship};
}

Table* TableSet::Named(TextView name) {
    for (Table* table : All()) {
        if (table->Name() == name) return table;
    }
    return nullptr;
}

}  // namespace swiftroll

#include "tables/schema.h"

#include "text/literal.h"

namespace swiftroll {
namespace {

std::shared_ptr<StoreGroup> OwnGroup() { return std::make_shared<StoreGroup>(); }

}  // namespace

std::vector<Column> MakeColumns(std::span<const ColumnFacts> facts) {
    std::vector<Column> columns;
    for (const ColumnFacts& column : facts) {
        columns.push_back({.Facts = &column,
                           .Index = column.id,
                           .Key = Text(column.key),
                           .Caption = Text(column.caption),
                           .Position = column.id.Index(),
                           .Width = column.width});
    }
    return columns;
}

TableSet::TableSet()
    : lvwIn("lvwIn", "Liste des individus se trouvant dans le fichier GEDCOM en Entrée."_t,
            MakeColumns(In::kColumns), readGroup_),
      lvwOut("lvwOut",
             "Liste des individus définis dans le ficher GEDCOM en entrée regroupés suivant les colonnes qui "
             "se trouvent "
             "avant la colonne Nbre."_t,
             MakeColumns(Out::kColumns), OwnGroup()),
      lvwXref("lvwXref", "Ensemble de tous les liens entres les individus."_t, MakeColumns(Xref::kColumns),
              readGroup_),
      lvwXref1("lvwXref1", TextView(), MakeColumns(Xref1::kColumns), OwnGroup()),
      lvwFamily("lvwFamily", "Liste des familles."_t, MakeColumns(Family::kColumns), readGroup_),
      lvwFamilyXref("lvwFamilyXref", "Composition des familles."_t, MakeColumns(FamilyXref::kColumns),
                    readGroup_),
      lvwKinship(
          "lvwKinship",
          "Ensemble des liens de parenté entre les 2 individus sélectionnés dans la liste en Entrée."_t,
          MakeColumns(Kinship::kColumns), OwnGroup()),
      lvwPaths("lvwPaths", "Résumé : une ligne par lien de parenté trouvé, avec le nom et les degrés."_t,
               MakeColumns(Paths::kColumns), OwnGroup()),
      lvwRelatives("lvwRelatives", "Toute la parenté par le sang d'un individu, les plus proches d'abord."_t,
                   MakeColumns(Relatives::kColumns), OwnGroup()) {}

std::vector<Table*> TableSet::Logged() {
    return {&lvwIn, &lvwOut, &lvwXref, &lvwXref1, &lvwFamily, &lvwFamilyXref, &lvwKinship};
}

std::vector<Table*> TableSet::All() {
    std::vector<Table*> tables = Logged();
    for (Table* summary : Summaries()) tables.push_back(summary);
    return tables;
}

std::vector<Table*> TableSet::Shown() {
    return {&lvwIn, &lvwOut, &lvwFamilyXref, &lvwXref, &lvwFamily, &lvwKinship, &lvwPaths, &lvwRelatives};
}

Table* TableSet::Named(TextView name) {
    for (Table* table : All()) {
        if (table->Name() == name) return table;
    }
    return nullptr;
}

}  // namespace swiftroll

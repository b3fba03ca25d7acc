#include "shell/list_commands.h"

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// Nothing can be added or removed before a cell was clicked.
Command OfClickedCell(Window& window, const ControlTexts& texts) { return {window, texts, {}, false}; }

std::array<Command, 3> OfValues(Window& window, TextView name) {
    return {OfClickedCell(window, {name, "Valeur <=", {}, 0}),
            OfClickedCell(window, {name, "Valeur =", {}, 1}),
            OfClickedCell(window, {name, "Valeur >=", {}, 2})};
}

Text CaptionOf(std::int32_t generations) {
    if (generations == modSelectionIn::kAllGenerations) return Text("Toutes les générations"_t);
    return Concat({Decimal(generations), " génération"_t, generations > 1 ? "s" : ""});
}

}  // namespace

GenerationCommands::GenerationCommands(Window& window, TextView name, TextView caption)
    : head(OfClickedCell(window, {name, caption})), upTo(ArrayOf<Command, kChoices.size()>(window, {name})) {
    for (std::size_t i = 0; i < upTo.size(); ++i) upTo[i].Caption = CaptionOf(kChoices[i]);
    Enable(false);
}

void GenerationCommands::Enable(bool enabled) {
    head.Enabled = enabled;
    for (Command& command : upTo) command.Enabled = enabled;
}

Menu GenerationCommands::Entry() {
    Menu menu{head};
    for (Command& command : upTo) menu.entries.push_back({command});
    return menu;
}

ListCommands::ListCommands(Window& window)
    : mnuContextTitle(window, {"mnuContext", "Menu Contextuel"}),
      mnuAddFavorite(window, {"mnuAddFavorite", "Ajouter aux Favoris"}, "Ctrl+J"),
      mnuCol(window, {"mnuCol", "Colonnes de la liste"}),
      mnuColSelect(window, {"mnuColSelect", "Sélectionner toutes"_t}),
      mnuColUnselect(window, {"mnuColUnselect", "Désélectionner toutes"_t}),
      mnuResetCol(window, {"mnuResetCol", "RAZ des largeurs"}),
      mnuHeader(window, {"mnuHeader", "Colonne"}),
      mnuColSort(window, {"mnuColSort", "Trier par cette colonne"}),
      mnuColExport(window, {"mnuColExport", "Ne plus exporter cette colonne"}),
      mnuColFit(window, {"mnuColFit", "Ajuster la largeur au contenu"}),
      mnuColHide(window, {"mnuColHide", "Masquer cette colonne"}),
      mnuColShow(window, {"mnuColShow", "Afficher une colonne masquée"_t}),
      mnuColShown(ArrayOf<Command, kMaxColumns>(window, {"mnuColShown"})),
      mnuSpe2(window, {"mnuSpe2", "--------------- Sélection ---------------"_t}),
      mnuNextSelected(window, {"mnuNextSelected", "Afficher Sélectionné Suivant"_t}, "Ctrl+N"),
      mnuDeselectCurrent(window, {"mnuDeselectCurrent", "Désélectionner Courant"_t}, "Ctrl+W"),
      mnuDeselectAll(window, {"mnuDeselectAll", "Désélectionner Tout"_t}, "Ctrl+D"),
      mnuSelectAll(window, {"mnuSelectAll", "Sélectionner Tout"_t}, "Ctrl+A"),
      mnuInvertSelection(window, {"mnuInvertSelection", "Inverser la Sélection"_t}, "Ctrl+X"),
      cmdCheckShown(window, {"cmdCheckShown", "Cocher les lignes affichées"_t,
                             "Sélectionne et coche les lignes que le filtre laisse voir."_t}),
      mnuCheckShown(window, {"mnuCheckShown", "Cocher les lignes affichées"_t}),
      cmdGather(window, {"cmdGather", "Rassembler",
                         "Place les lignes marquées en tête de liste, comme un double-clic sur l'onglet."_t}),
      mnuGather(window, {"mnuGather", "Rassembler en tête de liste"_t}),
      cmdUndoMarks(window,
                   {"cmdUndoMarks", "Annuler", "Rend les marques d'avant la dernière commande (Ctrl+Z)."_t},
                   {}, false),
      mnuUndoMarks(window, {"mnuUndoMarks", "Annuler la dernière sélection"_t}, "Ctrl+Z", false),
      mnuFilter(window, {"mnuFilter", "Filtrer..."}, "F3"),
      mnuCopy(window, {"mnuCopy", "Copier dans le presse-papier"}, "Ctrl+C"),
      mnuFind(window, {"mnuFind", "Rechercher..."}, "Ctrl+F"),
      mnuFindNext(window, {"mnuFindNext", "Rechercher suivant"}, "Ctrl+S"),
      mnuSelect(window, {"mnuSelect", "---------- Sélection en Entrée ----------"_t}),
      mnuDeselectIn(window, {"mnuDeselectIn", "Désélectionner tout dans liste Entrée"_t}, "Ctrl+E"),
      mnuAdd(window, {"mnuAdd", "Ajouter dans la liste Entrée"_t}),
      mnuAddIndi(OfClickedCell(window, {"mnuAddIndi", "Individus"})),
      mnuAddParents(OfClickedCell(window, {"mnuAddParents", "Parents"})),
      mnuAddSpouses(OfClickedCell(window, {"mnuAddSpouses", "Conjoints"})),
      mnuAddChildren(OfClickedCell(window, {"mnuAddChildren", "Enfants"})),
      mnuAddValue(OfValues(window, "mnuAddValue")),
      mnuAddAncestors(window, "mnuAddAncestors", "Ascendants"),
      mnuAddDescendants(window, "mnuAddDescendants", "Descendants"),
      mnuRemove(window, {"mnuRemove", "Enlever de la liste Entrée"_t}),
      mnuRemoveIndi(OfClickedCell(window, {"mnuRemoveIndi", "Individus"})),
      mnuRemoveParents(OfClickedCell(window, {"mnuRemoveParents", "P&arents"})),
      mnuRemoveSpouses(OfClickedCell(window, {"mnuRemoveSpouses", "C&onjoints"})),
      mnuRemoveChildren(OfClickedCell(window, {"mnuRemoveChildren", "En&fants"})),
      mnuRemoveValue(OfValues(window, "mnuRemoveValue")),
      mnuRemoveAncestors(window, "mnuRemoveAncestors", "Ascendants"),
      mnuRemoveDescendants(window, "mnuRemoveDescendants", "Descendants"),
      mnuKinship(window, {"mnuKinship", "---------- Liens de Parenté ----------"_t}) {}

}  // namespace swiftroll

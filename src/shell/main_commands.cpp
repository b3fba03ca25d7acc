#include "shell/main_commands.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

std::vector<Menu> Entries(std::initializer_list<Command*> commands, std::array<Command, 3>& values,
                          std::initializer_list<GenerationCommands*> lineages) {
    std::vector<Menu> entries;
    for (Command* command : commands) entries.push_back({*command});
    for (Command& value : values) entries.push_back({value});
    for (GenerationCommands* lineage : lineages) entries.push_back(lineage->Entry());
    return entries;
}

}  // namespace

ReadingCommands::ReadingCommands(Window& window)
    : cmdLoad(window, {"cmdLoad", "Lire Tout"_t, "Lit le fichier GEDCOM spécifié."_t}),
      mnuReadGedCom(window, {"mnuReadGedCom", "Lire GedCom"_t}, "Ctrl+O"),
      cmdRecalcIn(window,
                  {"cmdRecalcIn", "ReCalcule Lieu && Dates Min/Max dans \"Entrée\""_t,
                   "Recalcule les colonnes \"Lieu\"  det \"Date Min/Max\" dans le liste \"Entrée\""_t}),
      cmdCalcOutput(window, {"cmdCalcOutput", "Recalcul Sortie"_t}, "F5"),
      mnuRecalcOut(window, {"mnuRecalcOut", "Recalcul Sortie"_t}, "F5") {}

CheckCommands::CheckCommands(Window& window)
    : mnuCheckFile(window, {"mnuCheckFile", "Contrôle du fichier..."_t}, {}, false) {}

WritingCommands::WritingCommands(Window& window)
    : cmdSaveSwift(window, {"cmdSaveSwift", "Ecrire en HTML"_t}),
      mnuSaveSwift(window, {"mnuSaveSwift", "Ecrire Relevé-vif"_t}, "Ctrl+L"),
      cmdCopyGedIn2SwiftOut(window, {"cmdCopyGedIn2SwiftOut", "V"}),
      mnuCopyGedIn2SwiftOut(window,
                            {"mnuCopyGedIn2SwiftOut", "Génère Nom du Fichier Relevé-vif en Sortie"_t}) {}

FileCommands::FileCommands(Window& window)
    : cmdSelectDirGedIn(window, {"cmdSelectDirGedIn", "..."}),
      cmdSelectDirSwiftOut(window, {"cmdSelectDirSwiftOut", "..."}),
      cmdSelectDirModel(window, {"cmdSelectDirModel", "..."}) {}

KinshipCommands::KinshipCommands(Window& window)
    : cmdFindPath(window,
                  {"cmdFindPath", "Rech. Parenté"_t,
                   "Recherche la parenté entre les 2 individus sélectionnés dans la liste en entrée."_t},
                  {}, false),
      mnuFindPath(window, {"mnuFindPath", "Recherche Parenté"_t}, {}, false),
      mnuAllKin(window, {"mnuAllKin", "Toute la parenté..."_t}, {}, false),
      cmdFindPair(window, {"cmdFindPair", "Rechercher", "Recherche la parenté de ces deux personnes."_t}, {},
                  false),
      cmdSwapPair(window, {"cmdSwapPair", "Inverser", "Échange les deux personnes."_t}),
      mnuKinFrom(window, {"mnuKinFrom", "Parenté : de cette personne"_t}, {}, false),
      mnuKinTo(window, {"mnuKinTo", "Parenté : vers cette personne"_t}, {}, false) {}

ExtractCommands::ExtractCommands(Window& window)
    : cmdSaveGed(window, {"cmdSaveGed", "Ecrire"_t}, {}, false),
      mnuSaveGed(window, {"mnuSaveGed", "Ecrire Gedcom"_t}, "Ctrl+G"),
      cmdSelectDirGedOut(window, {"cmdSelectDirGedOut", "..."}),
      cmdCopyGedIn2GedOut(window, {"cmdCopyGedIn2GedOut", "V"}),
      mnuCopyGedIn2GedOut(window, {"mnuCopyGedIn2GedOut", "Génère Nom du Fichier Gedcom en Sortie"_t}) {}

DrawingCommands::DrawingCommands(Window& window)
    : mnuDrawKinship(window, {"mnuDrawKinship", "Dessin des parentés"_t}, {}, false),
      cmdDrawKinship(window, {"cmdDrawKinship", "Ecrire Toutes +"_t}, {}, false),
      cmdCopyTitle2kinship(window,
                           {"cmdCopyTitle2kinship", ">",
                            "Crée un nom de fichier qui indique les 2 individus qui sont apparentés."_t},
                           {}, false),
      cmdPrintKinship(window, {"cmdPrintKinship"}, {}, false),
      mnuDrawKinshipOne(window, {"mnuDrawKinshipOne", "Dessin Une Parenté (Simple)"_t}),
      mnuDrawKinshipOneSpouse(window, {"mnuDrawKinshipOneSpouse", "Dessin Une Parenté (avec conjoint)"_t}),
      mnuDrawKinshipAll(window, {"mnuDrawKinshipAll", "Dessin Toutes Parentés (Simple)"_t}),
      mnuDrawKinshipAllSpouse(window,
                              {"mnuDrawKinshipAllSpouse", "Dessin Toutes Parentés (avec conjoint)"_t}),
      cmdSelectDirKinship(window, {"cmdSelectDirKinship", "..."}),
      picTreeH(window, {"picTreeH", {}, "Dessine les liens de parenté avec les ancêtres en haut."_t}),
      picTreeV(window, {"picTreeV", {}, "Dessine les liens de parenté avec les ancêtres à gauche."_t}),
      cmdFont(window, {"cmdFont", "Fonte..."}) {}

DisplayCommands::DisplayCommands(Window& window)
    : cmdDisplayGedIn(window, {"cmdDisplayGedIn"}),
      cmdDisplayGedOut(window, {"cmdDisplayGedOut"}),
      cmdDisplaySwiftOut(window, {"cmdDisplaySwiftOut"}),
      cmdDisplayModel(window, {"cmdDisplayModel"}),
      cmdDisplayKinship(window, {"cmdDisplayKinship"}) {}

WindowCommands::WindowCommands(Window& window)
    : mnuFile(window, {"mnuFile", "Fichier"}),
      mnuContext1(window, {"mnuContext1", "Menu Contextuel"}),
      mnuContext2(window, {"mnuContext2", "Click Droit dans les listes"}),
      mnuHelp(window, {"mnuHelp", "Aide"}),
      cmdHelp(window, {"cmdHelp", "Documentation"}),
      mnuDoc(window, {"mnuDoc", "Documentation"}),
      mnuAbout(window, {"mnuAbout", "A Propos"}, "F12"),
      cmdExit(window, {"cmdExit", "Quitter"}),
      mnuExit(window, {"mnuExit", "&Quitter"}) {}

WorkCommands::WorkCommands(Window& window)
    : cmdStop(window, {"cmdStop", "Arrêter"_t, "Arrête le travail en cours (Échap)."_t}) {}

ReportCommands::ReportCommands(Window& window)
    : mnuCheckUpdate(window, {"mnuCheckUpdate", "Vérifier si c'est la dernière version"_t}),
      PicturepicKeepUpdated(window, {"PicturepicKeepUpdated", {}, "Vérifier si c'est la dernière version"_t}),
      mnuSaveParams(window, {"mnuSaveParams", "Sauve && Envoie Param..."}) {}

SetCommands::SetCommands(Window& window)
    : cmdSaveCells(window, {"cmdSaveCells", {}, "Sauve les paramètres des cellules sous ce nom."_t}),
      cmdSaveColumns(window,
                     {"cmdSaveColumns", {}, "Sauve les positions et largeurs des colonnes sous ce nom."_t}),
      cmdSavePlace(window, {"cmdSavePlace", {}, "Sauve les paramètres des lieux sous ce nom."_t}) {}

FavoriteCommands::FavoriteCommands(Window& window)
    : cmdGotoFavorite(
          window, {"cmdGotoFavorite", ">",
                   Concat({"Va à ce favori dans la liste."_t, kLineEnd, "+Shift = Le sélectionner"_t})}) {}

MainCommands::MainCommands(Window& window)
    : ListCommands(window),
      ReadingCommands(window),
      CheckCommands(window),
      WritingCommands(window),
      FileCommands(window),
      KinshipCommands(window),
      ExtractCommands(window),
      DrawingCommands(window),
      DisplayCommands(window),
      WindowCommands(window),
      WorkCommands(window),
      ReportCommands(window),
      SetCommands(window),
      FavoriteCommands(window) {}

std::vector<Menu> MainCommands::MenuBar() {
    return {{mnuFile,
             {{mnuReadGedCom},
              {mnuCheckFile},
              {mnuRecalcOut},
              {mnuSaveSwift},
              {mnuSaveGed},
              {mnuCopyGedIn2SwiftOut},
              {mnuCopyGedIn2GedOut},
              {mnuExit}}},
            {mnuContext1, {{mnuContext2}}},
            {mnuHelp, {{mnuDoc}, {mnuCheckUpdate}, {mnuSaveParams}, {mnuAbout}}}};
}

Menu MainCommands::HeaderMenu() {
    Menu menu{mnuHeader, {{mnuColSort}, {mnuColExport}, {mnuColFit}, {mnuColHide}, {mnuColShow}}};
    for (Command& column : mnuColShown) menu.entries.back().entries.push_back({column});
    menu.entries.push_back({mnuResetCol});
    return menu;
}

/// What the table menu offers for all columns, and for the one that was clicked.
std::vector<Menu> MainCommands::ColumnEntries() {
    std::vector<Menu> entries = {{mnuColSelect}, {mnuColUnselect}};
    for (const Menu& entry : HeaderMenu().entries) entries.push_back(entry);
    return entries;
}

Menu MainCommands::TableMenu() {
    return {
        mnuContextTitle,
        {{mnuAddFavorite},
         {mnuCol, ColumnEntries()},
         {mnuSpe2},
         {mnuNextSelected},
         {mnuDeselectCurrent},
         {mnuDeselectAll},
         {mnuSelectAll},
         {mnuInvertSelection},
         {mnuCheckShown},
         {mnuGather},
         {mnuUndoMarks},
         {mnuCopy},
         {mnuFind},
         {mnuFindNext},
         {mnuFilter},
         {mnuSelect},
         {mnuDeselectIn},
         {mnuAdd, Entries({&mnuAddIndi, &mnuAddParents, &mnuAddSpouses, &mnuAddChildren}, mnuAddValue,
                          {&mnuAddAncestors, &mnuAddDescendants})},
         {mnuRemove, Entries({&mnuRemoveIndi, &mnuRemoveParents, &mnuRemoveSpouses, &mnuRemoveChildren},
                             mnuRemoveValue, {&mnuRemoveAncestors, &mnuRemoveDescendants})},
         {mnuKinship},
         {mnuFindPath},
         {mnuAllKin},
         {mnuKinFrom},
         {mnuKinTo},
         {mnuDrawKinship,
          {{mnuDrawKinshipOne}, {mnuDrawKinshipOneSpouse}, {mnuDrawKinshipAll}, {mnuDrawKinshipAllSpouse}}}}};
}

}  // namespace swiftroll

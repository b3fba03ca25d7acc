#pragma once

#include <array>
#include <deque>
#include <span>

#include "app/controls.h"
#include "text/literal.h"

namespace swiftroll {

/// What the options show and hold of a format in which the Relevé-vif is written. The record knows no more of
/// formats than this, and takes them in the order in which they are chosen from.
struct FormatOption {
    Text caption;  // of its option button
    Text command;  // what the button of the command says
    /// Standard extensions of the list and of its model.
    Text outExtension, modelExtension;
    bool isFirstChoice = false;
};

/// The option record: every option of the main window under the name of its control, with its texts and its
/// default. A line here is all that an option needs to be restored, saved and set by the headless program,
/// which find it by walking the controls in this order.
class OptionRecord : public Window {
    // Stands before the options that are made from it.
    const std::vector<FormatOption> formats_;

  public:
    explicit OptionRecord(std::span<const FormatOption> formats);

    /// What `txtNearest` counts as when it holds no number.
    static constexpr TextView kDefaultNearest = "100";
    /// What `txtPrivateYears` counts as when it holds no number.
    static constexpr TextView kDefaultPrivateYears = "100";

    // Named parameter sets. Restoring one loads it, so they stand before the options that they hold: what
    // the user saw last wins.
    ComboBox cboCells{*this, {"cboCells", "Jeu de paramètres des cellules"_t}};
    ComboBox cboColumns{*this, {"cboColumns", "Jeu de positions et largeurs des colonnes"_t}};
    ComboBox cboOutPlace{*this, {"cboOutPlace", "Jeu de paramètres des lieux"_t}, "Tout"};
    // Favourites of the six table tabs
    std::array<ComboBox, 6> cboFavorites = ArrayOf<ComboBox, 6>(*this, {"cboFavorites", "Favoris"_t});

    // Reading. Restoring the combo sets the box, so the box comes behind it.
    ComboBox cboLoad{*this,
                     {"cboLoad", {}, "Sélectionne l'action par défaut du bouton à gauche"_t},
                     {"Lire Tout"_t, "Lire Sans Famille"_t}};
    CheckBox chkProcFamilies{
        *this,
        Hidden(
            {"chkProcFamilies", "Lire Familles"_t,
             "Nécessite une relecture du fichier GedCom en entrée pour traiter la définition des familles."_t}),
        true};
    CheckBox chkUpperNames{*this,
                           {"chkUpperNames", "Afficher les NOMS en MAJUSCULES"_t,
                            "Ne convertit pas les noms, c'est uniquement leur affichage qui est concerné."_t},
                           false};
    CheckBox chkInvertNames{
        *this, {"chkInvertNames", "Inversion Nom/Prénom"_t, "Lors de la lecture du fichier GEDCOM"_t}, false};
    CheckBox chkDecodeCharset{
        *this,
        {"chkDecodeCharset", "Convertir les autres jeux de caractères"_t,
         "Les noms et les lieux d'un fichier en UTF-8, UTF-16, ANSEL, etc. sont convertis "
         "à la lecture.\r\nLe fichier lui-même n'est pas modifié."_t},
        true};
    CheckBox chkCalendars{*this,
                          {"chkCalendars", "Lire les calendriers et toutes les années"_t,
                           "Calendriers républicain, hébraïque et julien, années de un à trois chiffres.\r\n"
                           "Pris en compte à la prochaine lecture."_t},
                          false};
    CheckBox chkFallbackEvents{
        *this,
        {"chkFallbackEvents", "À défaut, baptême et inhumation"_t,
         "Le baptême tient lieu de naissance, l'inhumation ou la crémation de décès, là où "
         "l'année ou le lieu manque.\r\nPris en compte à la prochaine lecture."_t},
        false};

    // Files
    CheckBox chkOutputFiles{*this,
                            {"chkOutputFiles", "Fichiers en sortie"_t,
                             "Montre ou cache les noms des fichiers à écrire et du modèle."_t},
                            false};
    ComboBox cboGedIn{*this, {"cboGedIn", "Entrée GED"_t}};
    ComboBox cboGedOut{*this, {"cboGedOut", "Sortie GED"_t}};
    ComboBox cboSwiftOut{*this, {"cboSwiftOut", "Sortie Relevé-vif + XSL"_t}};
    ComboBox cboFileModel{*this, {"cboFileModel", "Entrée Modèle HTML"_t}};
    ComboBox cboKinship{*this,
                        {"cboKinship", "Sortie Liens Parenté"_t,
                         "Fichier qui contiendra le graphique des liens de parentés"_t}};
    Label lblOut{*this, {"lblOut", "Sortie Relevé-vif + XSL"_t}};
    Label lblModel{*this, {"lblModel", "Entrée Modèle HTML"_t}};

    // Places
    OrderedList lbOuputPlacesOrder{
        *this,
        {"lbOuputPlacesOrder", "Ordre de sélection des Lieux && Dates"_t,
         "Faire glisser les lignes pour les réordonner.\r\n"
         "Pris en compte lors de la Lecture ET lors du Recalcul\r\n"
         "(peuvent donc être différents si l'ordre est changé entretemps).\r\n"
         "Si \"Lire Familles\" n'est cochée,\r\n"
         "il n'y aura pas d'information sur les mariages/divorces/..."_t},
        {{Text("Naissance"_t), 1}, {Text("Décès"_t), 2}, {Text("Mariage, Divorce,..."_t), 3}}};
    TextBox txtPlaceFormat{*this, {"txtPlaceFormat", "Format"_t, "%1=1er lieu,... %0=Tout, %%=%"_t}, "%0"};
    TextBox txtPlaceSepar{
        *this,
        {"txtPlaceSepar", "Séparateur de lieux"_t,
         "Séparteur des lieux (par ex. \",\") pour indiquer quel est le lieu n° 1, le 2ième,..."_t},
        ","};
    CheckBox chkTrimSepar{*this,
                          {"chkTrimSepar", "Supprimer derniers séparateurs"_t,
                           "Pour supprimer les séparateurs et espaces isolés en fin de ligne"_t},
                          true};

    // Written list
    OptionGroup optTabSpace{*this, {"optTabSpace"}, {"Tabulations"_t, "Espaces"_t}, 0};
    CheckBox chkIncludeHeaders{*this, {"chkIncludeHeaders", "Inclure les noms de colonnes"_t}, true};
    TextBox txtINDEX{
        *this,
        {"txtINDEX", "Index HTML"_t, "0 = Pas d'index, sinon nombre de caractères par entrée de %INDEX%"_t},
        "1"};
    CheckBox chkGenerXSL{*this, {"chkGenerXSL", "+ XSL"_t}, true};
    CheckBox chkStrictXml{*this,
                          {"chkStrictXml", "XML conforme"_t,
                           "Le fichier XML suit la norme : tout programme peut le lire.\r\n"
                           "Non coché : les textes sont écrits tels quels."_t},
                          false};
    OptionGroup optOutExtension{
        *this, {"optOutExtension"}, EachFormat(&FormatOption::caption), FirstChoice()};
    ComboBox cboSaveSwift{*this, {"cboSaveSwift"}, EachFormat(&FormatOption::command)};
    // by the number of the format
    std::deque<TextBox> txtOutExtension =
        FieldForEach({"txtOutExtension", "Liste en Sortie"_t}, &FormatOption::outExtension);
    std::deque<TextBox> txtModelExtension =
        FieldForEach({"txtModelExtension", "Modèle en Entrée"_t}, &FormatOption::modelExtension);

    // Kinship drawings
    ComboBox cboDrawKinship{*this,
                            {"cboDrawKinship"},
                            {"Ecrire Une"_t, "Ecrire Une +"_t, "Ecrire Toutes"_t, "Ecrire Toutes +"_t}};
    TextBox txtFont{*this, Hidden({"txtFont"}), "Text1"};
    Label lblFont{*this,
                  {"lblFont", "Arial"_t,
                   "Montre la police de caractères utilisée dans les cellules des liens de parenté."_t}};
    OptionGroup optFullName{
        *this,
        {"optFullName"},
        {"Prénom, NOM"_t, "NOM"_t},
        0,
        {"Dans les cellules d'individus, le prénom et le nom (en MAJUSCULES) de l'individu seront indiqués."_t,
         "Dans les cellules d'individus, seul le nom de l'individu en MAJUSCULES sera repris."_t}};
    CheckBox chkIndiID{
        *this,
        {"chkIndiID", "ID"_t,
         "Dans les cellules d'individus, l'identifiant de l'individu sera également repris."_t},
        true};
    CheckBox chkIndiBirthDate{
        *this,
        {"chkIndiBirthDate", "Date"_t,
         "Dans les cellules d'individus, la date de naissance de l'individu sera également reprise."_t},
        true};
    CheckBox chkIndiBirthPlace{
        *this,
        {"chkIndiBirthPlace", "Lieu"_t,
         "Dans les cellules d'individus, le lieu de naissance de l'individu sera également repris."_t},
        true};
    CheckBox chkIndiDeathDate{
        *this,
        {"chkIndiDeathDate", "Date"_t,
         "Dans les cellules d'individus, la date de décès de l'individu sera également reprise."_t},
        true};
    CheckBox chkIndiDeathPlace{
        *this,
        {"chkIndiDeathPlace", "Lieu"_t,
         "Dans les cellules d'individus, le lieu de décès de l'individu sera également repris."_t},
        true};
    CheckBox chkMarrID{*this,
                       {"chkMarrID", "ID"_t,
                        "Dans les cellules de mariage, l'identifiant du mariage sera également repris."_t},
                       true};
    CheckBox chkMarrDate{
        *this,
        {"chkMarrDate", "Date"_t, "Dans les cellules de mariage, la date du mariage sera reprise."_t},
        true};
    CheckBox chkMarrPlace{
        *this,
        {"chkMarrPlace", "Lieu"_t, "Dans les cellules de mariage, le lieu du mariage sera repris."_t},
        true};
    ColourButton cmdColorMale{
        *this, {"cmdColorMale", "Homme"_t, "Couleur de fond des cellules pour un homme."_t}, 0x0080C0FF};
    ColourButton cmdColorFemale{
        *this, {"cmdColorFemale", "Femme"_t, "Couleur de fond des cellules pour une femme."_t}, 0x00FFFF80};
    ColourButton cmdColorUndefined{
        *this,
        {"cmdColorUndefined", "?"_t,
         "Couleur de fond des cellules pour un individu dont le sexe est inconnu."_t},
        0x00FFFFFF};
    TextBox txtKinWidth{*this, {"txtKinWidth", "Largeur"_t, "Largeur des cellules."_t}, "150"};
    TextBox txtKinHeight{*this, {"txtKinHeight", "Hauteur"_t, "Hauteur des cellules."_t}, "80"};
    TextBox txtKinH{*this, {"txtKinH", "Ecart Horizontal"_t, "Ecart horizontal entre les cellules."_t}, "50"};
    TextBox txtKinV{*this, {"txtKinV", "Ecart Vertical"_t, "Ecart vertical entre les cellules."_t}, "30"};
    CheckBox txtKinshipLandscape{*this, Hidden({"txtKinshipLandscape"}), true};
    /// What the drawing of a path takes of the tab beside or below the list, in thousandths.
    TextBox txtPictureShare{*this, Hidden({"txtPictureShare"}), "400"};

    // Behaviour
    CheckBox chkTips{
        *this, {"chkTips", "Montrer les conseils (\"ToolTips\") dans la liste \"Sortie\"."_t}, true};
    CheckBox chkCheckUpdates{
        *this, {"chkCheckUpdates", "Tester au démarrage si une nouvelle version est disponible."_t}, false};
    CheckBox chkPrivate{
        *this,
        {"chkPrivate", "Masquer les personnes vivantes"_t,
         "Est vivante une personne sans décès ni inhumation, née depuis moins d'années que le nombre\r\n"
         "indiqué, ou sans année de naissance et proche d'une telle personne. Le Relevé-vif, les dessins\r\n"
         "et l'extrait ne montrent rien d'elle que ses liens ; les listes de cette fenêtre montrent tout."_t},
        false};
    TextBox txtPrivateYears{
        *this,
        {"txtPrivateYears", {}, "Née depuis moins d'années que cela, une personne est vivante."_t},
        kDefaultPrivateYears};
    CheckBox chkMaxLinks{*this, {"chkMaxLinks", "Le nombre de liaisons est > que"_t}, false};
    TextBox txtMaxLinks{*this, {"txtMaxLinks"}, "50"};
    CheckBox chkMaxSpouses{*this, {"chkMaxSpouses", "Le nombre de conjoints est > que"_t}, false};
    TextBox txtMaxSpouses{*this, {"txtMaxSpouses"}, "50"};
    CheckBox chkNearest{
        *this,
        {"chkNearest", "Les plus proches d'abord"_t,
         "La recherche de parenté donne les liens les plus proches, sans chercher tous les autres :\r\n"
         "d'abord ceux qui passent par le moins de mariages, et parmi eux les plus courts."_t},
        false};
    TextBox txtNearest{*this,
                       {"txtNearest", {}, "Nombre de liens que donne la recherche des plus proches."_t},
                       Text(kDefaultNearest)};
    CheckBox chkIgnoreCase{*this, {"chkIgnoreCase", "ABC=abc"_t}, true};
    CheckBox chkDelAccents{
        *this, {"chkDelAccents", "Compare sans accents, ni ponctuation, ni caractères spéciaux"_t}, true};

  private:
    std::vector<Text> EachFormat(Text FormatOption::*part) const;
    int FirstChoice() const;
    /// A control array with a text for each format.
    std::deque<TextBox> FieldForEach(ControlTexts texts, Text FormatOption::*standard);
};

}  // namespace swiftroll

#include "app/option_record.h"

#include <algorithm>

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

Text PlacesOrderTip() {
    const TextView lines[] = {
        "Faire glisser les lignes pour les réordonner."_t,
        "Pris en compte lors de la Lecture ET lors du Recalcul"_t,
        "(peuvent donc être différents si l'ordre est changé entretemps)."_t,
        "Si \"Lire Familles\" n'est cochée,"_t,
        "il n'y aura pas d'information sur les mariages/divorces/..."_t,
    };
    return Concat({lines[0], kLineEnd, lines[1], kLineEnd, lines[2], kLineEnd, lines[3], kLineEnd, lines[4]});
}

std::vector<Text> Texts(std::initializer_list<TextView> texts) { return {texts.begin(), texts.end()}; }

constexpr TextView kFavorites = "Favoris"_t;

std::vector<Text> EachFormat(std::span<const FormatOption> formats, Text FormatOption::*part) {
    std::vector<Text> parts;
    for (const FormatOption& format : formats) parts.push_back(format.*part);
    return parts;
}

int FirstChoice(std::span<const FormatOption> formats) {
    const auto first =
        std::find_if(formats.begin(), formats.end(), std::mem_fn(&FormatOption::isFirstChoice));
    return first == formats.end() ? 0 : static_cast<int>(first - formats.begin());
}

/// A control array with a field for each format.
std::deque<TextBox> Extensions(Window& window, ControlTexts texts, const std::vector<Text>& standard) {
    std::deque<TextBox> fields;
    for (const Text& extension : standard) {
        texts.index = static_cast<int>(fields.size());
        fields.emplace_back(window, texts, extension);
    }
    return fields;
}

}  // namespace

OptionRecord::OptionRecord(std::span<const FormatOption> formats)
    : Window("frmMain"),
      cboCells(*this, {"cboCells", "Jeu de paramètres des cellules"_t}),
      cboColumns(*this, {"cboColumns", "Jeu de positions et largeurs des colonnes"_t}),
      cboOutPlace(*this, {"cboOutPlace", "Jeu de paramètres des lieux"_t}),
      cboFavorites{ComboBox(*this, {"cboFavorites", kFavorites, {}, 0}),
                   ComboBox(*this, {"cboFavorites", kFavorites, {}, 1}),
                   ComboBox(*this, {"cboFavorites", kFavorites, {}, 2}),
                   ComboBox(*this, {"cboFavorites", kFavorites, {}, 3}),
                   ComboBox(*this, {"cboFavorites", kFavorites, {}, 4}),
                   ComboBox(*this, {"cboFavorites", kFavorites, {}, 5})},
      cboLoad(*this, {"cboLoad", {}, "Sélectionne l'action par défaut du bouton à gauche"_t},
              Texts({"Lire Tout"_t, "Lire Sans Famille"_t})),
      chkProcFamilies(
          *this,
          {"chkProcFamilies", "Lire Familles"_t,
           "Nécessite une relecture du fichier GedCom en entrée pour traiter la définition des familles."_t},
          true),
      chkUpperNames(*this,
                    {"chkUpperNames", "Afficher les NOMS en MAJUSCULES"_t,
                     "Ne convertit pas les noms, c'est uniquement leur affichage qui est concerné."_t},
                    false),
      chkInvertNames(*this,
                     {"chkInvertNames", "Inversion Nom/Prénom"_t, "Lors de la lecture du fichier GEDCOM"_t},
                     false),
      cboGedIn(*this, {"cboGedIn", "Entrée GED"_t}),
      cboGedOut(*this, {"cboGedOut", "Sortie GED"_t}),
      cboSwiftOut(*this, {"cboSwiftOut", "Sortie Relevé-vif + XSL"_t}),
      cboFileModel(*this, {"cboFileModel", "Entrée Modèle HTML"_t}),
      cboKinship(*this, {"cboKinship", "Sortie Liens Parenté"_t,
                         "Fichier qui contiendra le graphique des liens de parentés"_t}),
      lblOut(*this, {"lblOut", "Sortie Relevé-vif + XSL"_t}),
      lblModel(*this, {"lblModel", "Entrée Modèle HTML"_t}),
      lbOuputPlacesOrder(
          *this, {"lbOuputPlacesOrder", "Ordre de sélection des Lieux && Dates"_t, PlacesOrderTip()},
          {{Text("Naissance"_t), 1}, {Text("Décès"_t), 2}, {Text("Mariage, Divorce,..."_t), 3}}),
      txtPlaceFormat(*this, {"txtPlaceFormat", "Format"_t, "%1=1er lieu,... %0=Tout, %%=%"_t}, "%0"),
      txtPlaceSepar(
          *this,
          {"txtPlaceSepar", "Séparateur de lieux"_t,
           "Séparteur des lieux (par ex. \",\") pour indiquer quel est le lieu n° 1, le 2ième,..."_t},
          ","),
      chkTrimSepar(*this,
                   {"chkTrimSepar", "Supprimer derniers séparateurs"_t,
                    "Pour supprimer les séparateurs et espaces isolés en fin de ligne"_t},
                   true),
      optTabSpace(*this, {"optTabSpace"}, Texts({"Tabulations"_t, "Espaces"_t}), 0),
      chkIncludeHeaders(*this, {"chkIncludeHeaders", "Inclure les noms de colonnes"_t}, true),
      txtINDEX(
          *this,
          {"txtINDEX", "Index HTML"_t, "0 = Pas d'index, sinon nombre de caractères par entrée de %INDEX%"_t},
          "1"),
      chkGenerXSL(*this, {"chkGenerXSL", "+ XSL"_t}, true),
      optOutExtension(*this, {"optOutExtension"}, EachFormat(formats, &FormatOption::caption),
                      FirstChoice(formats)),
      cboSaveSwift(*this, {"cboSaveSwift"}, EachFormat(formats, &FormatOption::command)),
      txtOutExtension(Extensions(*this, {"txtOutExtension", "Liste en Sortie"_t},
                                 EachFormat(formats, &FormatOption::outExtension))),
      txtModelExtension(Extensions(*this, {"txtModelExtension", "Modèle en Entrée"_t},
                                   EachFormat(formats, &FormatOption::modelExtension))),
      cboDrawKinship(*this, {"cboDrawKinship"},
                     Texts({"Ecrire Une"_t, "Ecrire Une +"_t, "Ecrire Toutes"_t, "Ecrire Toutes +"_t})),
      txtFont(*this, {"txtFont"}, "Text1"),
      lblFont(*this, {"lblFont", "Arial"_t,
                      "Montre la police de caractères utilisée dans les cellules des liens de parenté."_t}),
      optFullName(
          *this, {"optFullName"}, Texts({"Prénom, NOM"_t, "NOM"_t}), 0,
          Texts(
              {"Dans les cellules d'individus, le prénom et le nom (en MAJUSCULES) de l'individu seront indiqués."_t,
               "Dans les cellules d'individus, seul le nom de l'individu en MAJUSCULES sera repris."_t})),
      chkIndiID(*this,
                {"chkIndiID", "ID"_t,
                 "Dans les cellules d'individus, l'identifiant de l'individu sera également repris."_t},
                true),
      chkIndiBirthDate(
          *this,
          {"chkIndiBirthDate", "Date"_t,
           "Dans les cellules d'individus, la date de naissance de l'individu sera également reprise."_t},
          true),
      chkIndiBirthPlace(
          *this,
          {"chkIndiBirthPlace", "Lieu"_t,
           "Dans les cellules d'individus, le lieu de naissance de l'individu sera également repris."_t},
          true),
      chkIndiDeathDate(
          *this,
          {"chkIndiDeathDate", "Date"_t,
           "Dans les cellules d'individus, la date de décès de l'individu sera également reprise."_t},
          true),
      chkIndiDeathPlace(
          *this,
          {"chkIndiDeathPlace", "Lieu"_t,
           "Dans les cellules d'individus, le lieu de décès de l'individu sera également repris."_t},
          true),
      chkMarrID(*this,
                {"chkMarrID", "ID"_t,
                 "Dans les cellules de mariage, l'identifiant du mariage sera également repris."_t},
                true),
      chkMarrDate(
          *this,
          {"chkMarrDate", "Date"_t, "Dans les cellules de mariage, la date du mariage sera reprise."_t},
          true),
      chkMarrPlace(
          *this,
          {"chkMarrPlace", "Lieu"_t, "Dans les cellules de mariage, le lieu du mariage sera repris."_t},
          true),
      cmdColorMale(*this, {"cmdColorMale", "Homme"_t, "Couleur de fond des cellules pour un homme."_t},
                   0x0080C0FF),
      cmdColorFemale(*this, {"cmdColorFemale", "Femme"_t, "Couleur de fond des cellules pour une femme."_t},
                     0x00FFFF80),
      cmdColorUndefined(*this,
                        {"cmdColorUndefined", "?"_t,
                         "Couleur de fond des cellules pour un individu dont le sexe est inconnu."_t},
                        0x00FFFFFF),
      txtKinWidth(*this, {"txtKinWidth", "Largeur"_t, "Largeur des cellules."_t}, "150"),
      txtKinHeight(*this, {"txtKinHeight", "Hauteur"_t, "Hauteur des cellules."_t}, "80"),
      txtKinH(*this, {"txtKinH", "Ecart Horizontal"_t, "Ecart horizontal entre les cellules."_t}, "50"),
      txtKinV(*this, {"txtKinV", "Ecart Vertical"_t, "Ecart vertical entre les cellules."_t}, "30"),
      txtKinshipLandscape(*this, {"txtKinshipLandscape"}, true),
      chkTips(*this, {"chkTips", "Montrer les conseils (\"ToolTips\") dans la liste \"Sortie\"."_t}, true),
      chkCheckUpdates(
          *this, {"chkCheckUpdates", "Tester au démarrage si une nouvelle version est disponible."_t}, false),
      chkMaxLinks(*this, {"chkMaxLinks", "Le nombre de liaisons est > que"_t}, false),
      txtMaxLinks(*this, {"txtMaxLinks"}, "50"),
      chkMaxSpouses(*this, {"chkMaxSpouses", "Le nombre de conjoints est > que"_t}, false),
      txtMaxSpouses(*this, {"txtMaxSpouses"}, "50"),
      chkIgnoreCase(*this, {"chkIgnoreCase", "ABC=abc"_t}, true),
      chkDelAccents(
          *this, {"chkDelAccents", "Compare sans accents, ni ponctuation, ni caractères spéciaux"_t}, true) {
    cboOutPlace.SetText("Tout");
    chkProcFamilies.Visible = false;
    txtFont.Visible = false;
    txtKinshipLandscape.Visible = false;
}

}  // namespace swiftroll

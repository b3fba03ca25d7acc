#include "word_lists.h"

#include <initializer_list>
#include <string_view>

#include "windows_1252.h"

namespace bench {
namespace {

std::vector<std::string> Encoded(std::initializer_list<std::string_view> words) {
    std::vector<std::string> encoded;
    encoded.reserve(words.size());
    for (const std::string_view word : words) {
        encoded.push_back(ToWindows1252(word));
    }
    return encoded;
}

}  // namespace

std::vector<std::string> MaleGivenNames() {
    return Encoded(
        {"Jean",      "Pierre",    "François",   "Louis",     "Jacques",  "Antoine",    "Joseph",
         "Charles",   "Nicolas",   "Étienne",    "Claude",    "Michel",   "André",      "Guillaume",
         "Philippe",  "Laurent",   "Denis",      "Simon",     "Martin",   "Gabriel",    "Julien",
         "René",      "Mathurin",  "Jérôme",     "Benoît",    "Gilles",   "Barthélémy", "Noël",
         "Alexandre", "Auguste",   "Eugène",     "Émile",     "Jules",    "Henri",      "Paul",
         "Georges",   "Léon",      "Marcel",     "Alphonse",  "Célestin", "Clément",    "Désiré",
         "Edmond",    "Édouard",   "Félix",      "Ferdinand", "Firmin",   "Frédéric",   "Germain",
         "Hippolyte", "Honoré",    "Hyacinthe",  "Isidore",   "Léonard",  "Marin",      "Maurice",
         "Médard",    "Mathieu",   "Maximilien", "Narcisse",  "Onésime",  "Pascal",     "Prosper",
         "Raphaël",   "Raymond",   "Rémi",       "Sébastien", "Sylvain",  "Théodore",   "Théophile",
         "Thomas",    "Toussaint", "Urbain",     "Valentin",  "Victor",   "Vincent",    "Xavier",
         "Yves",      "Zacharie",  "Baptiste"});
}

std::vector<std::string> FemaleGivenNames() {
    return Encoded(
        {"Marie",        "Anne",        "Jeanne",      "Marguerite", "Françoise", "Catherine", "Louise",
         "Madeleine",    "Élisabeth",   "Perrine",     "Renée",      "Geneviève", "Barbe",     "Claudine",
         "Antoinette",   "Thérèse",     "Rose",        "Joséphine",  "Julie",     "Victoire",  "Adélaïde",
         "Agathe",       "Aimée",       "Alexandrine", "Andrée",     "Angélique", "Appoline",  "Augustine",
         "Berthe",       "Blanche",     "Brigitte",    "Cécile",     "Célestine", "Charlotte", "Claire",
         "Clémence",     "Clotilde",    "Colombe",     "Constance",  "Denise",    "Désirée",   "Émilie",
         "Ernestine",    "Étiennette",  "Eugénie",     "Euphrasie",  "Félicité",  "Flore",     "Gabrielle",
         "Germaine",     "Guillemette", "Hélène",      "Henriette",  "Honorine",  "Hortense",  "Jacquette",
         "Julienne",     "Léonie",      "Lucie",       "Marthe",     "Mathurine", "Michelle",  "Nicole",
         "Noëlle",       "Pauline",     "Pétronille",  "Philomène",  "Radegonde", "Reine",     "Rosalie",
         "Scholastique", "Simone",      "Sophie",      "Suzanne",    "Sylvie",    "Ursule",    "Véronique",
         "Victorine",    "Yvonne",      "Zoé"});
}

std::vector<std::string> Occupations() {
    return Encoded({"cultivateur",
                    "laboureur",
                    "journalier",
                    "manouvrier",
                    "domestique",
                    "vigneron",
                    "tisserand",
                    "couturière",
                    "fileuse",
                    "ménagère",
                    "charpentier",
                    "maçon",
                    "sabotier",
                    "cordonnier",
                    "meunier",
                    "boulanger",
                    "tailleur d’habits",
                    "maréchal-ferrant",
                    "forgeron",
                    "tonnelier",
                    "charron",
                    "bûcheron",
                    "berger",
                    "marchand",
                    "aubergiste",
                    "notaire royal",
                    "instituteur",
                    "garde champêtre",
                    "épicier",
                    "lingère",
                    "blanchisseuse",
                    "bonnetier",
                    "chirurgien",
                    "sage-femme",
                    "procureur fiscal",
                    "marinier",
                    "soldat",
                    "employé au chemin de fer",
                    "rentière",
                    "curé"});
}

std::vector<std::string> NoteSentences() {
    return Encoded({"Présent au mariage de son frère.",
                    "L’acte de baptême est illisible, l’âge est déduit de l’acte de décès.",
                    "Ne sait pas signer.", "Signe d’une belle écriture.", "Veuf, il se remarie dans l’année.",
                    "Parrain : son oncle maternel ; marraine : sa grand-mère.",
                    "Dispense de consanguinité du troisième degré.",
                    "Demeurant au hameau de la Croix-Blanche, près du moulin à eau.",
                    "Contrat de mariage passé devant maître Lefèvre, notaire.",
                    "Décédé à l’hôpital militaire, transcription dans les registres de la commune.",
                    "Le nom est parfois orthographié différemment dans les registres – à vérifier.",
                    "Recensement de 1841 : un cheval, deux vaches, cœur de village.",
                    "Source communiquée par archives@@exemple.fr …",
                    "Inhumé dans l’église, près de l’autel Notre-Dame."});
}

}  // namespace bench

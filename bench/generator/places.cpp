#include "places.h"

#include <array>
#include <string_view>
#include <unordered_set>

#include "random.h"
#include "windows_1252.h"

namespace bench {
namespace {

struct Department {
    std::string_view name;
    std::string_view region;
};

constexpr std::array<Department, 48> kDepartments = {{
    {"Ain", "Rhône-Alpes"},
    {"Aisne", "Picardie"},
    {"Allier", "Auvergne"},
    {"Ardèche", "Rhône-Alpes"},
    {"Ariège", "Midi-Pyrénées"},
    {"Aube", "Champagne-Ardenne"},
    {"Aveyron", "Midi-Pyrénées"},
    {"Calvados", "Basse-Normandie"},
    {"Cantal", "Auvergne"},
    {"Charente", "Poitou-Charentes"},
    {"Cher", "Centre"},
    {"Corrèze", "Limousin"},
    {"Côte-d’Or", "Bourgogne"},
    {"Côtes-d’Armor", "Bretagne"},
    {"Creuse", "Limousin"},
    {"Dordogne", "Aquitaine"},
    {"Doubs", "Franche-Comté"},
    {"Drôme", "Rhône-Alpes"},
    {"Eure", "Haute-Normandie"},
    {"Finistère", "Bretagne"},
    {"Gers", "Midi-Pyrénées"},
    {"Gironde", "Aquitaine"},
    {"Hérault", "Languedoc-Roussillon"},
    {"Ille-et-Vilaine", "Bretagne"},
    {"Indre", "Centre"},
    {"Isère", "Rhône-Alpes"},
    {"Jura", "Franche-Comté"},
    {"Landes", "Aquitaine"},
    {"Loiret", "Centre"},
    {"Lot", "Midi-Pyrénées"},
    {"Maine-et-Loire", "Pays de la Loire"},
    {"Manche", "Basse-Normandie"},
    {"Marne", "Champagne-Ardenne"},
    {"Mayenne", "Pays de la Loire"},
    {"Meuse", "Lorraine"},
    {"Morbihan", "Bretagne"},
    {"Moselle", "Lorraine"},
    {"Nièvre", "Bourgogne"},
    {"Nord", "Nord-Pas-de-Calais"},
    {"Oise", "Picardie"},
    {"Orne", "Basse-Normandie"},
    {"Puy-de-Dôme", "Auvergne"},
    {"Sarthe", "Pays de la Loire"},
    {"Savoie", "Rhône-Alpes"},
    {"Somme", "Picardie"},
    {"Vendée", "Pays de la Loire"},
    {"Vosges", "Lorraine"},
    {"Yonne", "Bourgogne"},
}};

constexpr std::array<std::string_view, 40> kStems = {
    "Aub",  "Bagn", "Barc",  "Bell", "Bouss", "Bray",  "Brét", "Cant", "Champ", "Chât",
    "Chav", "Clér", "Couc",  "Dann", "Doul",  "Échar", "Épin", "Favr", "Flav",  "Font",
    "Gann", "Gém",  "Grand", "Hér",  "Joss",  "Lav",   "Lign", "Mar",  "Més",   "Mont",
    "Neuv", "Orb",  "Pér",   "Quér", "Ros",   "Sauv",  "Tann", "Trév", "Vaux",  "Vill"};

constexpr std::array<std::string_view, 24> kEndings = {
    "igny",  "ville", "court", "ac",   "ay",      "ières", "euil",    "anges",
    "on",    "ers",   "y",     "eau",  "elles",   "ôme",   "oire",    "igné",
    "ensac", "ines",  "ois",   "euve", "ézières", "olles", "assonne", "out"};

constexpr std::array<std::string_view, 28> kSaints = {
    "Saint-Étienne", "Saint-Martin",     "Saint-Pierre",  "Saint-Aubin",    "Saint-Benoît",  "Saint-Cyr",
    "Saint-Denis",   "Saint-Rémy",       "Saint-Hilaire", "Saint-Germain",  "Saint-Léger",   "Saint-Médard",
    "Saint-Ouen",    "Saint-Jean",       "Saint-Julien",  "Saint-Laurent",  "Saint-Georges", "Saint-Loup",
    "Sainte-Marie",  "Sainte-Geneviève", "Sainte-Hélène", "Sainte-Colombe", "Saint-Sulpice", "Saint-Vaast",
    "Saint-Privé",   "Saint-Barthélemy", "Saint-Côme",    "Saint-Éloi"};

constexpr std::array<std::string_view, 20> kSuffixes = {
    "-sur-Loire", "-le-Vieux",  "-en-Bray",    "-la-Forêt",  "-sur-Sèvre", "-les-Bois", "-le-Château",
    "-du-Désert", "-sous-Bois", "-l’Abbaye",   "-sur-Mer",   "-en-Plaine", "-le-Grand", "-le-Petit",
    "-aux-Mines", "-d’Anjou",   "-la-Rivière", "-sur-Aisne", "-des-Prés",  "-le-Guérêt"};

std::string ComposeName(Random& random) {
    const bool saint = random.Chance(350);
    std::string name(saint ? kSaints[random.Below(kSaints.size())] : kStems[random.Below(kStems.size())]);
    if (!saint) {
        name.append(kEndings[random.Below(kEndings.size())]);
    }
    if (random.Chance(saint ? 800 : 200)) {
        name.append(kSuffixes[random.Below(kSuffixes.size())]);
    }
    return name;
}

}  // namespace

std::vector<Commune> ComposeCommunes() {
    Random random(0x436F6D6D756E6573ULL);  // the list is part of the program, not of the seed
    std::vector<Commune> communes;
    communes.reserve(kCommuneCount);
    std::unordered_set<std::string> seen;  // homonyms are welcome, but not within one department
    while (communes.size() < kCommuneCount) {
        const Department& department = kDepartments[communes.size() * kDepartments.size() / kCommuneCount];
        const std::string name = ComposeName(random);
        std::string place = name;
        place.append(", ").append(department.name).append(", ").append(department.region).append(", France");
        if (seen.insert(place).second) {
            communes.push_back({ToWindows1252(name), ToWindows1252(place)});
        }
    }
    return communes;
}

}  // namespace bench

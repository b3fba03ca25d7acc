#include "surnames.h"

#include <array>
#include <string_view>
#include <unordered_set>

#include "random.h"
#include "windows_1252.h"

namespace bench {
namespace {

constexpr std::array<std::string_view, 56> kFrequent = {
    "Martin",    "Bernard",  "Dubois",  "Thomas",   "Robert",   "Richard",  "Petit",   "Durand",
    "Leroy",     "Moreau",   "Simon",   "Laurent",  "Lefèvre",  "Michel",   "Garcin",  "David",
    "Bertrand",  "Roux",     "Vincent", "Fournier", "Morel",    "Girard",   "André",   "Lefebvre",
    "Mercier",   "Dupont",   "Lambert", "Bonnet",   "François", "Martinet", "Legrand", "Garnier",
    "Faure",     "Rousseau", "Blanc",   "Guérin",   "Müller",   "Henry",    "Roussel", "Nicolas",
    "Perrin",    "Morin",    "Mathieu", "Clément",  "Gauthier", "Dumont",   "Lopès",   "Fontaine",
    "Chevalier", "Robin",    "Masson",  "Lebœuf",   "Noël",     "Gérard",   "Boyer",   "Denis"};

constexpr std::array<std::string_view, 72> kRoots = {
    "Aub",    "Baill", "Barr",  "Baud",   "Bell", "Berth", "Blanch", "Boiss", "Bonn",   "Bouch", "Boud",
    "Bourd",  "Brett", "Brun",  "Caill",  "Carr", "Chab",  "Chamb",  "Charb", "Chass",  "Chauv", "Cord",
    "Coul",   "Courb", "Crép",  "Dauph",  "Delm", "Desch", "Drou",   "Dub",   "Dup",    "Échev", "Étienn",
    "Fauch",  "Ferr",  "Fleur", "Forest", "Foug", "Gaill", "Gard",   "Gaud",  "Géraud", "Gill",  "Godefr",
    "Gouj",   "Grang", "Gren",  "Guil",   "Hard", "Héb",   "Hubl",   "Jacqu", "Jol",    "Jouv",  "Labr",
    "Lachén", "Lamb",  "Maill", "March",  "Mén",  "Mont",  "Mour",   "Noir",  "Pell",   "Perr",  "Poul",
    "Raff",   "Rén",   "Roch",  "Sauv",   "Thév", "Vign"};

constexpr std::array<std::string_view, 48> kEndings = {
    "eau",   "et",   "ier",    "ot",  "in",    "ard",   "aud",  "el",  "elle",  "on",    "ois",  "ay",
    "é",     "ère",  "ault",   "eux", "igny",  "ac",    "ange", "ert", "illon", "ineau", "ouin", "ette",
    "ais",   "an",   "ant",    "ès",  "érac",  "ille",  "ière", "us",  "ou",    "y",     "oux",  "erie",
    "etier", "aine", "andier", "as",  "ereau", "ichon", "iol",  "ol",  "ance",  "eron",  "ême",  "oy"};

constexpr std::array<std::string_view, 6> kParticles = {"Le ", "De ", "La ", "de La ", "d’", "Saint-"};

}  // namespace

std::vector<std::string> ComposeSurnames() {
    Random random(0x5375726E616D6573ULL);  // the list is part of the program, not of the seed
    std::vector<std::string> composed;
    for (const std::string_view root : kRoots) {
        for (const std::string_view ending : kEndings) {
            std::string name = std::string(root).append(ending);
            if (random.Chance(40)) {
                name.insert(0, kParticles[random.Below(kParticles.size())]);
            }
            composed.push_back(std::move(name));
        }
    }
    Shuffle(composed, random);

    std::vector<std::string> surnames;
    std::unordered_set<std::string> seen;
    const auto add = [&](std::string_view name) {
        if (seen.emplace(name).second) {
            surnames.push_back(ToWindows1252(name));
        }
    };
    for (const std::string_view name : kFrequent) {
        add(name);
    }
    for (const std::string& name : composed) {
        add(name);
    }
    return surnames;
}

}  // namespace bench

#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <limits>
#include <map>

namespace swiftroll::cli {
namespace {

/// Cuts a list at its commas; an empty text is the empty list.
std::vector<std::string> SplitList(const std::string& list) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    while (!list.empty() && from <= list.size()) {
        const std::size_t comma = std::min(list.find(',', from), list.size());
        parts.push_back(list.substr(from, comma - from));
        from = comma + 1;
    }
    return parts;
}

/// Calls `take` for each option of a kind, with its value, in the order of the command line.
template <class Kind, class Take>
void TakeInOrder(const CLI::App& app, const std::map<const CLI::Option*, Kind>& kinds, Take take) {
    std::map<const CLI::Option*, std::size_t> seen;
    for (const CLI::Option* option : app.parse_order()) {
        const auto found = kinds.find(option);
        if (found != kinds.end()) take(found->second, option->results().at(seen[option]++));
    }
}

/// Declares one job with the options of every job.
class JobParser {
  public:
    JobParser(CLI::App& app, const std::string& name, Arguments& arguments)
        : sub_(*app.add_subcommand(name)), arguments_(arguments) {
        sub_.set_help_flag();
        sub_.add_option("FICHIER", arguments.input);
        for (const auto& [option, kind] : {std::pair{"--set", Setting::Kind::Field},
                                           std::pair{"--ordre-lieux", Setting::Kind::PlacesOrder},
                                           std::pair{"--colonnes", Setting::Kind::Columns}}) {
            ordered_[AddOrdered(option)] = kind;
        }
        ordered_[sub_.add_flag("--sans-familles")] = Setting::Kind::WithoutFamilies;
        for (const auto& [option, kind] :
             {std::pair{"--marquer", MarkStep::Kind::Mark}, std::pair{"--ajouter", MarkStep::Kind::Add},
              std::pair{"--enlever", MarkStep::Kind::Remove}}) {
            markSteps_[AddOrdered(option)] = kind;
        }
        sub_.add_flag("--strict", arguments.strict);
        sub_.add_flag("-f,--ecraser", arguments.overwrite);
        sub_.add_flag("-q,--silencieux", arguments.quiet);
    }
    CLI::App& Sub() { return sub_; }

    void Collect() {
        TakeInOrder(sub_, ordered_, [&](Setting::Kind kind, const std::string& value) {
            arguments_.settings.push_back({kind, value});
        });
        TakeInOrder(sub_, markSteps_, [&](MarkStep::Kind kind, const std::string& value) {
            if (kind != MarkStep::Kind::Mark) return arguments_.markSteps.push_back({kind, value});
            for (const std::string& id : SplitList(value)) arguments_.markSteps.push_back({kind, id});
        });
    }

  private:
    CLI::Option* AddOrdered(const char* option) {
        return sub_.add_option(option)->expected(1)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    }

    CLI::App& sub_;
    Arguments& arguments_;
    std::map<const CLI::Option*, Setting::Kind> ordered_;
    std::map<const CLI::Option*, MarkStep::Kind> markSteps_;
};

/// A number above 0 of an option; 0 when the option was not given. @throws UsageError
template <class Number>
Number Limit(const CLI::Option& option) {
    Number number = 0;
    if (option.count() == 0) return number;
    const std::string& word = option.results().back();
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    // A number that is not finite is none.
    const bool isWhole = error == std::errc() && end == word.data() + word.size();
    if (!isWhole || !(number > 0 && number <= std::numeric_limits<std::int32_t>::max())) {
        throw UsageError(option.get_name() + " attend un nombre positif : " + word);
    }
    return number;
}

/// The place of a mode in the list of the drawing command. @throws UsageError
int DrawingMode(const std::string& mode) {
    const std::string modes[] = {"une", "une+", "toutes", "toutes+"};
    if (mode.empty()) return 3;
    const auto found = std::find(std::begin(modes), std::end(modes), mode);
    if (found == std::end(modes)) throw UsageError("mode de dessin inconnu : " + mode);
    return static_cast<int>(found - std::begin(modes));
}

/// @throws UsageError for options of a drawing that do not go together
void CheckDrawing(const Arguments& arguments, bool hasMode) {
    constexpr int kAll = 2;
    const bool hasRows = !arguments.drawnRows.empty();
    if (arguments.drawing.empty() && (hasMode || hasRows)) {
        throw UsageError("--mode et --lignes demandent un dessin : --dessin SORTIE.html");
    }
    if (hasRows && arguments.drawingMode >= kAll)
        throw UsageError("--lignes ne va qu'avec --mode une ou une+");
    if (arguments.drawing == "-" && (arguments.output.empty() || arguments.output == "-")) {
        throw UsageError("la liste et le dessin ne peuvent aller tous deux à l'écran : donnez -o LISTE");
    }
}

std::string Joined(const std::vector<std::string>& words) {
    std::string joined;
    for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

/// The library's message, in French.
std::string Translated(const CLI::ParseError& error, const CLI::App& app) {
    const std::string what = error.what();
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        return "argument inconnu ou pas encore possible : " + Joined(app.remaining(true));
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return "valeur manquante ou en trop pour " + what.substr(0, what.find(':'));
    }
    return "arguments incorrects (" + what + ")";
}

}  // namespace

Arguments ParseArguments(int argc, const char* const* argv) {
    Arguments arguments;
    CLI::App app;
    app.set_help_flag();
    app.require_subcommand(0, 1);
    const CLI::Option* help = app.add_flag("--aide");
    const CLI::Option* version = app.add_flag("--version");

    JobParser tables(app, "tables", arguments);
    std::string tableList = "lvwIn";
    tables.Sub().add_option("-t", tableList);
    tables.Sub().add_flag("--cles", arguments.withKeys);

    JobParser releve(app, "releve", arguments);
    releve.Sub().add_option("-o", arguments.output);
    releve.Sub().add_option("--format", arguments.format);
    releve.Sub().add_option("--modele", arguments.model);
    releve.Sub().add_flag("--xsl", arguments.withStylesheet);
    releve.Sub().add_flag("--marques", arguments.markedOnly);

    JobParser parente(app, "parente", arguments);
    parente.Sub().add_option("ID1", arguments.fromId);
    parente.Sub().add_option("ID2", arguments.toId);
    std::string kinshipTables = "lvwKinship";
    parente.Sub().add_option("-t", kinshipTables);
    parente.Sub().add_option("-o", arguments.output);
    std::string ignored, drawnRows, drawingMode;
    parente.Sub().add_option("--dessin", arguments.drawing);
    parente.Sub().add_option("--mode", drawingMode);
    parente.Sub().add_option("--lignes", drawnRows);
    const CLI::Option* mostPaths = parente.Sub().add_option("--max", ignored);
    const CLI::Option* mostSeconds = parente.Sub().add_option("--delai", ignored);

    JobParser extrait(app, "extrait", arguments);
    extrait.Sub().add_option("-o", arguments.output);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        throw UsageError(Translated(error, app));
    }
    if (help->count() > 0) return arguments;
    if (version->count() > 0) {
        arguments.job = JobKind::Version;
        return arguments;
    }
    if (tables.Sub().parsed()) {
        arguments.job = JobKind::Tables;
        tables.Collect();
        arguments.tables = SplitList(tableList);
    } else if (releve.Sub().parsed()) {
        arguments.job = JobKind::Releve;
        releve.Collect();
    } else if (parente.Sub().parsed()) {
        arguments.job = JobKind::Parente;
        parente.Collect();
        arguments.tables = SplitList(kinshipTables);
        arguments.mostPaths = Limit<std::int64_t>(*mostPaths);
        arguments.mostSeconds = Limit<double>(*mostSeconds);
        arguments.drawnRows = SplitList(drawnRows);
        arguments.drawingMode = DrawingMode(drawingMode);
        CheckDrawing(arguments, !drawingMode.empty());
    } else if (extrait.Sub().parsed()) {
        arguments.job = JobKind::Extrait;
        extrait.Collect();
    } else {
        throw UsageError("il manque le travail à faire : tables, releve, parente ou extrait");
    }
    if (arguments.input.empty()) throw UsageError("il manque le fichier GEDCOM à lire");
    const bool needsOutput = arguments.job == JobKind::Releve || arguments.job == JobKind::Extrait;
    if (needsOutput && arguments.output.empty()) {
        throw UsageError("il manque le fichier à écrire : -o SORTIE");
    }
    if (arguments.job == JobKind::Parente && arguments.toId.empty()) {
        throw UsageError("il manque les identifiants des deux individus");
    }
    return arguments;
}

std::string HelpText() {
    return R"(SwiftRoll : relevés à partir d'un fichier GEDCOM

  swiftroll-cli tables FICHIER.ged [-t TABLE[,TABLE...]] [--cles]
      affiche des tables (lvwIn si rien n'est dit) : une ligne par rangée, les cellules séparées par une
      tabulation. Tables : lvwIn, lvwOut, lvwXref, lvwXref1, lvwFamily, lvwFamilyXref, lvwKinship.
      --cles met devant la clé, l'étiquette et les marques de chaque rangée.

  swiftroll-cli releve FICHIER.ged -o SORTIE [--format html|texte|xml] [--modele FICHIER] [--xsl] [--marques]
      écrit le Relevé-vif ; « -o - » l'envoie à l'écran. Sans --format, l'extension de SORTIE décide.
      --xsl écrit aussi la feuille de style à côté du XML, --marques n'écrit que les lignes marquées.

  swiftroll-cli parente FICHIER.ged ID1 ID2 [-t TABLE[,TABLE...]] [-o LISTE] [--dessin SORTIE.html]
                        [--mode une|une+|toutes|toutes+] [--lignes SEQ[,SEQ...]] [--max N] [--delai SECONDES]
      cherche tous les liens de parenté du premier individu au second, et affiche les chemins (lvwKinship),
      ou écrit les tables dans LISTE. --max arrête la recherche après N chemins, --delai après ce temps ; ce
      qui est trouvé est gardé et affiché. --set chkMaxLinks=1 --set txtMaxLinks=N ne garde que les chemins
      d'au plus N lignes, chkMaxSpouses et txtMaxSpouses ceux d'au plus N conjoints.
      --dessin dessine ensuite tous les chemins (toutes, toutes+ avec les conjoints, qui est le défaut), ou
      ceux des lignes données par leur numéro (une, une+ ; la première ligne si rien n'est dit).

  swiftroll-cli extrait FICHIER.ged -o SORTIE.ged
      écrit un fichier GEDCOM des individus marqués (--marquer, --ajouter), avec leurs familles et tout ce à
      quoi ils se réfèrent.

  swiftroll-cli --aide | --version

Options de tous les travaux, dans l'ordre de la ligne de commande :
  --set CHAMP=VALEUR        fixe une option par son nom : --set chkDelAccents=0, --set "txtPlaceFormat=%1"
  --sans-familles           lit sans les familles
  --ordre-lieux 2,1,3       ordre de choix du lieu : 1 naissance, 2 décès, 3 mariage
  --colonnes CLE[,CLE...]   colonnes du relevé devant le nombre (LastName,Place,DateMin,DateMax si rien n'est
                            dit) ; la liste vide met le nombre en premier
  --marquer ID[,ID...]      marque ces individus après la lecture
  --ajouter MODE            marque aussi ceux auxquels mènent les individus marqués, --enlever MODE enlève
  --enlever MODE            leurs marques. MODE : individus, parents, conjoints, enfants, ou une colonne de
                            lvwIn et une comparaison : "LastName=", "BirthMin<=", "BirthMin>=" (les individus
                            dont la valeur est égale, au plus, ou au moins celle d'un individu marqué, en
                            ordre de texte). La table est parcourue de haut en bas : qui vient d'être marqué
                            plus haut compte à son tour
  --strict                  arrête la lecture à la première ligne fautive ou au jeu de caractères inconnu
  -f, --ecraser             écrase un fichier existant
  -q, --silencieux          ni progression ni textes d'état

Codes de sortie : 0 fait, 1 échec ou refus, 2 ligne de commande incorrecte, 3 arrêté (Ctrl-C, --strict,
--max, --delai).
)";
}

}  // namespace swiftroll::cli

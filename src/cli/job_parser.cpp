#include "job_parser.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <limits>
#include <utility>

#include "job.h"
#include "settings.h"
#include "words.h"

namespace swiftroll::cli {
namespace {

/// A number above 0. @throws UsageError that names the option
template <class Number>
Number LimitOf(const CLI::Option& option) {
    Number number = 0;
    const std::string& word = option.results().back();
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    // A number that is not finite is none.
    const bool isWhole = error == std::errc() && end == word.data() + word.size();
    if (!isWhole || !(number > 0 && number <= std::numeric_limits<std::int32_t>::max())) {
        throw UsageError(option.get_name() + " attend un nombre positif : " + word);
    }
    return number;
}

}  // namespace

JobParser::JobParser(CLI::App& app, Job& job, Arguments& arguments)
    : sub_(*app.add_subcommand(job.Name())), job_(job) {
    sub_.set_help_flag();
    Argument("FICHIER", arguments.input);
    Require(arguments.input, "il manque le fichier GEDCOM à lire");
    DeclareCommon(arguments);
    job.Declare(*this);
}

void JobParser::DeclareCommon(Arguments& arguments) {
    for (const auto& [name, kind] :
         {std::pair{"--set", Setting::Kind::Field}, std::pair{"--ordre-lieux", Setting::Kind::PlacesOrder},
          std::pair{"--colonnes", Setting::Kind::Columns}}) {
        Ordered(name, [&arguments, kind = kind](const std::string& value) {
            arguments.settings.push_back({kind, value});
        });
    }
    ordered_[sub_.add_flag("--sans-familles")] = [&arguments](const std::string& value) {
        arguments.settings.push_back({Setting::Kind::WithoutFamilies, value});
    };
    Ordered("--marquer", [&arguments](const std::string& value) {
        for (const std::string& id : Words(value)) {
            arguments.markSteps.push_back({MarkStep::Kind::Mark, id});
        }
    });
    for (const auto& [name, kind] :
         {std::pair{"--ajouter", MarkStep::Kind::Add}, std::pair{"--enlever", MarkStep::Kind::Remove}}) {
        Ordered(name, [&arguments, kind = kind](const std::string& value) {
            arguments.markSteps.push_back({kind, value});
        });
    }
    Flag("--strict", arguments.strict);
    Flag("-f,--ecraser", arguments.overwrite);
    Flag("--grand", arguments.large);
    Flag("-q,--silencieux", arguments.quiet);
}

void JobParser::Argument(const char* name, std::string& value) { sub_.add_option(name, value); }

void JobParser::Option(const char* name, std::string& value) { sub_.add_option(name, value); }

void JobParser::Flag(const char* name, bool& isGiven) { sub_.add_flag(name, isGiven); }

void JobParser::Ordered(const char* name, Take take) {
    CLI::Option* option = sub_.add_option(name)->expected(1);
    ordered_[option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)] = std::move(take);
}

const CLI::Option& JobParser::Unconverted(const char* name) { return *sub_.add_option(name)->expected(1); }

void JobParser::List(const char* name, std::vector<std::string>& words) {
    conversions_.emplace_back([&option = Unconverted(name), &words] {
        if (option.count() > 0) words = Words(option.results().back());
    });
}

template <class Number>
void JobParser::NumberOption(const char* name, Number& limit) {
    conversions_.emplace_back([&option = Unconverted(name), &limit] {
        if (option.count() > 0) limit = LimitOf<Number>(option);
    });
}

void JobParser::Limit(const char* name, std::int64_t& limit) { NumberOption(name, limit); }

void JobParser::Limit(const char* name, double& limit) { NumberOption(name, limit); }

void JobParser::Output(std::string& file) {
    Option("-o", file);
    Require(file, "il manque le fichier à écrire : -o SORTIE");
}

void JobParser::Require(const std::string& value, const char* message) {
    required_.push_back({value, message});
}

Job* JobParser::Chosen() const { return sub_.parsed() ? &job_ : nullptr; }

void JobParser::Collect() {
    TakeInOrder();
    for (const auto& convert : conversions_) convert();
    job_.Check();
    for (const auto& [value, message] : required_) {
        if (value.empty()) throw UsageError(message);
    }
}

void JobParser::TakeInOrder() const {
    std::map<const CLI::Option*, std::size_t> seen;
    for (const CLI::Option* option : sub_.parse_order()) {
        const auto found = ordered_.find(option);
        if (found != ordered_.end()) found->second(option->results().at(seen[option]++));
    }
}

std::string HelpOfEveryJob() {
    const std::string columns = DefaultColumns();
    return R"(Options de tous les travaux, dans l'ordre de la ligne de commande :
  --set CHAMP=VALEUR        fixe une option par son nom : --set chkDelAccents=0, --set "txtPlaceFormat=%1"
  --sans-familles           lit sans les familles
  --ordre-lieux 2,1,3       ordre de choix du lieu : 1 naissance, 2 décès, 3 mariage
  --colonnes CLE[,CLE...]   colonnes du relevé devant le nombre ()" +
           columns + R"( si rien n'est
                            dit) ; la liste vide met le nombre en premier
  --marquer ID[,ID...]      marque ces individus après la lecture
  --ajouter MODE            marque aussi ceux auxquels mènent les individus marqués, --enlever MODE enlève
  --enlever MODE            leurs marques. MODE : individus, parents, conjoints, enfants, ascendants,
                            descendants (ascendants:5 pour cinq générations), ou une colonne de lvwIn et une
                            comparaison : "LastName=", "BirthMin<=", "BirthMin>=" (les individus dont la
                            valeur est égale, au plus, ou au moins celle d'un individu marqué, en ordre de
                            texte). Pour parents, conjoints et enfants, la table est parcourue de haut en
                            bas : qui vient d'être marqué plus haut compte à son tour
  --strict                  arrête la lecture à la première ligne fautive ou au jeu de caractères inconnu
  -f, --ecraser             écrase un fichier existant
  --grand                   écrit les liens de parenté même dans un fichier de plus de 1 Go, ou de plus de la
                            moitié de la place libre du disque
  -q, --silencieux          ni progression ni textes d'état
)";
}

}  // namespace swiftroll::cli

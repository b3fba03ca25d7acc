#include "command_line.h"

#include <CLI/CLI.hpp>
#include <deque>

#include "job_parser.h"

namespace swiftroll::cli {
namespace {

std::string Joined(const std::vector<std::string>& words) {
    std::string joined;
    for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

/// The names of the jobs: "a, b ou c".
std::string NamesOf(const Jobs& jobs) {
    std::string names;
    for (const auto& job : jobs) {
        const bool isLast = job == jobs.back();
        names += (names.empty() ? "" : isLast ? " ou " : ", ") + std::string(job->Name());
    }
    return names;
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

Request ParseCommandLine(int argc, const char* const* argv, const Jobs& jobs) {
    Request request;
    CLI::App app;
    app.set_help_flag();
    app.require_subcommand(0, 1);
    const CLI::Option* help = app.add_flag("--aide");
    const CLI::Option* version = app.add_flag("--version");
    std::deque<JobParser> parsers;
    for (const auto& job : jobs) parsers.emplace_back(app, *job, request.arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        throw UsageError(Translated(error, app));
    }
    if (help->count() > 0) return request;
    if (version->count() > 0) {
        request.kind = Request::Kind::Version;
        return request;
    }
    for (JobParser& parser : parsers) {
        request.job = parser.Chosen();
        if (request.job == nullptr) continue;
        request.kind = Request::Kind::Job;
        parser.Collect();
        return request;
    }
    throw UsageError("il manque le travail à faire : " + NamesOf(jobs));
}

std::string HelpText(const Jobs& jobs) {
    std::string text = "SwiftRoll : relevés à partir d'un fichier GEDCOM\n\n";
    for (const auto& job : jobs) text += job->Help() + "\n";
    return text + "  swiftroll-cli --aide | --version\n\n" + HelpOfEveryJob() + R"(
Codes de sortie : 0 fait, 1 échec ou refus, 2 ligne de commande incorrecte, 3 arrêté (Ctrl-C, --strict,
--max, --delai).
)";
}

}  // namespace swiftroll::cli

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>

#include "generator/customs.h"
#include "generator/gedcom_writer.h"
#include "generator/output_buffer.h"
#include "generator/simulation.h"

namespace {

constexpr std::uint64_t kMostIndividuals = 20'000'000;
constexpr int kFailure = 1;
constexpr int kBadUsage = 2;

struct Options {
    std::size_t individuals;
    std::uint64_t seed;
    bench::Customs customs;
};

std::optional<std::uint64_t> ParseNumber(std::string_view text) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

std::optional<Options> ParseOptions(std::span<char*> arguments) {
    const bool cousins = arguments.size() == 4 && std::string_view(arguments[3]) == "--cousins";
    if (arguments.size() != 3 && !cousins) {
        return std::nullopt;
    }
    const std::optional<std::uint64_t> individuals = ParseNumber(arguments[1]);
    const std::optional<std::uint64_t> seed = ParseNumber(arguments[2]);
    if (!individuals || !seed || *individuals == 0 || *individuals > kMostIndividuals) {
        return std::nullopt;
    }
    return Options{static_cast<std::size_t>(*individuals), *seed,
                   cousins ? bench::kManyCousinMarriages : bench::kOrdinaryCustoms};
}

void PrintUsage() {
    std::fputs(
        "usage: generate N SEED [--cousins]\n"
        "Writes to standard output a GEDCOM file of N individuals (1 to 20000000);\n"
        "the same N and SEED (0 to 2^64-1) always give the same bytes.\n"
        "--cousins: a third to a half of the marriages are between first cousins.\n",
        stderr);
}

}  // namespace

int main(int argumentCount, char** argumentValues) {
    const std::optional<Options> options =
        ParseOptions(std::span<char*>(argumentValues, static_cast<std::size_t>(argumentCount)));
    if (!options) {
        PrintUsage();
        return kBadUsage;
    }
    try {
        const bench::Population population =
            bench::Simulate(options->individuals, options->seed, options->customs);
        bench::OutputBuffer output(stdout);
        bench::GedcomWriter(population, options->seed, output).Write();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "generate: %s\n", error.what());
        return kFailure;
    }
    return 0;
}

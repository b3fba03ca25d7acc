#include <cstdio>

#include "arguments.h"
#include "jobs.h"

int main(int argc, char** argv) {
    using namespace swiftroll::cli;
    try {
        const Arguments arguments = ParseArguments(argc, argv);
        switch (arguments.job) {
            case JobKind::Help:
                std::fputs(HelpText().c_str(), stdout);
                return kDone;
            case JobKind::Version:
                std::puts("SwiftRoll " SWIFTROLL_VERSION);
                return kDone;
            case JobKind::Tables:
            case JobKind::Releve:
            case JobKind::Parente:
            case JobKind::Extrait:
                return RunJob(arguments);
        }
    } catch (const UsageError& error) {
        std::fprintf(stderr, "swiftroll-cli : %s\nEssayez « swiftroll-cli --aide ».\n", error.what());
    }
    return kUsage;
}

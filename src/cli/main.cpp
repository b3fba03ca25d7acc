#include <cstdio>

#include "command_line.h"
#include "jobs.h"
#include "run_job.h"

int main(int argc, char** argv) {
    using namespace swiftroll::cli;
    try {
        const Jobs jobs = AllJobs();
        const Request request = ParseCommandLine(argc, argv, jobs);
        switch (request.kind) {
            case Request::Kind::Help:
                std::fputs(HelpText(jobs).c_str(), stdout);
                return kDone;
            case Request::Kind::Version:
                std::puts("SwiftRoll " SWIFTROLL_VERSION);
                return kDone;
            case Request::Kind::Job:
                return RunJob(*request.job, request.arguments);
        }
    } catch (const UsageError& error) {
        std::fprintf(stderr, "swiftroll-cli : %s\nEssayez « swiftroll-cli --aide ».\n", error.what());
    }
    return kUsage;
}

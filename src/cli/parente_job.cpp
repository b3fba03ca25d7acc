#include "parente_job.h"

#include <chrono>

#include "settings.h"
#include "text/code_page.h"
#include "text/literal.h"

namespace swiftroll::cli {

void ParenteJob::Prepare(Session& session) {
    tables_ = session.TablesToPrint();
    output_ =
        session.arguments.output.empty() ? Text(kStandardOutput) : FileNameToText(session.arguments.output);
}

bool ParenteJob::MayRun(Session& session) { return session.MayWrite(output_); }

void ParenteJob::Do(Session& session) {
    if (session.IsStopped()) return;
    if (!session.main.cmdFindPath.Enabled) {
        session.Refuse(
            "La parenté ne peut être cherchée que si les familles ont été lues : n'utilisez pas --sans-familles."_t);
        return;
    }
    if (!session.Mark(session.arguments.fromId) || !session.Mark(session.arguments.toId)) return;
    if (Search(session)) session.Print(tables_, false, output_);
}

/// False when the request was refused.
bool ParenteJob::Search(Session& session) {
    using Clock = std::chrono::steady_clock;
    const Arguments& arguments = session.arguments;
    modKinship::Search& search = session.main.modKinship;
    const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                        std::chrono::duration<double>(arguments.mostSeconds));
    const auto hasAllPaths = [&] {
        return arguments.mostPaths > 0 && search.lNrLinks >= arguments.mostPaths;
    };
    session.pump.stopWhen = [&] {
        return hasAllPaths() || (arguments.mostSeconds > 0 && Clock::now() >= end);
    };
    const bool accepted = session.main.FindPathBetween(TextOf(arguments.fromId), TextOf(arguments.toId));
    session.pump.stopWhen = nullptr;
    session.stopped = accepted && (session.IsStopped() || hasAllPaths());
    return accepted;
}

}  // namespace swiftroll::cli

#include "parente_job.h"

#include <chrono>

#include "settings.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::cli {

void ParenteJob::Prepare(Session& session) {
    tables_ = session.TablesToPrint();
    drawing_ = FileNameToText(session.arguments.drawing);
    session.dialogs.outputFile = drawing_;
    session.main.cboDrawKinship.SetListIndex(session.arguments.drawingMode);
    output_ =
        session.arguments.output.empty() ? Text(kStandardOutput) : FileNameToText(session.arguments.output);
}

bool ParenteJob::MayRun(Session& session) {
    return session.MayWrite(output_) && (drawing_.empty() || session.MayWrite(drawing_));
}

void ParenteJob::Do(Session& session) {
    if (session.IsStopped()) return;
    if (!session.main.cmdFindPath.Enabled) {
        session.Refuse(
            "La parenté ne peut être cherchée que si les familles ont été lues : n'utilisez pas --sans-familles."_t);
        return;
    }
    if (!session.Mark(session.arguments.fromId) || !session.Mark(session.arguments.toId)) return;
    if (!Search(session)) return;
    session.Print(tables_, false, output_);
    if (!drawing_.empty() && MarkRows(session)) session.main.cmdDrawKinship.Click();
}

/// Marks the rows that the modes for single paths draw; false, and it is told, when there is no such row.
bool ParenteJob::MarkRows(Session& session) {
    constexpr int kAll = 2;
    if (session.arguments.drawingMode >= kAll) return true;
    Table& paths = session.main.lvwKinship;
    if (session.arguments.drawnRows.empty() && paths.Count() > 0) paths.Item(1).SetSelected(true);
    for (const std::string& seqNr : session.arguments.drawnRows) {
        const auto text = FromUtf8(seqNr);
        auto row = text ? paths.Find(TextView(*text)) : std::nullopt;
        if (!row) {
            session.Refuse(Concat({"Aucune ligne n'a le numéro "_t, FileNameToText(seqNr), "."}));
            return false;
        }
        row->SetSelected(true);
    }
    return true;
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

#include "extrait_job.h"

#include "text/code_page.h"
#include "text/literal.h"

namespace swiftroll::cli {

void ExtraitJob::Prepare(Session& session) {
    session.dialogs.outputFile = FileNameToText(session.arguments.output);
}

bool ExtraitJob::MayRun(Session& session) { return session.MayWrite(session.dialogs.outputFile); }

void ExtraitJob::Do(Session& session) {
    if (session.IsStopped()) return;
    if (!session.main.cmdSaveGed.Enabled) {
        session.Refuse(
            "Un extrait ne peut être écrit que si les familles ont été lues : n'utilisez pas --sans-familles."_t);
        return;
    }
    session.main.cmdSaveGed.Click();
}

}  // namespace swiftroll::cli

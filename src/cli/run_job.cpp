#include "run_job.h"

#include "list/group_columns.h"
#include "mark_steps.h"
#include "platform/interrupt.h"
#include "session.h"
#include "settings.h"
#include "text/code_page.h"

namespace swiftroll::cli {
namespace {

void ReadAndDo(Session& session, const MarkSteps& marks, Job& job) {
    frmMain& main = session.main;
    main.cmdLoad.Click();
    session.stopped = session.IsStopped();
    if (session.dialogs.InputIsUnreadable()) return;
    if (marks.Run(session)) job.Do(session);
}

void PrintStatus(Session& session) {
    session.progress.Wipe();
    const frmMain& main = session.main;
    for (const Panel* panel : {&main.pnlLines, &main.pnlIndividuals, &main.pnlFamilies, &main.pnlMessage}) {
        if (!session.arguments.quiet && !panel->Get().empty()) PrintError(panel->Get());
    }
}

}  // namespace

int RunJob(Job& job, const Arguments& arguments) {
    Session session(arguments);
    frmMain& main = session.main;
    main.Form_Load({});
    job.SetDefaults(main);
    modCalcOut::PlaceDefaultGroups(main.lvwOut);
    ApplySettings(main, arguments.settings);
    job.Prepare(session);
    const MarkSteps marks(main, arguments.markSteps);
    main.cboGedIn.SetText(FileNameToText(arguments.input));
    platform::CatchInterrupts();
    if (job.MayRun(session)) {
        try {
            ReadAndDo(session, marks, job);
        } catch (const ProgramEnd&) {
            // It was reported; what else there is to do is to end.
        }
        PrintStatus(session);
    }
    if (session.stopped || platform::WasInterrupted()) return kStopped;
    return session.failed || session.dialogs.HasRefusal() || main.trail.Reports() > 0 ? kFailed : kDone;
}

}  // namespace swiftroll::cli

#include "extrait_job.h"

#include "job_parser.h"
#include "session.h"
#include "text/code_page.h"
#include "text/literal.h"

namespace swiftroll::cli {

std::string ExtraitJob::Help() const {
    return R"(  swiftroll-cli extrait FICHIER.ged -o SORTIE.ged
      écrit un fichier GEDCOM des individus marqués (--marquer, --ajouter), avec leurs familles et tout ce à
      quoi ils se réfèrent.
)";
}

void ExtraitJob::Declare(JobParser& parser) { parser.Output(output_); }

void ExtraitJob::Prepare(Session& session) { session.dialogs.outputFile = FileNameToText(output_); }

bool ExtraitJob::MayRun(Session& session) { return session.MayWrite(session.dialogs.outputFile); }

void ExtraitJob::Do(Session& session) {
    if (session.IsStopped()) return;
    Command& command = session.main.cmdSaveGed;
    if (session.HasFamiliesFor(command, "Un extrait ne peut être écrit"_t)) command.Click();
}

}  // namespace swiftroll::cli

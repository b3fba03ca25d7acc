#include "cousins_job.h"

#include <algorithm>
#include <limits>

#include "job_parser.h"
#include "print_tables.h"
#include "session.h"
#include "text/code_page.h"
#include "text/literal.h"
#include "words.h"

namespace swiftroll::cli {

std::string CousinsJob::Help() const {
    return R"(  swiftroll-cli cousins FICHIER.ged ID [--degre N] [-o LISTE]
      affiche tous les parents par le sang de l'individu jusqu'au degré civil N ()" +
           std::to_string(modKinship::kUsualDegree) + R"( si rien n'est dit), les
      plus proches d'abord, ou écrit cette table dans LISTE : une ligne par personne, avec le nom du lien le
      plus proche, les degrés civil et canonique et les ancêtres communs.
)";
}

void CousinsJob::Declare(JobParser& parser) {
    parser.Argument("ID", id_);
    parser.Require(id_, "il manque l'identifiant de l'individu");
    parser.Limit("--degre", degree_);
    parser.Option("-o", outputName_);
}

void CousinsJob::Prepare(Session&) {
    output_ = outputName_.empty() ? Text(kStandardOutput) : FileNameToText(outputName_);
}

bool CousinsJob::MayRun(Session& session) { return session.MayWrite(output_); }

void CousinsJob::Do(Session& session) {
    if (session.IsStopped()) return;
    if (!session.HasFamiliesFor(session.main.cmdFindPath, "La parenté ne peut être cherchée"_t)) return;
    if (!session.Mark(id_)) return;
    const auto degree = std::min<std::int64_t>(degree_, std::numeric_limits<std::int32_t>::max());
    modKinship::ListRelatives(session.main, session.main.lvwIn.Item(TextOf(id_)).Index(),
                              static_cast<std::int32_t>(degree),
                              modPrivacy::Living(session.main, session.main, session.main.ports.clock));
    session.Write(output_, [&](File& file) { PrintTables({&session.main.lvwRelatives}, false, file); });
}

}  // namespace swiftroll::cli

#include "tables_job.h"

#include "job_parser.h"
#include "print_tables.h"
#include "session.h"

namespace swiftroll::cli {
namespace {

const std::string kDefaultTable = "lvwIn";

}  // namespace

std::string TablesJob::Help() const {
    return R"(  swiftroll-cli tables FICHIER.ged [-t TABLE[,TABLE...]] [--cles]
      affiche des tables ()" +
           kDefaultTable + R"( si rien n'est dit) : une ligne par rangée, les cellules séparées par une
      tabulation. Tables : lvwIn, lvwOut, lvwXref, lvwXref1, lvwFamily, lvwFamilyXref, lvwKinship,
      lvwPaths.
      --cles met devant la clé, l'étiquette et les marques de chaque rangée.
)";
}

void TablesJob::Declare(JobParser& parser) {
    names_ = {kDefaultTable};
    parser.List("-t", names_);
    parser.Flag("--cles", withKeys_);
}

void TablesJob::Prepare(Session& session) { tables_ = session.TablesToPrint(names_); }

void TablesJob::Do(Session& session) {
    session.Write(kStandardOutput, [&](File& file) { PrintTables(tables_, withKeys_, file); });
}

}  // namespace swiftroll::cli

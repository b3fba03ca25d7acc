#include "tables_job.h"

namespace swiftroll::cli {

void TablesJob::Prepare(Session& session) { tables_ = session.TablesToPrint(); }

void TablesJob::Do(Session& session) { session.Print(tables_, session.arguments.withKeys, kStandardOutput); }

}  // namespace swiftroll::cli

#include "jobs.h"

#include "controle_job.h"
#include "cousins_job.h"
#include "extrait_job.h"
#include "parente_job.h"
#include "releve_job.h"
#include "tables_job.h"

namespace swiftroll::cli {

Jobs AllJobs() {
    Jobs jobs;
    jobs.push_back(std::make_unique<TablesJob>());
    jobs.push_back(std::make_unique<ReleveJob>());
    jobs.push_back(std::make_unique<ParenteJob>());
    jobs.push_back(std::make_unique<CousinsJob>());
    jobs.push_back(std::make_unique<ExtraitJob>());
    jobs.push_back(std::make_unique<ControleJob>());
    return jobs;
}

}  // namespace swiftroll::cli

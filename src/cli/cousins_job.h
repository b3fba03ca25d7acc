#pragma once

#include "job.h"
#include "kinship/relatives_table.h"

namespace swiftroll::cli {

/// Lists the blood relatives of an individual.
class CousinsJob : public Job {
  public:
    const char* Name() const override { return "cousins"; }
    std::string Help() const override;
    void Declare(JobParser& parser) override;
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    std::string id_, outputName_;
    std::int64_t degree_ = modKinship::kUsualDegree;
    Text output_;
};

}  // namespace swiftroll::cli

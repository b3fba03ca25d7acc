#pragma once

#include "job.h"

namespace swiftroll::cli {

/// Writes a GEDCOM extract of the marked individuals.
class ExtraitJob : public Job {
  public:
    const char* Name() const override { return "extrait"; }
    std::string Help() const override;
    void Declare(JobParser& parser) override;
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    std::string output_;
};

}  // namespace swiftroll::cli

#pragma once

#include "job.h"
#include "text/text.h"

namespace swiftroll::cli {

/// Checks the file, and writes what it found.
class ControleJob : public Job {
  public:
    const char* Name() const override { return "controle"; }
    std::string Help() const override;
    void Declare(JobParser& parser) override;
    void Check() override;
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    std::string output_, format_;
    Text outputName_;
    bool asPage_ = false;
};

}  // namespace swiftroll::cli

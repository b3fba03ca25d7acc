#pragma once

#include "job.h"
#include "tables/table.h"

namespace swiftroll::cli {

/// Prints tables as they are after the read.
class TablesJob : public Job {
  public:
    const char* Name() const override { return "tables"; }
    std::string Help() const override;
    void Declare(JobParser& parser) override;
    void Prepare(Session& session) override;
    void Do(Session& session) override;

  private:
    std::vector<std::string> names_;
    bool withKeys_ = false;
    std::vector<Table*> tables_;
};

}  // namespace swiftroll::cli

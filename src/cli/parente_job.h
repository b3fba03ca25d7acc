#pragma once

#include "session.h"

namespace swiftroll::cli {

/// Searches the kinship paths between two individuals and prints tables of them.
class ParenteJob : public Job {
  public:
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    bool Search(Session& session);
    std::vector<Table*> tables_;
    Text output_;
};

}  // namespace swiftroll::cli

#pragma once

#include "session.h"

namespace swiftroll::cli {

/// Searches the kinship paths between two individuals, prints tables of them, and draws them.
class ParenteJob : public Job {
  public:
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    bool Search(Session& session);
    bool MarkRows(Session& session);
    std::vector<Table*> tables_;
    Text output_, drawing_;
};

}  // namespace swiftroll::cli

#pragma once

#include "session.h"

namespace swiftroll::cli {

/// Prints tables as they are after the read.
class TablesJob : public Job {
  public:
    void Prepare(Session& session) override;
    void Do(Session& session) override;

  private:
    std::vector<Table*> tables_;
};

}  // namespace swiftroll::cli

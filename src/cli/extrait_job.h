#pragma once

#include "session.h"

namespace swiftroll::cli {

/// Writes a GEDCOM extract of the marked individuals.
class ExtraitJob : public Job {
  public:
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;
};

}  // namespace swiftroll::cli

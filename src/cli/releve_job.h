#pragma once

#include "session.h"

namespace swiftroll::cli {

/// Writes the Relevé-vif.
class ReleveJob : public Job {
  public:
    /// Chooses the format and the names of the files, as a user does before the command "Ecrire".
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    Text stylesheet_;  // written beside the output; empty for none
};

}  // namespace swiftroll::cli

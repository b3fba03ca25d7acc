#pragma once

#include "job.h"
#include "text/text.h"

namespace swiftroll::cli {

/// The options of the job, texts in UTF-8; an empty text for what was not given.
struct ReleveOptions {
    std::string output, format, model;
    bool withStylesheet = false;
    bool markedOnly = false;
};

/// Writes the Relevé-vif.
class ReleveJob : public Job {
  public:
    const char* Name() const override { return "releve"; }
    std::string Help() const override;
    void Declare(JobParser& parser) override;
    void SetDefaults(frmMain& main) override;
    /// Chooses the format and the names of the files, as a user does before the command "Ecrire".
    void Prepare(Session& session) override;
    bool MayRun(Session& session) override;
    void Do(Session& session) override;

  private:
    ReleveOptions options_;
    Text stylesheet_;  // written beside the output; empty for none
};

}  // namespace swiftroll::cli

#pragma once

#include <memory>
#include <string>
#include <vector>

namespace swiftroll {
class frmMain;
}

namespace swiftroll::cli {

class JobParser;
struct Session;

/// What a run does beside reading the file, with all that the program knows of it. The members are called in
/// this order.
class Job {
  public:
    virtual ~Job() = default;
    /// The word of the command line.
    virtual const char* Name() const = 0;
    /// The part of --aide: how it is called, indented by two, and what it does, by six.
    virtual std::string Help() const = 0;
    /// Declares its arguments and options beside those of every job.
    virtual void Declare(JobParser& parser) = 0;
    /// Checks what was given, once the command line was parsed. @throws UsageError
    virtual void Check() {}
    /// Sets the option record as the job wants it, before --set does. The option that asks for a stylesheet
    /// is on in the record, and none is asked for here unless the job says so.
    virtual void SetDefaults(frmMain& main);
    /// Looks at its options in the light of the record, and sets what they tell. @throws UsageError
    virtual void Prepare(Session& session) = 0;
    /// Whether the outputs may be written; nothing was read yet.
    virtual bool MayRun(Session&) { return true; }
    /// The work after the read.
    virtual void Do(Session& session) = 0;
};

/// Jobs in the order of --aide.
using Jobs = std::vector<std::unique_ptr<Job>>;

}  // namespace swiftroll::cli

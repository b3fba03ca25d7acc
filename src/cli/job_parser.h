#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "arguments.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace swiftroll::cli {

class Job;

/// The arguments and options of one job: those of every job, and those that it declares. What was declared
/// with a place for its value finds the default there, which stays when the option is not given.
class JobParser {
  public:
    /// Declares the job as a word of the command line. The values of every job go to `arguments`.
    JobParser(CLI::App& app, Job& job, Arguments& arguments);

    /// A word without an option, behind the file and the arguments declared before; the name is for messages.
    void Argument(const char* name, std::string& value);
    /// An option with a value; the name can be several: "-f,--ecraser".
    void Option(const char* name, std::string& value);
    /// An option whose value is a list with commas.
    void List(const char* name, std::vector<std::string>& words);
    /// An option whose value is a number above 0.
    void Limit(const char* name, std::int64_t& limit);
    void Limit(const char* name, double& limit);
    /// An option without a value.
    void Flag(const char* name, bool& isGiven);
    /// The option -o of a job that always writes a file.
    void Output(std::string& file);
    /// Refuses the command line with this message where `value` remains empty. What comes first is told
    /// first, the file that is read before all.
    void Require(const std::string& value, const char* message);

    /// The job, when the command line names it.
    Job* Chosen() const;
    /// Takes the values over into the job and the arguments of every job, and checks them. @throws UsageError
    void Collect();

  private:
    /// An option whose values count one by one, in the order of the command line.
    using Take = std::function<void(const std::string& value)>;
    void Ordered(const char* name, Take take);
    void DeclareCommon(Arguments& arguments);
    void TakeInOrder() const;
    /// An option whose value is converted when all is parsed.
    const CLI::Option& Unconverted(const char* name);
    template <class Number>
    void NumberOption(const char* name, Number& limit);

    struct Required {
        const std::string& value;
        const char* message;
    };

    CLI::App& sub_;
    Job& job_;
    std::map<const CLI::Option*, Take> ordered_;
    std::vector<std::function<void()>> conversions_;
    std::vector<Required> required_;
};

/// The part of --aide on the options of every job.
std::string HelpOfEveryJob();

}  // namespace swiftroll::cli

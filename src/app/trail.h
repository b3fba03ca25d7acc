#pragma once

#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

#include "app/ports.h"
#include "tables/schema.h"
#include "text/failure.h"

namespace swiftroll {

/// Thrown where a failure must end the program, after it was reported. It is no std::exception, so that no
/// handler takes it for a failure; the presentation catches it and ends.
struct ProgramEnd {};

/// What the error trail needs to know of the application.
struct TrailContext {
    std::function<Text()> caption;
    std::function<Text()> logFile;
    std::function<Text()> runStart;
};

/// The error trail: the stack of the active procedures, and the report of a failure in a box and in the log.
class Trail {
  public:
    Trail(const Ports& ports, TableSet& tables, TrailContext context)
        : ports_(ports), tables_(tables), context_(std::move(context)) {}

    /// Runs `body` under the name of a procedure. A failure in it is reported with the text that `report`
    /// makes of the procedure's arguments and state, and the procedure then gives its default result.
    template <class Body, class Report>
    auto Guard(const char* sProc, Body&& body, Report&& report) -> std::invoke_result_t<Body> {
        return GuardElse(sProc, std::forward<Body>(body), [&] { ErrorLog(report()); });
    }
    /// The same for a procedure whose handler does something else or something more.
    template <class Body, class Handler>
    auto GuardElse(const char* sProc, Body&& body, Handler&& handler) -> std::invoke_result_t<Body> {
        const Entry entry(*this, sProc);
        try {
            return body();
        } catch (const std::exception&) {
            failure_ = CurrentFailure();
            handler();
        }
        if constexpr (!std::is_void_v<std::invoke_result_t<Body>>) return {};
    }

    /// Runs `body` under the name of a procedure without a handler: a failure in it travels to the caller's,
    /// whose report then names both.
    template <class Body>
    void Through(const char* sProc, Body&& body) {
        TracePush(sProc);
        body();
        TracePop();
    }

    /// Shows the failure being handled in a box and appends it to the log.
    void ErrorLog(TextView sReport);
    /// Appends it to the log alone, for work that the user did not ask for at this moment.
    void LogOnly(TextView sReport);
    /// The failure that the running handler was called for.
    const Failure& LastFailure() const { return failure_; }
    /// Number of boxes since the start.
    int Reports() const { return reports_; }

  private:
    class Entry {
      public:
        Entry(Trail& trail, const char* sProc) : trail_(trail), iDepthBefore_(trail.iTraceDepth) {
            trail_.TracePush(sProc);
        }
        // The names of procedures that a failure left go with it.
        ~Entry() { trail_.iTraceDepth = iDepthBefore_; }
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

      private:
        Trail& trail_;
        std::int16_t iDepthBefore_;
    };
    void TracePush(const char* sProc) {
        const auto depth = static_cast<std::size_t>(iTraceDepth) + 1;
        if (depth >= aTrace.size()) MakeRoom();
        aTrace[depth] = sProc;
        ++iTraceDepth;
    }
    void MakeRoom();
    void TracePop() { --iTraceDepth; }
    /// The failure being handled as the box and the log tell it.
    struct Account {
        Text title, message;
    };
    Account AccountOf(TextView sReport) const;
    void AppendToLog(const Account& account);

    Ports ports_;
    TableSet& tables_;
    TrailContext context_;
    // Names of the active procedures from index 1, oldest first.
    std::vector<const char*> aTrace;
    std::int16_t iTraceDepth = 0;
    Failure failure_{FailureKind::Internal};
    int reports_ = 0;
};

}  // namespace swiftroll

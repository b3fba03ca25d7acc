#pragma once

#include "app/message_bar.h"
#include "app/status.h"
#include "app/trail.h"

namespace swiftroll {

/// Sets a flag for as long as it lives, and then puts it back: operations that set the same flag nest, and
/// failures leave them.
class ScopedFlag {
  public:
    explicit ScopedFlag(bool& flag) : flag_(flag), previous_(flag) { flag_ = true; }
    ~ScopedFlag() { flag_ = previous_; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
    bool previous_;
};

/// What an operation tells the user with, whatever it works on: status bar, message bar, boxes, error trail,
/// wait cursor.
/// And what the user tells it: to stop.
class Feedback : public StatusBar {
  public:
    Feedback(const Ports& ports, TableSet& tables, const TrailContext& context)
        : StatusBar(ports.status),
          trail(ports, tables, context),
          dialogs_(ports.dialogs),
          caption_(context.caption) {}

    Trail trail;
    MessageBar messageBar;
    /// The abort request: long loops leave at their next test.
    bool bAbort = false;
    /// Whether the work that runs lets events in and looks at `bAbort`: the user can stop it.
    bool bCanStop = false;
    /// Whether the wait cursor is on, and whether the tables are not repainted.
    bool bWaitCursor = false;
    bool bTablesLocked = false;

    /// Shows a box titled with the main caption and `suffix`.
    BoxAnswer Box(TextView suffix, TextView text, BoxButtons buttons = BoxButtons::Ok,
                  BoxIcon icon = BoxIcon::None, BoxTopic topic = BoxTopic::Message,
                  std::optional<BoxAnswer> preset = {});
    /// Asks the running operation to stop, as the Escape key does.
    void RequestAbort();

  private:
    Dialogs& dialogs_;
    std::function<Text()> caption_;
};

}  // namespace swiftroll

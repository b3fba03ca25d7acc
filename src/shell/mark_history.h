#pragma once

#include <deque>

#include "app/application.h"
#include "shell/list_commands.h"

namespace swiftroll {

/// The marks before each of the last marking commands. Two bits a row and command: a million rows take
/// 2.5 MB at most.
class MarkHistory {
  public:
    static constexpr std::size_t kDepth = 10;

    MarkHistory(Application& app, ListCommands& commands);

    /// Runs a command that marks rows of a table. What it did is told in the message bar, and can be undone.
    void Run(Table& table, const std::function<void()>& command);
    /// Gives back the marks before the last marking command, if there is one.
    void Undo();
    /// Forgets the marks of rows that have gone, and what was told of them. To be called now and then; costs
    /// next to nothing.
    void Follow();

    /// While it lives, the next command on a table counts from the marks of now: the context menu marks the
    /// clicked row for as long as it is open.
    class Start {
      public:
        Start(MarkHistory& history, Table& table);
        ~Start() { history_.start_ = std::move(previous_); }
        Start(const Start&) = delete;
        Start& operator=(const Start&) = delete;

      private:
        MarkHistory& history_;
        std::optional<std::pair<Table*, MarkSnapshot>> previous_;
    };

  private:
    void Tell(const Table& table, const MarkSnapshot::Difference& difference);

    using Entry = std::pair<Table*, MarkSnapshot>;
    Application& app_;
    ListCommands& commands_;
    std::deque<Entry> entries_;  // the last command at the end
    std::optional<Entry> start_;
};

}  // namespace swiftroll

#pragma once

#include <optional>
#include <variant>

#include "session.h"

namespace swiftroll::cli {

/// What --marquer, --ajouter and --enlever do to the marks of lvwIn, in the order of the command line.
class MarkSteps {
  public:
    /// Understands the modes before anything is read. @throws UsageError for an unknown mode or column
    MarkSteps(const frmMain& main, const std::vector<MarkStep>& steps);

    /// Changes the marks; false, and it is told, when an individual to be marked is not there. A failure of
    /// the selection is in the error trail, and the marks made so far stay.
    bool Run(Session& session) const;

  private:
    /// A step of the selection.
    struct Selection {
        bool bSelect = false;
        TextView sMode;
        std::int32_t lGenerations = modSelectionIn::kAllGenerations;
        /// Column of the values that are compared, from 0.
        ColumnId column = In::ID;
    };
    /// A mode that may tell a number of generations behind ":"; nothing for another one. @throws UsageError
    static std::optional<Selection> LineageOf(const MarkStep& step);
    static Selection SelectionOf(const frmMain& main, const MarkStep& step);

    /// An identifier to be marked, or a selection.
    std::vector<std::variant<std::string, Selection>> steps_;
};

}  // namespace swiftroll::cli

#pragma once

#include "check/check_file.h"
#include "check/finding_columns.h"

namespace swiftroll {

/// Which of the findings of a check are seen, and in what order.
class FindingList {
  public:
    FindingList() { SetReport({}); }
    /// Takes the findings of another check, of which all are seen.
    void SetReport(modCheck::Report report);
    const modCheck::Report& Report() const { return report_; }

    /// What can be seen by itself, with counts: all, those of a severity, those of a rule.
    const std::vector<Text>& Kinds() const { return kindTexts_; }
    /// Shows those of one of these kinds alone. @throws Failure IndexOutOfRange
    void ShowKind(std::size_t kind);
    /// Sorts by a column from now on, numbers as numbers, equal ones by their lines. At first it is the
    /// column of the lines.
    void SortBy(modCheck::FindingColumn column, bool descending);

    std::size_t Count() const { return rows_.size(); }
    /// The finding of a row from 0. @throws Failure IndexOutOfRange
    const modCheck::Finding& At(std::size_t row) const;
    Text Cell(std::size_t row, modCheck::FindingColumn column) const {
        return modCheck::CellOf(report_.findings, At(row), column);
    }
    /// Grows with every change of what is seen.
    int Changes() const { return changes_; }

  private:
    struct Kind {
        std::optional<modCheck::Severity> severity = {};
        std::optional<modCheck::Rule> rule = {};
        bool Has(modCheck::Rule other) const;
    };
    void Sort();
    void AddKind(const Kind& kind, TextView name, std::size_t count);

    modCheck::Report report_;
    std::vector<Kind> kinds_;
    std::vector<Text> kindTexts_;
    std::vector<std::uint32_t> rows_;  // numbers of findings
    modCheck::FindingColumn sortColumn_ = modCheck::FindingColumn::Line;
    bool descending_ = false;
    int changes_ = 0;
};

}  // namespace swiftroll

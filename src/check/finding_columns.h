#pragma once

#include "check/findings.h"

namespace swiftroll::modCheck {

/// The columns of a list of findings, in their order.
enum class FindingColumn : std::uint8_t { Rule, Severity, Line, Id, Name, Text };

struct FindingColumnTexts {
    FindingColumn column;
    TextView key;
    TextView caption;
};

inline constexpr auto kFindingColumns = std::to_array<FindingColumnTexts>({
    {FindingColumn::Rule, "Rule", "Règle"_t},
    {FindingColumn::Severity, "Severity", "Gravité"_t},
    {FindingColumn::Line, "Line", "Ligne"},
    {FindingColumn::Id, "ID", "Identifiant"},
    {FindingColumn::Name, "Name", "Nom"},
    {FindingColumn::Text, "Text", "Constat"},
});
static_assert([] {
    for (std::size_t i = 0; i < kFindingColumns.size(); ++i) {
        if (static_cast<std::size_t>(kFindingColumns[i].column) != i) return false;
    }
    return true;
}());

/// The text of a cell; a line that is none gives the empty text.
Text CellOf(const Findings& findings, const Finding& finding, FindingColumn column);

}  // namespace swiftroll::modCheck

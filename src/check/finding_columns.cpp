#include "check/finding_columns.h"

#include "text/numbers.h"

namespace swiftroll::modCheck {

Text CellOf(const Findings& findings, const Finding& finding, FindingColumn column) {
    const RuleFacts& facts = FactsOf(finding.rule);
    switch (column) {
        case FindingColumn::Rule:
            return Decimal(facts.number);
        case FindingColumn::Severity:
            return Text(WordOf(facts.severity));
        case FindingColumn::Line:
            return finding.line == 0 ? Text() : Decimal(finding.line);
        case FindingColumn::Id:
            return Text(findings.Get(finding.id));
        case FindingColumn::Name:
            return Text(findings.Get(finding.name));
        case FindingColumn::Text:
            break;
    }
    return Text(findings.Get(finding.text));
}

}  // namespace swiftroll::modCheck

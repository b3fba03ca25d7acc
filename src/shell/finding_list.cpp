#include "shell/finding_list.h"

#include <algorithm>

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll {

using namespace modCheck;

void FindingList::SetReport(modCheck::Report report) {
    report_ = std::move(report);
    const Findings& findings = report_.findings;
    kinds_.clear();
    kindTexts_.clear();
    constexpr std::pair<Severity, TextView> kSeverities[] = {{Severity::Error, "Erreurs"},
                                                             {Severity::Warning, "Avertissements"},
                                                             {Severity::Info, "Informations"}};
    std::size_t all = 0;
    for (const auto& [severity, name] : kSeverities) all += findings.CountOf(severity);
    AddKind({}, "Tous les constats", all);
    for (const auto& [severity, name] : kSeverities)
        AddKind({severity, {}}, name, findings.CountOf(severity));
    for (const RuleFacts& facts : kRules) {
        const std::size_t count = findings.CountOf(facts.rule);
        if (count > 0) AddKind({{}, facts.rule}, Concat({Decimal(facts.number), ". ", facts.name}), count);
    }
    ShowKind(0);
}

void FindingList::AddKind(const Kind& kind, TextView name, std::size_t count) {
    kinds_.push_back(kind);
    kindTexts_.push_back(Concat({name, " (", Decimal(static_cast<std::int64_t>(count)), ")"}));
}

bool FindingList::Kind::Has(modCheck::Rule other) const {
    return (!severity || FactsOf(other).severity == *severity) && (!rule || other == *rule);
}

void FindingList::ShowKind(std::size_t kind) {
    if (kind >= kinds_.size()) ThrowIndexOutOfRange();
    const auto& findings = report_.findings.Rows();
    rows_.clear();
    for (std::uint32_t i = 0; i < findings.size(); ++i) {
        if (kinds_[kind].Has(findings[i].rule)) rows_.push_back(i);
    }
    Sort();
}

void FindingList::SortBy(FindingColumn column, bool descending) {
    sortColumn_ = column;
    descending_ = descending;
    // Equal ones stand by their lines again.
    std::sort(rows_.begin(), rows_.end());
    Sort();
}

void FindingList::Sort() {
    ++changes_;
    const Findings& findings = report_.findings;
    const auto isLess = [&](std::uint32_t a, std::uint32_t b) {
        if (descending_) std::swap(a, b);
        const Finding &first = findings.Rows()[a], &second = findings.Rows()[b];
        switch (sortColumn_) {
            case FindingColumn::Rule:
                return first.rule < second.rule;
            case FindingColumn::Severity:
                return FactsOf(first.rule).severity < FactsOf(second.rule).severity;
            case FindingColumn::Line:
                return first.line < second.line;
            case FindingColumn::Id:
                return findings.Get(first.id) < findings.Get(second.id);
            case FindingColumn::Name:
                return findings.Get(first.name) < findings.Get(second.name);
            case FindingColumn::Text:
                break;
        }
        return findings.Get(first.text) < findings.Get(second.text);
    };
    std::stable_sort(rows_.begin(), rows_.end(), isLess);
}

const Finding& FindingList::At(std::size_t row) const {
    if (row >= rows_.size()) ThrowIndexOutOfRange();
    return report_.findings.Rows()[rows_[row]];
}

}  // namespace swiftroll

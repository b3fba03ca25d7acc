#include "check/findings.h"

#include <algorithm>

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {

void Findings::Add(Rule rule, std::uint32_t line, TextView id, TextView text) {
    if (++counts_[static_cast<std::size_t>(rule)] > kMostOfRule) return;
    rows_.push_back({rule, line, texts_->Intern(id), {}, texts_->Put(text)});
}

void Findings::Finish(const std::function<Text(TextView id)>& nameOf) {
    std::stable_sort(rows_.begin(), rows_.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    for (Finding& row : rows_) row.name = texts_->Intern(nameOf(Get(row.id)));
    for (const RuleFacts& facts : kRules) {
        if (CountOf(facts.rule) <= kMostOfRule) continue;
        const Text rest = Decimal(static_cast<std::int64_t>(CountOf(facts.rule) - kMostOfRule));
        rows_.push_back(
            {facts.rule,
             0,
             {},
             {},
             texts_->Put(Concat({rest, " autres constats de cette règle ne sont pas listés."_t}))});
    }
}

std::size_t Findings::CountOf(Severity severity) const {
    std::size_t count = 0;
    for (const RuleFacts& facts : kRules) count += facts.severity == severity ? CountOf(facts.rule) : 0;
    return count;
}

}  // namespace swiftroll::modCheck

#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "check/rules.h"
#include "tables/text_store.h"

namespace swiftroll::modCheck {

/// One thing that a rule found. The references are into the texts of its `Findings`.
struct Finding {
    Rule rule = Rule::kEnd;
    /// Line of the file, from 1; 0 where it is about the whole of it.
    std::uint32_t line = 0;
    /// Identifier of the record that it is about, with its name where it is an individual or a family.
    TextRef id, name;
    TextRef text;
};

/// What the rules found. Of each rule the first `kMostOfRule` are kept, the others counted.
class Findings {
  public:
    static constexpr std::size_t kMostOfRule = 20000;

    void Add(Rule rule, std::uint32_t line, TextView id, TextView text);
    /// Puts the findings in the order of their lines, tells behind them what was not kept, and gives each the
    /// name that `nameOf` finds for its identifier.
    void Finish(const std::function<Text(TextView id)>& nameOf);

    const std::vector<Finding>& Rows() const { return rows_; }
    TextView Get(TextRef text) const { return texts_->Get(text); }
    /// How many there are of a rule or of a severity, kept or not.
    std::size_t CountOf(Rule rule) const { return counts_[static_cast<std::size_t>(rule)]; }
    std::size_t CountOf(Severity severity) const;

  private:
    // Apart, so that findings can be handed on.
    std::unique_ptr<TextStore> texts_ = std::make_unique<TextStore>();
    std::vector<Finding> rows_;
    std::array<std::size_t, kRules.size()> counts_{};
};

}  // namespace swiftroll::modCheck

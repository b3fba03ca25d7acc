#include "check/spellings.h"

#include <algorithm>

#include "check/quoted.h"
#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "text/fold.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {
namespace {

/// How often each interned text of a store came, and where first.
class SpellingCounts {
  public:
    explicit SpellingCounts(const TextStore& store) : store_(store) {}

    /// Notes a text of a row of a table, which names the record of the row.
    void Add(TextRef text, TextRef id) {
        if (text.IsEmpty()) return;
        if (text.Symbol() >= places_.size()) places_.resize(text.Symbol() + std::size_t{1}, 0);
        std::uint32_t& place = places_[text.Symbol()];
        if (place == 0) {
            spellings_.push_back({text, id, 0});
            place = static_cast<std::uint32_t>(spellings_.size());
        }
        ++spellings_[place - 1].count;
    }

    /// Tells the groups of spellings that fold to one form.
    void Tell(Rule rule, const FileRecords& records, Findings& findings) {
        SortByForm();
        for (std::size_t first = 0, next = 0; first < spellings_.size(); first = next) {
            while (next < spellings_.size() && spellings_[next].form == spellings_[first].form) ++next;
            const bool hasForm = !spellings_[first].form.IsEmpty();
            if (next - first > 1 && hasForm) TellGroup(rule, {first, next}, records, findings);
        }
    }

  private:
    struct Spelling {
        TextRef text;
        TextRef firstId;  // identifier of the row where it came first
        std::uint32_t count;
        TextRef form = {};  // of `forms_`
    };

    /// Brings the spellings of one form together, in the order in which the forms came first.
    void SortByForm() {
        Text form;
        for (Spelling& spelling : spellings_) {
            form.clear();
            AppendComparisonForm(form, store_.Get(spelling.text));
            spelling.form = forms_.Intern(form);
        }
        const auto numberOf = [](const Spelling& spelling) {
            return spelling.form.IsEmpty() ? 0 : spelling.form.Symbol() + std::uint64_t{1};
        };
        std::stable_sort(spellings_.begin(), spellings_.end(), [&](const Spelling& a, const Spelling& b) {
            return numberOf(a) != numberOf(b) ? numberOf(a) < numberOf(b) : a.count > b.count;
        });
    }

    struct Range {
        std::size_t first, end;
    };
    void TellGroup(Rule rule, Range group, const FileRecords& records, Findings& findings) const {
        constexpr std::size_t kMostSpellings = 10;
        Text text;
        for (std::size_t i = group.first; i < std::min(group.end, group.first + kMostSpellings); ++i) {
            text += Concat({text.empty() ? "" : ", ", Quoted(store_.Get(spellings_[i].text)), " (",
                            Decimal(spellings_[i].count), ")"});
        }
        if (group.end - group.first > kMostSpellings) text += ", ...";
        const TextView id = store_.Get(spellings_[group.end - 1].firstId);
        findings.Add(rule, records.LineOf(records.ids.FindInterned(id)), id, text);
    }

    const TextStore& store_;
    TextStore forms_;
    std::vector<std::uint32_t> places_;  // by symbol: number of the spelling, from 1
    std::vector<Spelling> spellings_;
};

}  // namespace

void CheckSpellings(const TableSet& tables, const FileRecords& records, Findings& findings) {
    if (tables.lvwIn.Count() == 0) return;
    // All tables of a read have their texts in one store.
    SpellingCounts places(tables.lvwIn.Store()), surnames(tables.lvwIn.Store());
    for (std::int32_t i = 1; i <= tables.lvwIn.Count(); ++i) {
        LookAhead(tables.lvwIn, i);
        const RowView row = tables.lvwIn.Item(i);
        surnames.Add(row.Ref(In::LastName), row.Ref(In::ID));
        places.Add(row.Ref(In::BirthPlace), row.Ref(In::ID));
        places.Add(row.Ref(In::DeathPlace), row.Ref(In::ID));
    }
    for (std::int32_t i = 1; i <= tables.lvwFamily.Count(); ++i) {
        LookAhead(tables.lvwFamily, i);
        const RowView row = tables.lvwFamily.Item(i);
        places.Add(row.Ref(Family::MarrPlace), row.Ref(Family::IDFam));
    }
    places.Tell(Rule::PlaceSpellings, records, findings);
    surnames.Tell(Rule::SurnameSpellings, records, findings);
}

}  // namespace swiftroll::modCheck

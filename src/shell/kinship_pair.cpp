#include "shell/kinship_pair.h"

#include <algorithm>

#include "shell/person_label.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/fold.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

constexpr std::size_t kMostSuggestions = 20;

Text LabelOf(const RowView& person) { return Concat({NameAndYears(person), " ", person.Text()}); }

/// Whether each word begins a word of a text; both in their comparison forms.
bool HoldsBeginnings(const Text& text, const std::vector<TextView>& words) {
    return std::all_of(words.begin(), words.end(), [&](TextView word) {
        for (std::size_t at = text.find(word); at != Text::npos; at = text.find(word, at + 1)) {
            if (at == 0 || text[at - 1] == ' ') return true;
        }
        return false;
    });
}

}  // namespace

KinshipPair::KinshipPair(Application& app, KinshipCommands& commands, const modSelectionIn::Engine& selection,
                         Lists& lists, KinshipRequest& request)
    : app_(app), selection_(selection), lists_(lists), request_(request) {
    commands.mnuKinFrom.Operation = [this] { TakeClicked(txtFrom); };
    commands.mnuKinTo.Operation = [this] { TakeClicked(txtTo); };
    commands.cmdSwapPair.Operation = [this] { cmdSwapPair_Click(); };
    commands.cmdFindPair.Operation = [this] { cmdFindPair_Click(); };
}

std::vector<KinshipPair::Suggestion> KinshipPair::Suggest(TextView sTyped) const {
    std::vector<Suggestion> suggestions;
    const Text typed = ComparisonForm(sTyped);
    if (typed.empty()) return suggestions;
    const std::vector<TextView> words = Split(typed, " ");
    Text form;
    for (std::int32_t i = 1; i <= app_.lvwIn.Count() && suggestions.size() < kMostSuggestions; ++i) {
        const Row person = app_.lvwIn.Item(i);
        form.clear();
        for (const ColumnId column :
             {ColumnId(In::LastName), ColumnId(In::FirstName), ColumnId(In::BirthMin), ColumnId(In::BirthMax),
              ColumnId(In::DeathMin), ColumnId(In::DeathMax), ColumnId(In::ID)}) {
            AppendComparisonForm(form, person.Cell(column));
            form += ' ';
        }
        if (HoldsBeginnings(form, words)) suggestions.push_back({Text(person.Text()), LabelOf(person)});
    }
    return suggestions;
}

void KinshipPair::Take(TextBox& slot, TextView sId) {
    const auto person = app_.lvwIn.Find(sId);
    if (!person) return;
    slot.SetText(LabelOf(*person));
    app_.pnlMessage.Set(Concat({"Parenté de « "_t, txtFrom.Get(), " » vers « "_t, txtTo.Get(), " »"_t}));
}

void KinshipPair::TakeClicked(TextBox& slot) {
    lists_.OnActiveTable("TakeClicked", [&](Table& table) {
        if (const auto sId = selection_.context.IndividualOf(table, lists_.lHitRow)) Take(slot, *sId);
    });
}

/// The person whom the text of a slot tells without a doubt; else the user is told what to do.
std::optional<Text> KinshipPair::PersonIn(TextBox& slot) {
    const TextView shown = slot.Get();
    const auto person = app_.lvwIn.Find(shown.substr(shown.rfind(" @") + 1));
    if (person && LabelOf(*person) == shown) return Text(person->Text());
    const std::vector<Suggestion> people = Suggest(shown);
    if (people.size() == 1) {
        slot.SetText(people.front().label);
        return people.front().sId;
    }
    const TextView why = Trim(shown).empty() ? "aucune personne n'est indiquée."_t
                         : people.empty()    ? "personne n'a ce nom."_t
                                             : "plusieurs personnes ont ce nom."_t;
    app_.Box(" - Parenté"_t,
             Concat({"« "_t, slot.Caption, " » : "_t, why, kLineEnd, kLineEnd,
                     "Tapez le début de ses nom et prénom, et au besoin une année, puis choisissez dans la "
                     "liste."_t}),
             BoxButtons::Ok, BoxIcon::Exclamation);
    SetFocus(slot);
    return std::nullopt;
}

void KinshipPair::cmdFindPair_Click() {
    const auto from = PersonIn(txtFrom);
    const auto to = from ? PersonIn(txtTo) : std::nullopt;
    if (!to) return;
    app_.ShowTab(Tab::Kinship);
    request_.FindPathBetween(*from, *to);
}

void KinshipPair::cmdSwapPair_Click() {
    const Text from = txtFrom.Get();
    txtFrom.SetText(txtTo.Get());
    txtTo.SetText(from);
}

}  // namespace swiftroll

#include "mark_steps.h"

#include <algorithm>

#include "text/numbers.h"
#include "words.h"

namespace swiftroll::cli {
namespace {

struct NamedMode {
    std::string_view name;
    TextView sMode;
};

constexpr NamedMode kLinkModes[] = {
    {"individus", "I"}, {"parents", "P"}, {"conjoints", "S"}, {"enfants", "C"}};
constexpr NamedMode kLineageModes[] = {{"ascendants", "A"}, {"descendants", "D"}};
// The longer ones first, since all of them end alike.
constexpr NamedMode kValueModes[] = {{"<=", "V<="}, {">=", "V>="}, {"=", "V="}};

}  // namespace

MarkSteps::MarkSteps(const frmMain& main, const std::vector<MarkStep>& steps) {
    for (const MarkStep& step : steps) {
        if (step.kind == MarkStep::Kind::Mark) {
            steps_.emplace_back(step.value);
        } else {
            steps_.emplace_back(SelectionOf(main, step));
        }
    }
}

std::optional<MarkSteps::Selection> MarkSteps::LineageOf(const MarkStep& step) {
    const std::string_view word = step.value;
    const std::size_t colon = std::min(word.find(':'), word.size());
    for (const NamedMode& mode : kLineageModes) {
        if (word.substr(0, colon) != mode.name) continue;
        Selection selection;
        selection.bSelect = step.kind == MarkStep::Kind::Add;
        selection.sMode = mode.sMode;
        if (colon == word.size()) return selection;
        const auto number = ParseDecimal(word.substr(colon + 1));
        if (!number || *number < 1) {
            throw UsageError("le nombre de générations doit être au moins 1 : " + step.value);
        }
        selection.lGenerations =
            static_cast<std::int32_t>(std::min<std::int64_t>(*number, modSelectionIn::kAllGenerations));
        return selection;
    }
    return std::nullopt;
}

MarkSteps::Selection MarkSteps::SelectionOf(const frmMain& main, const MarkStep& step) {
    const std::string_view word = step.value;
    if (const auto lineage = LineageOf(step)) return *lineage;
    Selection selection;
    selection.bSelect = step.kind == MarkStep::Kind::Add;
    for (const NamedMode& mode : kLinkModes) {
        if (word == mode.name) selection.sMode = mode.sMode;
    }
    if (!selection.sMode.empty()) return selection;
    for (const NamedMode& mode : kValueModes) {
        if (!word.ends_with(mode.name)) continue;
        const Text key = TextOf(step.value.substr(0, word.size() - mode.name.size()));
        const auto& columns = main.lvwIn.Columns();
        const auto column =
            std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.Key == key; });
        if (column == columns.end()) throw UsageError("colonne inconnue : " + step.value);
        selection.sMode = mode.sMode;
        selection.column = column->Index;
        return selection;
    }
    throw UsageError("mode inconnu : " + step.value);
}

bool MarkSteps::Run(Session& session) const {
    frmMain& main = session.main;
    for (const auto& step : steps_) {
        if (const auto* id = std::get_if<std::string>(&step)) {
            if (!session.Mark(*id)) return false;
            continue;
        }
        const auto& selection = std::get<Selection>(step);
        main.lvwActiveListView = &main.lvwIn;
        main.selection.context.SetClickedCell(main, main.lvwIn, selection.column);
        main.selection.Add_Remove_Selection(selection.bSelect, selection.sMode, selection.lGenerations);
    }
    return true;
}

}  // namespace swiftroll::cli

#include "mark_steps.h"

#include <algorithm>

#include "words.h"

namespace swiftroll::cli {
namespace {

struct NamedMode {
    std::string_view name;
    TextView sMode;
};

constexpr NamedMode kLinkModes[] = {
    {"individus", "I"}, {"parents", "P"}, {"conjoints", "S"}, {"enfants", "C"}};
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

MarkSteps::Selection MarkSteps::SelectionOf(const frmMain& main, const MarkStep& step) {
    const std::string_view word = step.value;
    Selection selection{step.kind == MarkStep::Kind::Add, {}};
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
        main.selection.Add_Remove_Selection(selection.bSelect, selection.sMode);
    }
    return true;
}

}  // namespace swiftroll::cli

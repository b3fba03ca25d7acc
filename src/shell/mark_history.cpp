#include "shell/mark_history.h"

#include "app/french_count.h"
#include "shell/list_names.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

Text RowCount(std::int32_t count) {
    return Concat({FrenchCount(count), ForCount(count, " ligne", " lignes")});
}

/// "12 lignes ajoutées aux marques de « Entrée », 3 retirées."
Text Sentence(TextView list, const MarkSnapshot::Difference& difference) {
    const auto [added, taken, differs] = difference;
    const TextView addedWord = ForCount(added, " ajoutée"_t, " ajoutées"_t);
    const TextView takenWord = ForCount(taken, " retirée"_t, " retirées"_t);
    if (added == 0 && taken == 0)
        return Concat({"Aucune ligne de plus ni de moins n'est marquée dans « "_t, list, " »."_t});
    if (added == 0) return Concat({RowCount(taken), takenWord, " des marques de « "_t, list, " »."_t});
    const Text text = Concat({RowCount(added), addedWord, " aux marques de « "_t, list, " »"_t});
    if (taken == 0) return Concat({text, "."});
    return Concat({text, ", ", FrenchCount(taken), takenWord, "."});
}

}  // namespace

MarkHistory::MarkHistory(Application& app, ListCommands& commands) : app_(app), commands_(commands) {
    commands_.cmdUndoMarks.Operation = commands_.mnuUndoMarks.Operation = [this] { Undo(); };
}

MarkHistory::Start::Start(MarkHistory& history, Table& table)
    : history_(history), previous_(std::exchange(history.start_, Entry(&table, table.Marks()))) {}

void MarkHistory::Run(Table& table, const std::function<void()>& command) {
    auto start = std::exchange(start_, std::nullopt);
    MarkSnapshot before = start && start->first == &table ? std::move(start->second) : table.Marks();
    command();
    const auto difference = table.MarksSince(before);
    if (!difference) return;
    if (difference->differs) entries_.emplace_back(&table, std::move(before));
    if (entries_.size() > kDepth) entries_.pop_front();
    Follow();
    Tell(table, *difference);
}

void MarkHistory::Tell(const Table& table, const MarkSnapshot::Difference& difference) {
    Notice notice{Sentence(ListName(app_, table), difference)};
    if (difference.differs) notice.buttons.push_back({Text("Annuler"), [this] { Undo(); }});
    app_.messageBar.Show(this, std::move(notice));
}

void MarkHistory::Undo() {
    Follow();
    if (entries_.empty()) return;
    const Entry entry = std::move(entries_.back());
    entries_.pop_back();
    Table& table = *entry.first;
    table.RestoreMarks(entry.second);
    Follow();
    const std::int32_t count = table.MarkedCount();
    app_.messageBar.Show(
        this, {Concat({"Les marques précédentes de « "_t, ListName(app_, table), " » sont rétablies : "_t,
                       RowCount(count), ForCount(count, " marquée."_t, " marquées."_t)})});
}

void MarkHistory::Follow() {
    const auto gone =
        std::erase_if(entries_, [](const Entry& entry) { return !entry.first->CanRestore(entry.second); });
    if (gone > 0) app_.messageBar.Remove(this);
    commands_.cmdUndoMarks.Enabled = commands_.mnuUndoMarks.Enabled = !entries_.empty();
}

}  // namespace swiftroll

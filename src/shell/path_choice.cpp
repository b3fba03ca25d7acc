#include "shell/path_choice.h"

#include "kinship/out_link.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {

PathChoice::PathChoice(Application& app, modKinship::Search& search) : app_(app), search_(search) {
    app_.lvwPaths.OnCurrent = [this](const Row& row) {
        app_.trail.Guard(
            "lvwPaths_ItemClick", [&] { Show(row); }, [&] { return Text(row.Text()); });
    };
}

void PathChoice::Show(Row path) {
    if (path.Cell(Paths::Visible) != modKinship::kVisible) {
        app_.pnlMessage.Set(
            "Ce lien n'est pas affiché : il dépasse une limite de l'onglet \"Options\". Changez-la et "
            "relancez la recherche."_t);
        return;
    }
    ShowLines(path);
    app_.lvwPaths.Need(path);
    app_.pnlMessage.Set(Concat({"[", search_.sKinshipTo, "] : ", path.Cell(Paths::Relation), " de [",
                                search_.sKinshipFrom, "].  [", search_.sKinshipFrom, "] : ",
                                search_.pathNames.NameBackwards(path), " de [", search_.sKinshipTo, "]."}));
}

/// From the last line to the first: as many of them as there is room for are in view then.
void PathChoice::ShowLines(const Row& path) {
    const auto line = [&](std::int64_t number) {
        return app_.lvwKinship.Find(
            Concat({path.Text(), modKinship::kPathEnd, Decimal(number, modKinship::kPathDigits)}));
    };
    const auto first = line(1);
    if (!first) return;
    if (const auto last = line(ToLong(path.Cell(Paths::Links)))) last->EnsureVisible();
    first->EnsureVisible();
    app_.lvwKinship.SetCurrent(*first);
}

}  // namespace swiftroll

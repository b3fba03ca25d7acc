#include "shell/kinship_request.h"

#include "app/french_count.h"
#include "kinship/path_options.h"
#include "shell/nearest_offer.h"
#include "shell/work_notice.h"
#include "tables/column_icon.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kDefineChoices = "Define choices", kSearching = "Recherche des liens de parenté..."_t;

}  // namespace

KinshipRequest::KinshipRequest(Application& app, KinshipCommands& commands, frmKinshipSelect& dialog,
                               modKinship::Search& search, PathDrawing& drawing)
    : app_(app), dialog_(dialog), search_(search), drawing_(drawing) {
    commands.cmdFindPath.Operation = commands.mnuFindPath.Operation = [this] { cmdFindPath_Click(); };
}

/// Runs the steps of a request under the trail.
void KinshipRequest::RequestKinship(const std::function<void(Progress& progress)>& steps) {
    if (search_.IsRunning()) {
        app_.pnlMessage.Set("Une recherche de parenté est déjà en cours."_t);
        return;
    }
    {
        Progress progress{kDefineChoices};
        app_.trail.Guard(
            "cmdFindPath_Click", [&] { steps(progress); },
            [&] {
                return Concat({progress.step, "/", Decimal(progress.row)});
            });
    }
    SetAllColumnIcons(app_);
}

void KinshipRequest::cmdFindPath_Click() {
    RequestKinship([this](Progress& progress) {
        KinshipChoices choices;
        choices.Define(app_.lvwIn, progress.row);
        app_.bAbort = true;
        dialog_.ClearChoices();
        bool isUsable = false;
        for (int i = 1; i <= kReadings; ++i) {
            const auto pair = choices.PairOf(i, app_.lvwIn);
            if (!pair) continue;
            dialog_.SetKinshipSelection(i, app_.lvwIn.Item(pair->first), app_.lvwIn.Item(pair->second));
            isUsable = true;
        }
        if (!isUsable) return RefuseKinship(choices);
        dialog_.Open();
        dialog_.Show();
        app_.ports.dialogs.ShowModal(dialog_);
        if (app_.bAbort) return;
        app_.bAbort = true;
        const auto pair = choices.PairOf(dialog_.Choice(), app_.lvwIn);
        if (!pair) return;
        app_.bAbort = false;
        const bool inverted = dialog_.chkInverted.Checked();
        FindPath(inverted ? pair->second : pair->first, inverted ? pair->first : pair->second, progress);
    });
}

bool KinshipRequest::FindPathBetween(TextView sFromId, TextView sToId) {
    bool isAccepted = false;
    RequestKinship([&](Progress& progress) {
        const Row from = app_.lvwIn.Item(sFromId), to = app_.lvwIn.Item(sToId);
        if (from == to || from.Cell(In::IslandNr) != to.Cell(In::IslandNr)) {
            KinshipChoices choices;
            choices.Define(app_.lvwIn, progress.row);
            app_.bAbort = true;
            return RefuseKinship(choices);
        }
        isAccepted = true;
        FindPath(from.Index(), to.Index(), progress);
    });
    return isAccepted;
}

void KinshipRequest::RefuseKinship(const KinshipChoices& choices) {
    app_.Box(
        " - Parenté"_t,
        Concat(
            {"Il faut spécifier les 2 individus d'un même ilot entre lesquels il faut trouver les liens."_t,
             kLineEnd, kLineEnd,
             "SwiftRoll ne peut pas trouver - sans équivoque - 2 individus d'un même ilot"_t, kLineEnd,
             "parmi les possibilités suivantes :"_t, kLineEnd, kLineEnd, choices.CountLines(1, 3), kLineEnd,
             choices.CountLines(4, 6), kLineEnd,
             "(Double-clic sur l'onglet pour afficher les individus sélectionnés)"_t}),
        BoxButtons::Ok, BoxIcon::Exclamation);
}

void KinshipRequest::FindPath(std::int32_t lFrom, std::int32_t lTo, Progress& progress) {
    search_.SetPair(lFrom, lTo);
    const Row from = app_.lvwIn.Item(lFrom), to = app_.lvwIn.Item(lTo);
    app_.lvwKinship.Tip =
        Concat({"Liens de parenté de"_t, kLineEnd, "    ", from.Text(), " : ", search_.sKinshipFrom, kLineEnd,
                "vers", kLineEnd, "    ", to.Text(), " : ", search_.sKinshipTo});
    progress.wait.emplace(app_.bWaitCursor);
    progress.step = kSearching;
    app_.pnlMessage.Set(kSearching);
    drawing_.DisableKinshipCommands();
    const std::uint32_t clearings = app_.lvwKinship.Clearings();
    Search(lFrom, lTo);
    drawing_.EnableKinshipCommands();
    drawing_.OfferPrinting();
    TellTotal();
    TellEnd(clearings);
}

/// Searches as the options say. A search for all paths gives way to one for the nearest when the user wants
/// that; the first has ended then.
void KinshipRequest::Search(std::int32_t lFrom, std::int32_t lTo) {
    const Row from = app_.lvwIn.Item(lFrom), to = app_.lvwIn.Item(lTo);
    const Text island(from.Cell(In::IslandNr)), fromId(from.Text()), toId(to.Text());
    // Another file may be read meanwhile, and the rows may stand elsewhere behind a search.
    const std::uint32_t clearings = app_.lvwIn.Clearings();
    bool isNearestWanted = app_.chkNearest.Checked();
    if (!isNearestWanted) {
        NearestOffer offer(app_);
        search_.onWalk = [&] { offer.Tell(search_.lNrLinks); };
        search_.FindKinship(island, lFrom, lTo);
        search_.onWalk = nullptr;
        isNearestWanted = offer.IsTaken();
    }
    if (!isNearestWanted || app_.lvwIn.Clearings() != clearings) return;
    search_.FindKinship(island, app_.lvwIn.Item(fromId).Index(), app_.lvwIn.Item(toId).Index(),
                        modKinship::NearestCount(app_));
    if (app_.lvwIn.Clearings() == clearings) TellNearest();
}

/// Says in the message bar that the table does not show all paths, where that is so.
void KinshipRequest::TellNearest() {
    const std::int64_t count = search_.lNrLinks;
    if (count < 1) return;
    app_.messageBar.Show(&search_, {count == 1 ? Text("Le plus proche"_t)
                                               : Concat({"Les ", FrenchCount(count), " plus proches"})});
}

/// A search that was stopped before its walk leaves the paths of the one before.
void KinshipRequest::TellEnd(std::uint32_t clearingsBefore) {
    std::vector<Text> made;
    if (app_.lvwKinship.Clearings() != clearingsBefore)
        made.push_back(Counted(search_.lNrLinks, "lien trouvé"_t, "liens trouvés"_t));
    swiftroll::TellEnd(app_, app_.bAbort ? "Recherche interrompue"_t : "Recherche terminée"_t, made,
                       !app_.bAbort);
}

void KinshipRequest::TellTotal() {
    Text total = Concat({Decimal(search_.lNrLinks), " liens de parenté trouvé(s) au total"_t});
    if (search_.lNrHidden != 0) {
        total += Concat({" => ", Decimal(search_.lNrHidden), " non affiché(s)"_t});
    }
    total += ".";
    if (search_.RowLimitReached() > 0) {
        total += Concat({" Recherche arrêtée : la mémoire ne suffit pas pour plus de "_t,
                         Decimal(search_.RowLimitReached()), " lignes."});
    }
    app_.pnlMessage.Set(total);
}

}  // namespace swiftroll

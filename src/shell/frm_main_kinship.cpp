// The command that searches the kinship of two individuals.
#include "shell/frm_main.h"
#include "tables/column_icon.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr TextView kDefineChoices = "Define choices", kSearching = "Recherche des liens de parenté..."_t;

}  // namespace

void frmMain::BindKinship() {
    cmdFindPath.Operation = [this] { cmdFindPath_Click(); };
    mnuFindPath.Operation = [this] { cmdFindPath_Click(); };
}

/// Runs the steps of a request under the trail.
void frmMain::RequestKinship(const std::function<void(KinshipRequest& request)>& steps) {
    if (modKinship.IsRunning()) {
        pnlMessage.Set("Une recherche de parenté est déjà en cours."_t);
        return;
    }
    {
        KinshipRequest request{kDefineChoices};
        trail.Guard(
            "cmdFindPath_Click", [&] { steps(request); },
            [&] {
                return Concat({request.step, "/", Decimal(request.row)});
            });
    }
    SetAllColumnIcons(*this);
}

void frmMain::cmdFindPath_Click() {
    RequestKinship([this](KinshipRequest& request) {
        KinshipChoices choices;
        choices.Define(lvwIn, request.row);
        bAbort = true;
        frmKinshipSelect.ClearChoices();
        bool isUsable = false;
        for (int i = 1; i <= kReadings; ++i) {
            const auto pair = choices.PairOf(i, lvwIn);
            if (!pair) continue;
            frmKinshipSelect.SetKinshipSelection(i, lvwIn.Item(pair->first), lvwIn.Item(pair->second));
            isUsable = true;
        }
        if (!isUsable) return RefuseKinship(choices);
        frmKinshipSelect.Open();
        frmKinshipSelect.Show();
        ports.dialogs.ShowModal(frmKinshipSelect);
        if (bAbort) return;
        bAbort = true;
        const auto pair = choices.PairOf(frmKinshipSelect.Choice(), lvwIn);
        if (!pair) return;
        bAbort = false;
        const bool inverted = frmKinshipSelect.chkInverted.Checked();
        FindPath(inverted ? pair->second : pair->first, inverted ? pair->first : pair->second, request);
    });
}

bool frmMain::FindPathBetween(TextView sFromId, TextView sToId) {
    bool isAccepted = false;
    RequestKinship([&](KinshipRequest& request) {
        const Row from = lvwIn.Item(sFromId), to = lvwIn.Item(sToId);
        if (from == to || from.Cell(In::IslandNr) != to.Cell(In::IslandNr)) {
            KinshipChoices choices;
            choices.Define(lvwIn, request.row);
            bAbort = true;
            return RefuseKinship(choices);
        }
        isAccepted = true;
        FindPath(from.Index(), to.Index(), request);
    });
    return isAccepted;
}

void frmMain::RefuseKinship(const KinshipChoices& choices) {
    Box(" - Parenté"_t,
        Concat(
            {"Il faut spécifier les 2 individus d'un même ilot entre lesquels il faut trouver les liens."_t,
             kLineEnd, kLineEnd,
             "SwiftRoll ne peut pas trouver - sans équivoque - 2 individus d'un même ilot"_t, kLineEnd,
             "parmi les possibilités suivantes :"_t, kLineEnd, kLineEnd, choices.CountLines(1, 3), kLineEnd,
             choices.CountLines(4, 6), kLineEnd,
             "(Double-clic sur l'onglet pour afficher les individus sélectionnés)"_t}),
        BoxButtons::Ok, BoxIcon::Exclamation);
}

void frmMain::FindPath(std::int32_t lFrom, std::int32_t lTo, KinshipRequest& request) {
    modKinship.SetPair(lFrom, lTo);
    const Row from = lvwIn.Item(lFrom), to = lvwIn.Item(lTo);
    lvwKinship.Tip =
        Concat({"Liens de parenté de"_t, kLineEnd, "    ", from.Text(), " : ", modKinship.sKinshipFrom,
                kLineEnd, "vers", kLineEnd, "    ", to.Text(), " : ", modKinship.sKinshipTo});
    request.wait.emplace(bWaitCursor);
    request.step = kSearching;
    pnlMessage.Set(kSearching);
    DisableKinshipCommands();
    modKinship.FindKinship(from.Cell(In::IslandNr), lFrom, lTo);
    mnuDrawKinship.Enabled = cmdDrawKinship.Enabled = cboDrawKinship.Enabled = cmdCopyTitle2kinship.Enabled =
        true;
    OfferPrinting();
    Text total = Concat({Decimal(modKinship.lNrLinks), " liens de parenté trouvé(s) au total"_t});
    if (modKinship.lNrHidden != 0) {
        total += Concat({" => ", Decimal(modKinship.lNrHidden), " non affiché(s)"_t});
    }
    total += ".";
    if (modKinship.RowLimitReached() > 0) {
        total += Concat({" Recherche arrêtée : la mémoire ne suffit pas pour plus de "_t,
                         Decimal(modKinship.RowLimitReached()), " lignes."});
    }
    pnlMessage.Set(total);
}

}  // namespace swiftroll

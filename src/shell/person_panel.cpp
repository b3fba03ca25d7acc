#include "shell/person_panel.h"

#include "app/french_count.h"
#include "shell/jump.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr std::size_t kLongestWay = 100;

}  // namespace

PersonPanel::PersonPanel(Application& app, const modReadGedcom::Reader& reader)
    : Window("frmPersonPanel"),
      cmdPersonPanel(*this,
                     {"cmdPersonPanel", "Panneau", "Montre ou cache le panneau de l'individu courant (F9)."},
                     "F9"),
      cmdPersonRecord(*this, {"cmdPersonRecord", "Lignes GEDCOM",
                              "Montre l'individu tel qu'il est écrit dans le fichier GEDCOM."_t}),
      cmdPersonBack(
          *this, {"cmdPersonBack", "Retour", "Revient à l'individu d'où vous venez (Ctrl+Retour arrière)."_t},
          "Ctrl+Backspace", false),
      app_(app),
      reader_(reader) {
    cmdPersonPanel.Operation = [this] { cmdPersonPanel_Click(); };
    cmdPersonRecord.Operation = [this] { chkPersonRecord.SetChecked(!chkPersonRecord.Checked()); };
    cmdPersonBack.Operation = [this] { cmdPersonBack_Click(); };
}

bool PersonPanel::IsOpen() const { return chkPersonPanel.Checked() && !isFolded_; }

void PersonPanel::TakeRoom(bool hasRoom) {
    if (std::exchange(hasRoom_, hasRoom) != hasRoom) isFolded_ = !hasRoom;
}

void PersonPanel::cmdPersonPanel_Click() {
    const bool opens = !IsOpen();
    isFolded_ = false;
    chkPersonPanel.SetChecked(opens);
}

PersonPanel::State PersonPanel::Present() const {
    State state{app_.lvwIn.Clearings(), {}, app_.bFamiliesRead, false};
    if (const auto person = app_.lvwIn.Current()) {
        state.person = person->Ref(In::ID);
        state.isPlaced = !person->Ref(In::IslandNr).IsEmpty();
    }
    return state;
}

std::optional<PersonCard> PersonPanel::Card() const {
    const auto person = app_.lvwIn.Current();
    if (!person) return std::nullopt;
    PersonCard card = CardOf(app_, *person);
    const auto island = static_cast<std::size_t>(ToLong(card.island));
    card.island.clear();
    if (island > 0 && island < reader_.islandSizes.size()) {
        const std::int32_t size = reader_.islandSizes[island];
        card.island = Concat({"Îlot "_t, person->Cell(In::IslandNr), " : ", FrenchCount(size), " ",
                              ForCount(size, "individu", "individus")});
    }
    return card;
}

RecordText PersonPanel::Record() const {
    const auto person = app_.lvwIn.Current();
    return person ? ReadRecord(app_.ports.files, reader_.lines, *person) : RecordText();
}

void PersonPanel::GoTo(TextView sId) {
    app_.trail.Guard(
        "PersonPanel_GoTo",
        [&] {
            const auto from = app_.lvwIn.Current();
            const Text left = from ? Text(from->Text()) : Text();
            if (!app_.lvwIn.Find(sId)) return;
            GoToRow(app_.lvwIn, sId);
            if (left.empty()) return;
            if (std::exchange(clearings_, app_.lvwIn.Clearings()) != app_.lvwIn.Clearings()) left_.clear();
            left_.push_back(left);
            if (left_.size() > kLongestWay) left_.pop_front();
            cmdPersonBack.Enabled = true;
        },
        [&] { return Text(sId); });
}

void PersonPanel::cmdPersonBack_Click() {
    app_.trail.Guard(
        "cmdPersonBack_Click",
        [this] {
            // Those of another file are nobody here.
            if (clearings_ != app_.lvwIn.Clearings()) left_.clear();
            if (!left_.empty()) {
                GoToRow(app_.lvwIn, left_.back());
                left_.pop_back();
            }
            cmdPersonBack.Enabled = !left_.empty();
        },
        [] { return Text(); });
}

}  // namespace swiftroll

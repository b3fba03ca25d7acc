#pragma once

#include <deque>

#include "gedcom/reader.h"
#include "shell/person_card.h"
#include "shell/record_text.h"

namespace swiftroll {

/// The panel beside lvwIn: the person of its current row, and the ways from one person to the next. It keeps
/// nothing of the tables but the identifiers of those who were left by a link.
class PersonPanel : public Window {
  public:
    PersonPanel(Application& app, const modReadGedcom::Reader& reader);

    /// Whether the user wants the panel, and the lines of the record in it.
    CheckBox chkPersonPanel{*this, {"chkPersonPanel", "Panneau de l'individu courant"}, true};
    CheckBox chkPersonRecord{*this, {"chkPersonRecord", "Lignes GEDCOM de l'individu courant"}, false};
    Command cmdPersonPanel, cmdPersonRecord, cmdPersonBack;

    /// What decides the card beside the person: the card is to be made anew when it changes.
    struct State {
        std::uint32_t clearings = 0;
        TextRef person;
        bool bFamiliesRead = false;
        bool isPlaced = false;  // on an island, which ends a read
        friend bool operator==(const State&, const State&) = default;
    };
    State Present() const;
    /// The card of the current person; nothing while there is none.
    std::optional<PersonCard> Card() const;
    /// The lines of the current person's record, or why they cannot be shown.
    RecordText Record() const;
    /// Told by the presentation when the window gets or loses the room for the panel: it folds without room,
    /// until the user unfolds it.
    void TakeRoom(bool hasRoom);
    bool IsOpen() const;
    /// Goes to a relative; `cmdPersonBack` leads back.
    void GoTo(TextView sId);

  private:
    void cmdPersonPanel_Click();
    void cmdPersonBack_Click();

    Application& app_;
    const modReadGedcom::Reader& reader_;
    bool hasRoom_ = true, isFolded_ = false;
    std::deque<Text> left_;        // the last one behind
    std::uint32_t clearings_ = 0;  // of lvwIn when the last one was left
};

}  // namespace swiftroll

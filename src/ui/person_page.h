#pragma once

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>

#include "shell/person_card.h"

namespace swiftroll::ui {

/// A card as a page of texts and links, made once: another card is another page.
class PersonPage : public QWidget {
  public:
    /// `onChosen` gets the identifier of the relative whose link was followed.
    PersonPage(const PersonCard& card, std::function<void(const Text& sId)> onChosen);

    /// The name of the person, where reading begins.
    QLabel& Head() const { return *head_; }

  private:
    void AddFact(const QString& what, const Text& text);
    void AddTitle(const QString& title);
    void AddPeople(const PersonCard::Group& group, int indent = 0);
    void AddRelative(const PersonCard::Relative& relative, int indent);
    void AddUnion(const PersonCard::Union& made);
    void AddMore(std::size_t more, int indent);
    QLabel* AddText(const QString& text, int indent = 0);

    std::function<void(const Text& sId)> onChosen_;
    QVBoxLayout* column_;
    QLabel* head_;
};

}  // namespace swiftroll::ui

#include "person_page.h"

#include "layout.h"
#include "link_label.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr int kIndent = 14, kGapAboveTitle = 10;
constexpr qreal kHeadScale = 1.25;

QLabel* NewText(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}  // namespace

PersonPage::PersonPage(const PersonCard& card, std::function<void(const Text& sId)> onChosen)
    : onChosen_(std::move(onChosen)), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(kMargin, kSpacing, kMargin, kMargin);
    column_->setSpacing(2);
    head_ = AddText(ToQt(card.name));
    head_->setObjectName(QStringLiteral("personName"));
    head_->setFocusPolicy(Qt::TabFocus);
    QFont large = head_->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * kHeadScale);
    head_->setFont(large);
    AddText(ToQt(card.sId))->setForegroundRole(QPalette::PlaceholderText);
    AddFact(QStringLiteral("Naissance"), card.birth);
    AddFact(QStringLiteral("Décès"), card.death);
    if (!card.parents.people.empty()) {
        AddTitle(QStringLiteral("Parents"));
        AddPeople(card.parents);
    }
    if (!card.unions.empty()) AddTitle(QStringLiteral("Unions et enfants"));
    for (const PersonCard::Union& made : card.unions) AddUnion(made);
    AddMore(card.moreUnions, 0);
    if (!card.siblings.people.empty()) {
        AddTitle(QStringLiteral("Frères et sœurs"));
        AddPeople(card.siblings);
    }
    if (!card.island.empty()) {
        column_->addSpacing(kGapAboveTitle);
        AddText(ToQt(card.island));
    }
    column_->addStretch(1);
}

QLabel* PersonPage::AddText(const QString& text, int indent) {
    QLabel* label = NewText(text);
    label->setContentsMargins(indent, 0, 0, 0);
    column_->addWidget(label);
    return label;
}

void PersonPage::AddFact(const QString& what, const Text& text) {
    if (!text.empty()) AddText(what + QStringLiteral(" : ") + ToQt(text));
}

void PersonPage::AddTitle(const QString& title) {
    column_->addSpacing(kGapAboveTitle);
    QLabel* label = AddText(title);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
}

void PersonPage::AddPeople(const PersonCard::Group& group, int indent) {
    for (const PersonCard::Relative& relative : group.people) AddRelative(relative, indent);
    AddMore(group.more, indent);
}

void PersonPage::AddMore(std::size_t more, int indent) {
    if (more > 0) AddText(QStringLiteral("… et %1 de plus").arg(more), indent);
}

/// The name leads to the relative; what he or she is to the person stands behind it.
void PersonPage::AddRelative(const PersonCard::Relative& relative, int indent) {
    const QString name = ToQt(relative.name), relation = ToQt(relative.relation);
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(indent, 0, 0, 0);
    row->setSpacing(kSpacing);
    if (relative.sId.empty()) {
        row->addWidget(NewText(name), 1);
    } else {
        const QString spoken = relation.isEmpty() ? name : relation + QStringLiteral(" : ") + name;
        row->addWidget(new LinkLabel(name, spoken, [this, sId = relative.sId] { onChosen_(sId); }), 1);
    }
    if (!relation.isEmpty()) {
        auto* kind = new QLabel(relation);
        kind->setForegroundRole(QPalette::PlaceholderText);
        kind->setAlignment(Qt::AlignRight | Qt::AlignTop);
        row->addWidget(kind);
    }
    column_->addWidget(line);
}

void PersonPage::AddUnion(const PersonCard::Union& made) {
    if (made.spouses.people.empty()) AddText(QStringLiteral("Conjoint inconnu"));
    AddPeople(made.spouses);
    if (!made.marriage.empty()) AddText(QStringLiteral("Mariage : ") + ToQt(made.marriage), kIndent);
    AddPeople(made.children, kIndent);
}

}  // namespace swiftroll::ui

#include "grouping_strip.h"

#include <QMenu>
#include <QPainter>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "layout.h"
#include "qt_text.h"
#include "stale_list_bar.h"
#include "tables/columns.h"

namespace swiftroll::ui {
namespace {

constexpr int kGap = 4;
constexpr int kTargetWidth = 3;

}  // namespace

GroupingStrip::GroupingStrip(Presenter& presenter)
    : presenter_(presenter),
      grouping_(presenter.Main().grouping),
      title_(new QLabel(QStringLiteral("Regroupé par:"), this)),
      add_(new QToolButton(this)) {
    setObjectName(QStringLiteral("groupingStrip"));
    setAccessibleName(QStringLiteral("Regroupement de la liste"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    BindChips();
    add_->setObjectName(QStringLiteral("groupingAdd"));
    add_->setText(QStringLiteral("+ Colonne"));
    add_->setToolTip(QStringLiteral("Ajouter une colonne"));
    add_->setAccessibleName(QStringLiteral("Ajouter une colonne"));
    add_->setAutoRaise(true);
    add_->setFocusPolicy(Qt::StrongFocus);
    add_->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(add_);
    menu->setObjectName(QStringLiteral("groupingMenu"));
    add_->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { FillMenu(*menu); });
    presenter_.OnRefresh([this] { Refresh(); });
}

void GroupingStrip::BindChips() {
    actions_ = {.dragged =
                    [this](GroupingChip& chip) {
                        const auto others = OthersOfKind(chip);
                        const std::size_t place = PlaceAt(chip);
                        target_ = {};
                        if (!others.empty()) {
                            const bool isLast = place == others.size();
                            const QRect next = others[isLast ? place - 1 : place]->geometry();
                            target_ = QRect(isLast ? next.right() + 1 : next.left() - kTargetWidth,
                                            next.top(), kTargetWidth, next.height());
                        }
                        update();
                    },
                .dropped =
                    [this](GroupingChip& chip) {
                        target_ = {};
                        PlaceChip(chip, PlaceAt(chip));
                    },
                .dragCancelled =
                    [this](GroupingChip&) {
                        target_ = {};
                        Arrange();
                    },
                .move = [this](GroupingChip& chip, int step) { MoveBy(chip, step); },
                .goTo = [this](GroupingChip& chip, int step) { GoTo(chip, step); },
                .takeOut = [this](GroupingChip& chip) { TakeOut(chip); }};
    for (const ColumnFacts& column : Out::kColumns) {
        const auto kind = Grouping::KindOf(column.id);
        chips_.push_back(kind ? new GroupingChip(column.id, kind == Kind::Group, actions_, this) : nullptr);
        if (!kind) continue;
        chips_.back()->hide();
        chips_.back()->SetText(ToQt(grouping_.NameOf(column.id)));
        chips_.back()->setToolTip(
            QStringLiteral("%1\nFaites glisser pour déplacer, croix ou Suppr pour retirer.")
                .arg(ToQt(column.caption)));
    }
}

void GroupingStrip::Refresh() {
    std::vector<ColumnId> groups = grouping_.Shown(Kind::Group), years = grouping_.Shown(Kind::Year);
    if (groups == groups_ && years == years_) return;
    groups_ = std::move(groups);
    years_ = std::move(years);
    TellOrder();
    Arrange();
}

/// What a screen reader says of the strip and of each chip.
void GroupingStrip::TellOrder() {
    QStringList names[2];
    for (const Kind kind : {Kind::Group, Kind::Year}) {
        const auto chips = ChipsOf(kind);
        for (std::size_t i = 0; i < chips.size(); ++i) {
            const QString role = kind == Kind::Group ? QStringLiteral("groupe") : QStringLiteral("année");
            chips[i]->setAccessibleName(
                QStringLiteral("%1, %2 %3 sur %4").arg(chips[i]->Text(), role).arg(i + 1).arg(chips.size()));
            names[kind == Kind::Group ? 0 : 1] << chips[i]->Text();
        }
    }
    const QString number = ToQt(presenter_.Main().lvwOut.ColumnAt(Out::Number).Caption);
    const QStringList parts = {names[0].join(QStringLiteral(" > ")), number,
                               names[1].join(QStringLiteral(", "))};
    setAccessibleDescription(title_->text() + QLatin1Char(' ') + parts.join(QStringLiteral(" | ")));
}

std::vector<GroupingChip*> GroupingStrip::ChipsOf(Kind kind) const {
    std::vector<GroupingChip*> chips;
    for (const ColumnId column : kind == Kind::Group ? groups_ : years_)
        chips.push_back(chips_[static_cast<std::size_t>(column.Section())]);
    return chips;
}

std::vector<GroupingChip*> GroupingStrip::ShownChips() const {
    std::vector<GroupingChip*> chips = ChipsOf(Kind::Group);
    std::ranges::copy(ChipsOf(Kind::Year), std::back_inserter(chips));
    return chips;
}

std::vector<GroupingChip*> GroupingStrip::OthersOfKind(const GroupingChip& chip) const {
    std::vector<GroupingChip*> chips = ChipsOf(*Grouping::KindOf(chip.Column()));
    std::erase(chips, &chip);
    return chips;
}

/// Puts chips and texts in lines, as many as the width asks for.
void GroupingStrip::Arrange() {
    const int height = std::max(chips_.front()->sizeHint().height(), add_->sizeHint().height());
    int x = 0, y = 0;
    const auto next = [&](int width) {
        if (x > 0 && x + width > this->width()) {
            x = 0;
            y += height + kGap;
        }
        const QRect place(x, y, width, height);
        x += width + kGap;
        return place;
    };
    const auto addMark = [&](const QString& text) {
        marks_.push_back({next(fontMetrics().horizontalAdvance(text)), text});
    };
    QWidget* previous = nullptr;
    const auto addWidget = [&](QWidget& widget) {
        widget.setGeometry(next(widget.sizeHint().width()));
        widget.show();
        if (previous != nullptr) setTabOrder(previous, &widget);
        if (widget.focusPolicy() != Qt::NoFocus) previous = &widget;
    };
    const auto addChips = [&](Kind kind, const QString& separator) {
        const auto chips = ChipsOf(kind);
        for (std::size_t i = 0; i < chips.size(); ++i) {
            if (i > 0) addMark(separator);
            addWidget(*chips[i]);
        }
    };
    const auto shown = ShownChips();
    for (GroupingChip* chip : chips_) {
        if (chip != nullptr && std::ranges::find(shown, chip) == shown.end()) chip->hide();
    }
    marks_.clear();
    addWidget(*title_);
    if (groups_.empty()) addMark(QStringLiteral("(aucune colonne)"));
    addChips(Kind::Group, QStringLiteral(">"));
    addMark(QStringLiteral("|"));
    addMark(ToQt(presenter_.Main().lvwOut.ColumnAt(Out::Number).Caption));
    if (!years_.empty()) addMark(QStringLiteral("|"));
    addChips(Kind::Year, QStringLiteral(","));
    addWidget(*add_);
    if (minimumHeight() != y + height) setFixedHeight(y + height);
    update();
}

QSize GroupingStrip::sizeHint() const { return {400, height()}; }
QSize GroupingStrip::minimumSizeHint() const { return {200, minimumHeight()}; }

void GroupingStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    for (const Mark& mark : marks_) painter.drawText(mark.place, Qt::AlignCenter, mark.text);
    if (!target_.isNull()) painter.fillRect(target_, palette().color(QPalette::Highlight));
}

void GroupingStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width()) Arrange();
}

void GroupingStrip::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Arrange();
}

void GroupingStrip::FillMenu(QMenu& menu) {
    menu.clear();
    const std::pair<Kind, QString> sections[] = {{Kind::Group, QStringLiteral("Regrouper par")},
                                                 {Kind::Year, QStringLiteral("Années")}};
    for (const auto& [kind, title] : sections) {
        menu.addSection(title);
        for (const ColumnId column : grouping_.Others(kind)) {
            const QString caption = ToQt(presenter_.Main().lvwOut.ColumnAt(column).Caption);
            connect(menu.addAction(caption), &QAction::triggered, this,
                    [this, column] { presenter_.Act([&] { grouping_.Place(column, chips_.size()); }); });
        }
    }
}

/// Where a dragged chip would go among those of its kind: behind those whose middle comes before its own.
std::size_t GroupingStrip::PlaceAt(const GroupingChip& chip) const {
    const QPoint middle = chip.geometry().center();
    return static_cast<std::size_t>(std::ranges::count_if(OthersOfKind(chip), [&](const GroupingChip* other) {
        const QRect place = other->geometry();
        if (middle.y() > place.bottom() + kGap) return true;
        return middle.y() >= place.top() - kGap && middle.x() > place.center().x();
    }));
}

void GroupingStrip::PlaceChip(GroupingChip& chip, std::size_t place) {
    presenter_.Act([&] { grouping_.Place(chip.Column(), place); });
    Arrange();  // also where the order stays the same
}

void GroupingStrip::TakeOut(GroupingChip& chip) {
    const bool hadFocus = window()->focusWidget() == &chip;
    const auto shown = ShownChips();
    const auto at = std::ranges::find(shown, &chip);
    QWidget* heir = at != shown.end() && at + 1 != shown.end() ? *(at + 1)
                    : at != shown.end() && at != shown.begin() ? *(at - 1)
                                                               : static_cast<QWidget*>(add_);
    if (hadFocus) heir->setFocus();
    presenter_.Act([&] { grouping_.TakeOut(chip.Column()); });
}

void GroupingStrip::MoveBy(GroupingChip& chip, int step) {
    const auto chips = ChipsOf(*Grouping::KindOf(chip.Column()));
    const auto at = std::ranges::find(chips, &chip) - chips.begin() + step;
    if (step == 0 || at < 0 || at >= std::ssize(chips)) return;
    PlaceChip(chip, static_cast<std::size_t>(at));
}

void GroupingStrip::GoTo(const GroupingChip& chip, int step) {
    const auto shown = ShownChips();
    const auto at = std::ranges::find(shown, &chip) - shown.begin() + step;
    if (at < 0) return;
    QWidget* target =
        at < std::ssize(shown) ? static_cast<QWidget*>(shown[static_cast<std::size_t>(at)]) : add_;
    target->setFocus();
}

QWidget* BuildGrouping(Presenter& presenter) {
    auto* both = new QWidget;
    auto* column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kSpacing);
    column->addWidget(new GroupingStrip(presenter));
    column->addWidget(new StaleListBar(presenter));
    return both;
}

}  // namespace swiftroll::ui

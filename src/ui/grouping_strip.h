#pragma once

#include <QLabel>
#include <QToolButton>
#include <vector>

#include "grouping_chip.h"
#include "presenter.h"

namespace swiftroll::ui {

/// The order of the columns of the list as a line, "Regroupé par: Nom > Lieu | Nbre | Min, Max", whose
/// columns are chips.
class GroupingStrip : public QWidget {
  public:
    explicit GroupingStrip(Presenter& presenter);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    using Kind = Grouping::Kind;
    /// A text between the chips.
    struct Mark {
        QRect place;
        QString text;
    };
    void BindChips();
    void Refresh();
    void FillMenu(QMenu& menu);
    void Arrange();
    void TellOrder();
    std::vector<GroupingChip*> ChipsOf(Kind kind) const;
    std::vector<GroupingChip*> ShownChips() const;
    std::vector<GroupingChip*> OthersOfKind(const GroupingChip& chip) const;
    std::size_t PlaceAt(const GroupingChip& chip) const;
    void PlaceChip(GroupingChip& chip, std::size_t place);
    void TakeOut(GroupingChip& chip);
    void MoveBy(GroupingChip& chip, int step);
    void GoTo(const GroupingChip& chip, int step);

    Presenter& presenter_;
    Grouping& grouping_;
    GroupingChip::Actions actions_;
    std::vector<GroupingChip*> chips_;  // by section; nullptr for `Number`
    std::vector<ColumnId> groups_, years_;
    QLabel* title_;
    QToolButton* add_;
    std::vector<Mark> marks_;
    QRect target_;  // where the dragged chip would go
};

/// The strip, and below it, while the list is older than what it is made of, a bar that says so.
QWidget* BuildGrouping(Presenter& presenter);

}  // namespace swiftroll::ui

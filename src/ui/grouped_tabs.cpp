#include "grouped_tabs.h"

#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QTabBar>

namespace swiftroll::ui {
namespace {

constexpr int kGap = 28;

/// The gap is the left part of the first tab of the second group, where nothing is painted and pressed.
class GroupedTabBar : public QTabBar {
  public:
    explicit GroupedTabBar(int secondGroup) : secondGroup_(secondGroup) {}

  protected:
    QSize sizeHint() const override {
        QSize size = QTabBar::sizeHint();
        size.setWidth(0);
        for (int i = 0; i < count(); ++i) size.rwidth() += tabSizeHint(i).width();
        return size;
    }
    QSize tabSizeHint(int index) const override {
        const QSize size = QTabBar::tabSizeHint(index);
        return index == secondGroup_ ? size + QSize(kGap, 0) : size;
    }
    void initStyleOption(QStyleOptionTab* option, int index) const override {
        QTabBar::initStyleOption(option, index);
        if (index == secondGroup_) option->rect.setLeft(option->rect.left() + kGap);
        if (index == secondGroup_ - 1 || index == secondGroup_)
            option->selectedPosition = QStyleOptionTab::NotAdjacent;
    }
    void mousePressEvent(QMouseEvent* event) override {
        QRect gap = tabRect(secondGroup_);
        gap.setWidth(kGap);
        if (gap.contains(event->position().toPoint())) return event->accept();
        QTabBar::mousePressEvent(event);
    }

  private:
    int secondGroup_;
};

}  // namespace

GroupedTabs::GroupedTabs(int secondGroup) { setTabBar(new GroupedTabBar(secondGroup)); }

}  // namespace swiftroll::ui

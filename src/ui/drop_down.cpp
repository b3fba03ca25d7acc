#include "drop_down.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace swiftroll::ui {
namespace {

constexpr int kMargin = 8;
/// With more items than these the list has a scroll bar.
constexpr int kItemsWithoutBar = 8;

/// Measures the list again when its items or its font change.
class DropDownWidth : public QObject {
  public:
    explicit DropDownWidth(QComboBox& combo) : QObject(&combo), combo_(combo) {
        combo.installEventFilter(this);
        const QAbstractItemModel* items = combo.model();
        const auto measure = [this] { SetComboDropDownWidth(); };
        connect(items, &QAbstractItemModel::rowsInserted, this, measure);
        connect(items, &QAbstractItemModel::rowsRemoved, this, measure);
        connect(items, &QAbstractItemModel::dataChanged, this, measure);
        connect(items, &QAbstractItemModel::modelReset, this, measure);
        measure();
    }
    bool eventFilter(QObject*, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type == QEvent::Show || type == QEvent::FontChange || type == QEvent::StyleChange) {
            SetComboDropDownWidth();
        }
        return false;
    }

  private:
    void SetComboDropDownWidth() {
        QAbstractItemView& list = *combo_.view();
        const QStyle& style = *combo_.style();
        const int widest = list.sizeHintForColumn(0);  // with the margins of an item
        const int bar = combo_.count() > kItemsWithoutBar
                            ? style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &combo_)
                            : 0;
        const int frame = 2 * style.pixelMetric(QStyle::PM_ComboBoxFrameWidth, nullptr, &combo_);
        const int screen = combo_.screen()->availableGeometry().width();
        list.setMinimumWidth(std::min(std::max(widest, 0) + kMargin + bar, screen - frame));
    }

    QComboBox& combo_;
};

}  // namespace

void FitDropDown(QComboBox& combo) {
    new DropDownWidth(combo);  // owned by the combo
}

}  // namespace swiftroll::ui

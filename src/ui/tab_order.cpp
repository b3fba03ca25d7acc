#include "tab_order.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGridLayout>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <tuple>
#include <vector>

namespace swiftroll::ui {
namespace {

class Collector {
  public:
    void Add(QWidget* widget) {
        if (widget == nullptr) return;
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) fields.push_back(widget);
        if (auto* tabs = qobject_cast<QTabWidget*>(widget)) return AddTabs(*tabs);
        if (auto* area = qobject_cast<QScrollArea*>(widget)) return Add(area->widget());
        if (auto* splitter = qobject_cast<QSplitter*>(widget)) {
            for (int i = 0; i < splitter->count(); ++i) Add(splitter->widget(i));
        } else if (qobject_cast<QAbstractScrollArea*>(widget) == nullptr &&
                   qobject_cast<QComboBox*>(widget) == nullptr && widget->layout() != nullptr) {
            Add(*widget->layout());
        }
    }

    std::vector<QWidget*> fields;

  private:
    void AddTabs(QTabWidget& tabs) {
        Add(tabs.tabBar());
        Add(tabs.cornerWidget());
        for (int i = 0; i < tabs.count(); ++i) Add(tabs.widget(i));
    }

    void Add(QLayout& layout) {
        std::vector<std::tuple<int, int, QLayoutItem*>> items;  // row and column first
        auto* grid = qobject_cast<QGridLayout*>(&layout);
        for (int i = 0; i < layout.count(); ++i) {
            int row = 0, column = i, rows = 1, columns = 1;
            if (grid != nullptr) grid->getItemPosition(i, &row, &column, &rows, &columns);
            items.emplace_back(row, column, layout.itemAt(i));
        }
        std::stable_sort(items.begin(), items.end(), [](const auto& a, const auto& b) {
            return std::tie(std::get<0>(a), std::get<1>(a)) < std::tie(std::get<0>(b), std::get<1>(b));
        });
        for (const auto& [row, column, item] : items) {
            if (item->layout() != nullptr) {
                Add(*item->layout());
            } else {
                Add(item->widget());
            }
        }
    }
};

}  // namespace

void OrderTabsByRows(QWidget& window) {
    Collector collector;
    collector.Add(&window);
    for (std::size_t i = 1; i < collector.fields.size(); ++i)
        QWidget::setTabOrder(collector.fields[i - 1], collector.fields[i]);
}

}  // namespace swiftroll::ui

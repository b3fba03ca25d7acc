#pragma once

#include <QSplitter>
#include <QVBoxLayout>
#include <array>
#include <unordered_map>

#include "binder.h"
#include "table_view.h"

namespace swiftroll::ui {

/// A page of lists. A strip that is added stands above the lists, a widget that is added to the sides beside
/// them.
struct ListPage {
    QWidget* widget;
    QVBoxLayout* strips;
    QSplitter* sides;
};

/// The pages of the six tabs of lists, with the views of all tables.
class ListPages {
  public:
    ListPages(Presenter& presenter, Binder& binder);

    TableView& ViewOf(const Table& table) const { return *views_.at(&table); }
    const ListPage& Of(Tab tab) const { return pages_.at(static_cast<std::size_t>(tab)); }

  private:
    void NameViews();
    void SetHints();
    /// One table above the other; `mainTable` is the number of the one that the tab is for.
    ListPage NewPage(std::initializer_list<Table*> tables, int mainTable = 0,
                     QSplitter* sides = new QSplitter(Qt::Horizontal));
    ListPage NewKinshipPage();

    Presenter& presenter_;
    frmMain& main_;
    Binder& binder_;
    std::unordered_map<const Table*, TableView*> views_;
    std::array<ListPage, 6> pages_;
};

}  // namespace swiftroll::ui

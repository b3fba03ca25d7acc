#include "group_border.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

#include "tables/columns.h"

namespace swiftroll::ui {
namespace {

constexpr int kThickness = 3;

}  // namespace

GroupBorder::GroupBorder(Presenter& presenter, TableView& view) : QWidget(&view), view_(view) {
    setObjectName(QStringLiteral("groupBorder"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const Grouping& grouping = presenter.Main().grouping;
    static_cast<TableModel*>(view.model())->isFaint = [&grouping](ColumnId column) {
        return grouping.IsLeftOut(column);
    };
    QHeaderView& header = view.Header();
    for (const auto changed : {&QHeaderView::sectionResized, &QHeaderView::sectionMoved})
        connect(&header, changed, this, [this] { Follow(); });
    connect(view.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { Follow(); });
    header.installEventFilter(this);
    view.viewport()->installEventFilter(this);
    presenter.OnRefresh([this] { Follow(); });
}

/// The header and the rows may change their place and size at any time.
bool GroupBorder::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Follow();
    return false;
}

void GroupBorder::Follow() {
    const QHeaderView& header = view_.Header();
    const int section = ColumnId(Out::Number).Section();
    const int end = header.sectionViewportPosition(section) + header.sectionSize(section);
    const QRect area = view_.viewport()->geometry().united(header.geometry());
    const QRect place(area.left() + end - 1, area.top(), kThickness, area.height());
    setGeometry(place);
    setVisible(end > 0 && end < area.width());
    raise();
}

void GroupBorder::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
}

}  // namespace swiftroll::ui

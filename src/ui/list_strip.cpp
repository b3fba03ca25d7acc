#include "list_strip.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <algorithm>

#include "app/french_count.h"
#include "layout.h"
#include "qt_text.h"
#include "shell/list_names.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::ui {
namespace {

constexpr int kFilterWidth = 220;

/// A widget around one whose visibility follows its control, to be hidden by itself.
QWidget* Wrapped(QWidget* inner) {
    auto* outer = new QWidget;
    auto* row = new QHBoxLayout(outer);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(inner);
    return outer;
}

}  // namespace

ListStrip::ListStrip(Presenter& presenter, Binder& binder, const std::vector<Table*>& tables)
    : presenter_(presenter),
      tables_(tables),
      table_(tables.front()),
      filter_(new QLineEdit),
      count_(new QLabel) {
    setObjectName(QStringLiteral("strip.") + ToQt(table_->Name()));
    BuildFilter();
    count_->setObjectName(QStringLiteral("listCount"));
    count_->setTextFormat(Qt::PlainText);
    // A long text is cut, it does not widen the window.
    count_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    frmMain& main = presenter_.Main();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    row->addWidget(filter_);
    row->addWidget(count_, 1);
    for (Command* command : {&main.cmdCheckShown, &main.cmdGather, &main.cmdUndoMarks}) {
        QPushButton* button = NewButton(binder, *command);
        // The keyboard stays in the list.
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(command == & main.cmdCheckShown ? checkShown_ = Wrapped(button) : button);
    }
    auto* find = new QShortcut(QKeySequence(ToQt(main.mnuFilter.Key)), this);
    connect(find, &QShortcut::activated, this,
            [this] { presenter_.Act([this] { presenter_.Main().mnuFilter.Click(); }); });
    presenter_.OnRefresh([this] { Refresh(); });
}

void ListStrip::BuildFilter() {
    filter_->setObjectName(QStringLiteral("filter.") + ToQt(table_->Name()));
    filter_->setAccessibleName(QStringLiteral("Filtrer la liste"));
    filter_->setPlaceholderText(QStringLiteral("Filtrer... (F3)"));
    filter_->setToolTip(
        QStringLiteral("Ne montre que les lignes qui contiennent ces mots, dans n'importe quelle colonne\n"
                       "affichée, sans tenir compte des accents ni des majuscules.\n"
                       "Les commandes et les marques portent toujours sur toutes les lignes.\n"
                       "Entrée ou Flèche bas : aller à la liste. Échap : tout montrer."));
    filter_->setClearButtonEnabled(true);
    filter_->setFixedWidth(kFilterWidth);
    filter_->installEventFilter(this);
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        RowFilter& filter = presenter_.Main().filters.Of(*table_);
        const Text wanted = FromQt(text);
        if (wanted != filter.Wanted()) presenter_.Act([&] { filter.SetWanted(wanted); });
    });
}

bool ListStrip::eventFilter(QObject* object, QEvent* event) {
    if (object != filter_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    // Escape stops work first.
    const bool clears = key == Qt::Key_Escape && !presenter_.IsWorking();
    if (clears) presenter_.Act([this] { presenter_.Main().filters.Of(*table_).SetWanted({}); });
    if (!clears && key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    GoToList();
    return true;
}

void ListStrip::GoToList() {
    presenter_.Act([this] { presenter_.Main().tabs.GiveFocus(*table_); });
}

void ListStrip::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    presenter_.Main().filters.OnFilterWanted = [this] {
        filter_->setFocus(Qt::ShortcutFocusReason);
        filter_->selectAll();
    };
    Refresh();
}

void ListStrip::Refresh() {
    if (!isVisible() || presenter_.Main().bTablesLocked) return;
    frmMain& main = presenter_.Main();
    main.marks.Follow();
    if (std::ranges::find(tables_, main.lvwActiveListView) != tables_.end()) table_ = main.lvwActiveListView;
    RowFilter& filter = main.filters.Of(*table_);
    filter.Sync();
    const QString wanted = ToQt(filter.Wanted());
    if (filter_->text() != wanted) filter_->setText(wanted);
    const QString count = CountText(filter);
    if (count_->text() != count) {
        count_->setText(count);
        count_->setToolTip(count);
    }
    checkShown_->setVisible(filter.IsOn());
}

/// "109 lignes, 3 marquées", and what a filter hides of them.
QString ListStrip::CountText(RowFilter& filter) const {
    const std::int32_t rows = table_->Count(), marked = table_->MarkedCount(), hidden = filter.HiddenCount();
    Text text = Concat({FrenchCount(rows), ForCount(rows, " ligne", " lignes")});
    if (hidden > 0)
        text += Concat({" dont ", FrenchCount(hidden), ForCount(hidden, " masquée"_t, " masquées"_t)});
    text += Concat({", ", FrenchCount(marked), ForCount(marked, " marquée"_t, " marquées"_t)});
    const std::int32_t hiddenMarked = filter.HiddenMarkedCount();
    if (hiddenMarked > 0) {
        text += Concat(
            {" dont ", FrenchCount(hiddenMarked), ForCount(hiddenMarked, " masquée"_t, " masquées"_t)});
    }
    if (tables_.size() > 1) text = Concat({ListName(presenter_.Main(), *table_), " : ", text});
    return ToQt(text);
}

}  // namespace swiftroll::ui

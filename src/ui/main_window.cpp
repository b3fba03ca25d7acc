#include "main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>

#include "column_widths.h"
#include "dropped_file.h"
#include "file_rows.h"
#include "group_border.h"
#include "grouped_tabs.h"
#include "grouping_strip.h"
#include "help_topics.h"
#include "layout.h"
#include "look.h"
#include "menus.h"
#include "message_bar_widget.h"
#include "option_tabs.h"
#include "person_pane.h"
#include "qt_text.h"
#include "start_view.h"
#include "tool_bar.h"
#include "window_place.h"

namespace swiftroll::ui {
namespace {

/// The favourites give way to the tabs.
constexpr int kNarrowFavorites = 70, kWideFavorites = 200;
constexpr QSize kDesignSize(800, 520);

}  // namespace

MainWindow::MainWindow(Presenter& presenter)
    : presenter_(presenter),
      main_(presenter.Main()),
      binder_(presenter, main_),
      pages_(presenter, binder_),
      status_(new StatusLine(presenter)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/swiftroll.svg")));
    setAcceptDrops(true);
    BuildMenuBar();
    BuildCentre();
    setStatusBar(status_);
    presenter_.OnRefresh([this] { Refresh(); });
    main_.columns.Measure = MeasureLike(*this);
    main_.tabs.OnTabFocus = [this] { focusesTable_ = true; };
}

void MainWindow::BuildCentre() {
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(kMargin, kSpacing, kMargin, 0);
    column->setSpacing(kSpacing);
    column->addWidget(BuildToolBar(main_, binder_));
    column->addWidget(BuildFileRows(main_, binder_, presenter_));
    column->addWidget(NewNoticeBar(presenter_));
    column->addWidget(BuildTabs(), 1);
    // It comes and goes by itself: what the user points at must not move.
    column->addWidget(NewWorkNoticeBar(presenter_));
    setCentralWidget(centre);
}

void MainWindow::TakeDesignSize() {
    presenter_.Refresh();
    // All tabs are seen: where the letters are larger, the window is too.
    const int tabs = tabs_->tabBar()->sizeHint().width() + tabs_->cornerWidget()->sizeHint().width();
    resize(RoomOnScreen(*this).boundedTo(kDesignSize.expandedTo(QSize(tabs + 2 * kMargin, 0))));
    setMinimumSize(size());
}

void MainWindow::BuildMenuBar() {
    for (const Menu& menu : main_.MenuBar()) {
        QMenu* target = menuBar()->addMenu(ToQt(menu.head.Caption));
        target->setObjectName(ToQt(menu.head.Name()));
        const auto actions = FillMenu(*target, menu, [this](Command& command) { presenter_.Click(command); });
        menuActions_.insert(menuActions_.end(), actions.begin(), actions.end());
    }
}

QWidget* MainWindow::BuildTabs() {
    constexpr int kFirstOptions = static_cast<int>(Tab::FormatOptions);
    tabs_ = new GroupedTabs(kFirstOptions);
    tabs_->setObjectName(QStringLiteral("SSTab1"));
    tabs_->setAccessibleName(QStringLiteral("Listes et options"));
    QWidget* const options[] = {BuildFormatTab(main_, binder_, presenter_),
                                BuildLinksTab(main_, binder_, presenter_), BuildOptionsTab(main_, binder_)};
    for (int i = 0; i < static_cast<int>(std::size(kTabCaptions)); ++i) {
        QWidget* page = i < kFirstOptions ? pages_.Of(static_cast<Tab>(i)).widget
                                          : NewOptionPage(options[i - kFirstOptions]);
        tabs_->addTab(page, ToQt(kTabCaptions[i]));
    }
    new GroupBorder(presenter_, ViewOf(main_.lvwOut));  // owned by the list
    pages_.Of(Tab::Out).strips->insertWidget(0, BuildGrouping(presenter_));
    new StartView(presenter_, ViewOf(main_.lvwIn));         // owned by the list
    new PersonPane(presenter_, *pages_.Of(Tab::In).sides);  // owned by the splitter
    tabs_->setCornerWidget(BuildFavorites());
    // A person of any list can be dragged to the slots of the kinship.
    tabs_->tabBar()->setAcceptDrops(true);
    tabs_->tabBar()->setChangeCurrentOnDrag(true);
    tabs_->tabBar()->installEventFilter(this);
    connect(tabs_, &QTabWidget::currentChanged, this, &MainWindow::OnTabChosen);
    connect(tabs_, &QTabWidget::tabBarDoubleClicked, this,
            [this](int) { presenter_.Act([this] { main_.lists.SSTab1_DblClick(); }); });
    return tabs_;
}

/// The favourites of the table of each tab, of which only those of the present tab are seen.
QWidget* MainWindow::BuildFavorites() {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    for (ComboBox& favorites : main_.cboFavorites) {
        auto* combo = new QComboBox;
        binder_.Bind(*combo, favorites, QStringLiteral("Favoris de la liste"));
        combo->setFixedWidth(kNarrowFavorites);
        SelectAllOnFocus(*combo->lineEdit());
        row->addWidget(combo);
    }
    row->addWidget(NewToolButton(binder_, main_.cmdGotoFavorite, QStringLiteral("Aller au favori")));
    return widget;
}

bool MainWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == tabs_->tabBar() && event->type() == QEvent::MouseButtonPress) {
        // No cell of the list that comes to the front was clicked.
        presenter_.Act([this] { main_.lists.HitTest(-1, -1); });
    }
    if (object == tabs_->tabBar() && event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int tab = tabs_->tabBar()->tabAt(mouse->position().toPoint());
        if (mouse->button() == Qt::RightButton && tab >= 0) {
            tabs_->setCurrentIndex(tab);
            presenter_.ActLater([this] { main_.contextMenu.SSTab1_RightClick(); });
        }
    }
    return QMainWindow::eventFilter(object, event);
}

void MainWindow::OnTabChosen(int index) {
    if (index == static_cast<int>(main_.SSTab1)) return;
    presenter_.Act([&] {
        main_.SSTab1 = static_cast<Tab>(index);
        main_.tabs.SSTab1_GotFocus();
    });
}

void MainWindow::Refresh() {
    const QString title = ToQt(main_.MainCaption());
    if (windowTitle() != title) setWindowTitle(title);
    for (const auto& [action, command] : menuActions_) {
        action->setEnabled(command->Enabled);
        action->setVisible(command->Visible);
    }
    RefreshTab();
    ShowStatus();
}

/// Follows the core to another tab, whose table then has the focus.
void MainWindow::RefreshTab() {
    const int tab = static_cast<int>(main_.SSTab1);
    tabs_->setCurrentIndex(tab);
    if (!std::exchange(focusesTable_, false) || main_.lvwActiveListView == nullptr) return;
    TableView& view = ViewOf(*main_.lvwActiveListView);
    if (view.isVisible()) view.setFocus();
}

void MainWindow::ShowStatus() {
    status_->Refresh();
    if (hasWaitCursor_ == main_.bWaitCursor) return;
    hasWaitCursor_ = main_.bWaitCursor;
    if (hasWaitCursor_) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (main_.bEnded) return event->accept();
    event->ignore();
    presenter_.Act([this] { main_.Form_QueryUnload(); });
}

/// That of what has the focus, or else of the tab.
int MainWindow::HelpTopic() const {
    const int topic = HelpTopicOf(focusWidget());
    return topic > 0 ? topic : TopicOf(main_.SSTab1);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        presenter_.Act([this] { main_.RequestAbort(); });
    } else if (event->key() == Qt::Key_F1) {
        presenter_.Act([this] { main_.LaunchHTMLHelp(HelpTopic()); });
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    constexpr int kFavoritesButton = 50;
    const int room = width() - 2 * kMargin - tabs_->tabBar()->sizeHint().width() - kFavoritesButton;
    for (const ComboBox& favorites : main_.cboFavorites) {
        presenter_.WidgetOf(favorites)->setFixedWidth(std::clamp(room, kNarrowFavorites, kWideFavorites));
    }
    // The end of a file's name, and not its folder, is what a user looks for.
    for (const ComboBox* file :
         {&main_.cboGedIn, &main_.cboGedOut, &main_.cboSwiftOut, &main_.cboFileModel, &main_.cboKinship}) {
        auto* combo = static_cast<QComboBox*>(presenter_.WidgetOf(*file));
        combo->lineEdit()->setCursorPosition(static_cast<int>(combo->currentText().size()));
    }
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    presenter_.Refresh();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    FollowTheme();
    presenter_.ActLater([] {});
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = DroppedFile(*event->mimeData());
    event->acceptProposedAction();
    presenter_.ActLater([this, file] { main_.TakeGedIn(FromQt(file)); });
}

}  // namespace swiftroll::ui

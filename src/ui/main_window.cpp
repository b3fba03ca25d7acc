#include "main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>

#include "file_rows.h"
#include "help_topics.h"
#include "kinship_view.h"
#include "layout.h"
#include "menus.h"
#include "message_bar_widget.h"
#include "option_tabs.h"
#include "person_edit.h"
#include "qt_text.h"
#include "themed_icon.h"
#include "turning_splitter.h"

namespace swiftroll::ui {
namespace {

constexpr int kTableMargin = 8;
constexpr int kFavoritesWidth = 170;
constexpr int kProgressSteps = 1000;
constexpr QSize kDesignSize(960, 680);

/// A page that stays whole in a small window.
QWidget* Scrolled(QWidget* page) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    return area;
}

/// A page with a line above it.
QWidget* Below(QWidget* line, QWidget* page) {
    auto* both = new QWidget;
    auto* column = new QVBoxLayout(both);
    column->setContentsMargins(0, kTableMargin, 0, 0);
    column->setSpacing(0);
    line->layout()->setContentsMargins(kTableMargin, 0, kTableMargin, 0);
    column->addWidget(line);
    column->addWidget(page, 1);
    return both;
}

/// A local file of a drop, or an empty text.
QString DroppedFile(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) return url.toLocalFile();
    }
    return {};
}

}  // namespace

MainWindow::MainWindow(Presenter& presenter)
    : presenter_(presenter), main_(presenter.Main()), binder_(presenter, main_) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/swiftroll.svg")));
    setAcceptDrops(true);
    BuildMenuBar();
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(kMargin, kMargin, kMargin, 0);
    column->setSpacing(kSpacing);
    column->addWidget(BuildFileRows(main_, binder_));
    column->addWidget(new MessageBarWidget(presenter_));
    column->addWidget(BuildTabs(), 1);
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setAccessibleName(QStringLiteral("Progression"));
    progress_->setRange(0, kProgressSteps);
    progress_->setTextVisible(false);
    progress_->setFixedHeight(8);
    column->addWidget(progress_);
    setCentralWidget(centre);
    BuildStatusBar();
    presenter_.OnRefresh([this] { Refresh(); });
    main_.tabs.OnTabFocus = [this] { focusesTable_ = true; };
}

void MainWindow::TakeDesignSize() {
    presenter_.Refresh();
    resize(kDesignSize.expandedTo(minimumSizeHint()));
    setMinimumSize(size());
}

void MainWindow::BuildMenuBar() {
    for (const Menu& menu : main_.MenuBar()) {
        QMenu* target = menuBar()->addMenu(ToQt(menu.head.Caption));
        target->setObjectName(ToQt(menu.head.Name()));
        const auto actions =
            FillMenu(*target, menu, [this](Command& command) { presenter_.Act([&] { command.Click(); }); });
        menuActions_.insert(menuActions_.end(), actions.begin(), actions.end());
    }
}

QWidget* MainWindow::TablePage(std::initializer_list<Table*> tables, int mainTable) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(kTableMargin, kTableMargin, kTableMargin, kTableMargin);
    auto* splitter = new QSplitter(Qt::Vertical);
    for (Table* table : tables) {
        auto* view = new TableView(presenter_, *table);
        views_[table] = view;
        splitter->addWidget(view);
    }
    // The list that the tab is for has the room.
    for (int i = 0; i < splitter->count(); ++i) splitter->setStretchFactor(i, i == mainTable ? 3 : 1);
    splitter->setChildrenCollapsible(false);
    column->addWidget(splitter);
    return page;
}

/// The page of the paths, with the drawing of the current one.
QWidget* MainWindow::WithPicture(QWidget* page) {
    constexpr int kPageStretch = 3, kPictureStretch = 2;
    auto* splitter = new TurningSplitter;
    splitter->addWidget(page);
    splitter->addWidget(new KinshipView(presenter_));
    splitter->setStretchFactor(0, kPageStretch);
    splitter->setStretchFactor(1, kPictureStretch);
    splitter->setCollapsible(0, false);
    return splitter;
}

QWidget* MainWindow::BuildTabs() {
    tabs_ = new QTabWidget;
    tabs_->setObjectName(QStringLiteral("SSTab1"));
    tabs_->setAccessibleName(QStringLiteral("Listes et options"));
    QWidget* const pages[] = {
        TablePage({&main_.lvwIn}),
        TablePage({&main_.lvwOut}),
        TablePage({&main_.lvwFamilyXref}),
        TablePage({&main_.lvwXref, &main_.lvwXref1}),
        TablePage({&main_.lvwFamily}),
        Below(BuildKinshipSlots(presenter_), WithPicture(TablePage({&main_.lvwPaths, &main_.lvwKinship}, 1))),
        Scrolled(BuildFormatTab(main_, binder_, presenter_)),
        Scrolled(BuildLinksTab(main_, binder_, presenter_)),
        Scrolled(BuildOptionsTab(main_, binder_))};
    for (std::size_t i = 0; i < std::size(pages); ++i) {
        tabs_->addTab(pages[i], ToQt(kTabCaptions[i]));
    }
    const std::pair<Table*, const char*> names[] = {{&main_.lvwIn, "Individus"},
                                                    {&main_.lvwOut, "Relevé-vif"},
                                                    {&main_.lvwFamilyXref, "Membres des familles"},
                                                    {&main_.lvwXref, "Liens"},
                                                    {&main_.lvwXref1, "Liens de la recherche de parenté"},
                                                    {&main_.lvwFamily, "Familles"},
                                                    {&main_.lvwPaths, "Résumé des liens de parenté"},
                                                    {&main_.lvwKinship, "Liens de parenté"}};
    for (const auto& [table, name] : names) ViewOf(*table).setAccessibleName(QString::fromUtf8(name));
    ViewOf(main_.lvwIn)
        .SetHint(
            QStringLiteral("Choisissez un fichier GEDCOM avec le bouton « ... » de la ligne « Entrée GED »,\n"
                           "ou déposez-le sur cette fenêtre,\npuis appuyez sur « Lire Tout »."));
    ViewOf(main_.lvwOut)
        .SetHint(
            QStringLiteral("Lisez un fichier, placez devant la colonne « Nbre » les colonnes à regrouper,\n"
                           "puis appuyez sur « Recalcul Sortie »."));
    ViewOf(main_.lvwPaths)
        .SetHint(QStringLiteral("Résumé : chaque lien trouvé aura ici une ligne,\n"
                                "avec son nom et ses degrés. Choisissez-en une pour aller au lien."));
    ViewOf(main_.lvwKinship)
        .SetHint(QStringLiteral("Sélectionnez ou cochez deux individus dans l'onglet « Entrée »,\n"
                                "puis appuyez sur « Rech. Parenté »."));
    tabs_->setCornerWidget(BuildFavorites());
    // A person of any list can be dragged to the slots of the kinship.
    tabs_->tabBar()->setAcceptDrops(true);
    tabs_->tabBar()->setChangeCurrentOnDrag(true);
    // All tabs are seen: where the letters are larger, the window is too.
    tabs_->setUsesScrollButtons(false);
    connect(tabs_, &QTabWidget::currentChanged, this, &MainWindow::OnTabChosen);
    connect(tabs_, &QTabWidget::tabBarDoubleClicked, this,
            [this](int) { presenter_.Act([this] { main_.lists.SSTab1_DblClick(); }); });
    tabs_->tabBar()->installEventFilter(this);
    return tabs_;
}

/// The favourites of the table of each tab, of which only those of the present tab are seen.
QWidget* MainWindow::BuildFavorites() {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 2);
    row->setSpacing(kSpacing);
    for (ComboBox& favorites : main_.cboFavorites) {
        auto* combo = new QComboBox;
        binder_.Bind(*combo, favorites, QStringLiteral("Favoris de la liste"));
        combo->setFixedWidth(kFavoritesWidth);
        SelectAllOnFocus(*combo->lineEdit());
        row->addWidget(combo);
    }
    row->addWidget(NewToolButton(binder_, main_.cmdGotoFavorite, QStringLiteral("Aller au favori")));
    return widget;
}

void MainWindow::BuildStatusBar() {
    const char* const names[] = {"Lignes lues", "Individus", "Familles", "Message"};
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setSizeGripEnabled(true);
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel;
        panels_[i]->setAccessibleName(QString::fromUtf8(names[i]));
        panels_[i]->setTextFormat(Qt::PlainText);
        panels_[i]->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        const bool isMessage = i + 1 == panels_.size();
        // A long message is cut, it does not widen the window.
        if (isMessage) panels_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        statusBar()->addWidget(panels_[i], isMessage ? 1 : 0);
        panels_[i]->setVisible(isMessage);
    }
    panels_.back()->setObjectName(QStringLiteral("pnlMessage"));
    panels_.back()->installEventFilter(this);
}

bool MainWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == panels_.back() && event->type() == QEvent::MouseButtonDblClick) {
        presenter_.Act([this] { main_.lists.StatusBar1_DblClick(); });
        return true;
    }
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
    const Panel* const panels[] = {&main_.pnlLines, &main_.pnlIndividuals, &main_.pnlFamilies,
                                   &main_.pnlMessage};
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const QString text = ToQt(panels[i]->Get());
        if (panels_[i]->text() == text) continue;
        panels_[i]->setText(text);
        panels_[i]->setToolTip(text);
        panels_[i]->show();
        // A count that grows may widen its panel; one that shrinks does not make its neighbours jump.
        if (panels_[i] != panels_.back())
            panels_[i]->setMinimumWidth(std::max(panels_[i]->minimumWidth(), panels_[i]->sizeHint().width()));
    }
    // A bar without a range moves by itself.
    const int steps = main_.ProgressBar1.IsBusy() ? 0 : kProgressSteps;
    if (progress_->maximum() != steps) progress_->setRange(0, steps);
    progress_->setValue(static_cast<int>(main_.ProgressBar1.Value() * steps / 100));
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

/// The end of a file's name, and not its folder, is what a user looks for.
void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
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
    if (event->type() == QEvent::PaletteChange) presenter_.ActLater([] {});
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = DroppedFile(*event->mimeData());
    event->acceptProposedAction();
    presenter_.ActLater([this, file] {
        main_.SetFocus(main_.cboGedIn);
        main_.cboGedIn.SetText(FromQt(file));
        main_.SetFocus(main_.cmdLoad);  // the name enters the history, and Enter reads the file
    });
}

}  // namespace swiftroll::ui

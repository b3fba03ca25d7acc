#include "start_view.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>

#include "drop_zone.h"
#include "layout.h"
#include "qt_text.h"
#include "shell/file_names.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

constexpr int kButtonHeight = 40;
constexpr QSize kPictureSize(24, 24);
constexpr int kZoneWidth = 420, kRecentWidth = 380;

QPushButton* NewLargeButton(const char* name, const char* picture) {
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setIcon(ThemedIcon(QLatin1String(picture)));
    button->setIconSize(kPictureSize);
    button->setMinimumHeight(kButtonHeight);
    button->setAutoDefault(true);  // Enter presses it
    return button;
}

QLabel* NewCentred(const QString& text) {
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

/// The name of a file, and the folder that it lies in.
QString ShortName(const QString& file) {
    const QFileInfo info(file);
    return info.fileName() + QStringLiteral("  —  ") + info.dir().dirName();
}

}  // namespace

StartView::StartView(Presenter& presenter, TableView& list)
    : QScrollArea(&list),
      presenter_(presenter),
      list_(list),
      read_(NewLargeButton("startRead", "recalculate")),
      choose_(NewLargeButton("startChoose", "open")) {
    setObjectName(QStringLiteral("startView"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* page = new QWidget;
    page->setBackgroundRole(QPalette::Base);
    auto* outer = new QHBoxLayout(page);
    outer->setSpacing(3 * kMargin);
    outer->addStretch();
    outer->addWidget(BuildDropZone(), 1);
    outer->addWidget(BuildRecent(), 1);
    outer->addStretch();
    setWidget(page);
    list_.viewport()->installEventFilter(this);
    presenter_.OnRefresh([this] { Refresh(); });
}

QWidget* StartView::BuildDropZone() {
    auto* zone = new DropZone([this](const QString& file) {
        presenter_.ActLater([this, name = FromQt(file)] { presenter_.Main().TakeGedIn(name); });
    });
    zone->setMaximumWidth(kZoneWidth);
    zone->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* column = new QVBoxLayout(zone);
    column->setContentsMargins(3 * kMargin, 3 * kMargin, 3 * kMargin, 3 * kMargin);
    column->setSpacing(2 * kMargin);
    QLabel* title = NewCentred(QStringLiteral("Ouvrez votre généalogie"));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    title->setFont(large);
    column->addWidget(title);
    column->addWidget(read_);
    column->addWidget(choose_);
    column->addWidget(NewCentred(QStringLiteral("ou déposez ici un fichier GEDCOM (*.ged)")));
    choose_->setText(QStringLiteral("Choisir un fichier..."));
    choose_->setAccessibleName(QStringLiteral("Choisir un fichier GEDCOM"));
    connect(choose_, &QPushButton::clicked, this, &StartView::ChooseFile);
    connect(read_, &QPushButton::clicked, this,
            [this] { presenter_.Act([this] { presenter_.Main().cmdLoad.Click(); }); });
    return zone;
}

QWidget* StartView::BuildRecent() {
    recent_ = new QWidget;
    recent_->hide();
    recent_->setMaximumWidth(kRecentWidth);
    auto* column = new QVBoxLayout(recent_);
    column->setContentsMargins(0, 0, 0, 0);
    auto* title = new QLabel(QStringLiteral("Derniers fichiers"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    links_ = new QVBoxLayout;
    links_->setSpacing(0);
    column->addStretch();
    column->addWidget(title);
    column->addLayout(links_);
    column->addStretch();
    return recent_;
}

void StartView::Refresh() {
    const frmMain& main = presenter_.Main();
    const bool isEmpty = main.lvwIn.Count() == 0;
    if (isHidden() == isEmpty) setVisible(isEmpty);
    if (!isEmpty) return;
    const Text& input = main.cboGedIn.Get();
    const bool isNamed = modCommon::HasBaseName(input);
    const QString caption = QStringLiteral("Lire « %1 »").arg(QFileInfo(EditableToQt(input)).fileName());
    if (read_->accessibleName() != caption) {
        read_->setText(QString(caption).replace(QLatin1Char('&'), QStringLiteral("&&")));
        read_->setAccessibleName(caption);
    }
    if (read_->isHidden() == isNamed) read_->setVisible(isNamed);
    if (read_->isEnabled() != main.cmdLoad.Enabled) read_->setEnabled(main.cmdLoad.Enabled);
    QStringList files;
    for (const Text& item : main.cboGedIn.Items()) files << EditableToQt(item);
    if (files != shownFiles_) ShowRecent(files);
}

/// Makes the links anew; a link that had the focus gives it to the button.
void StartView::ShowRecent(const QStringList& files) {
    shownFiles_ = files;
    while (QLayoutItem* item = links_->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    for (int i = 0; i < files.size(); ++i) {
        auto* link = new QPushButton(ShortName(files[i]).replace(QLatin1Char('&'), QStringLiteral("&&")));
        link->setObjectName(QStringLiteral("startRecent(%1)").arg(i));
        link->setFlat(true);
        link->setAutoDefault(true);
        link->setCursor(Qt::PointingHandCursor);
        link->setToolTip(files[i]);
        link->setAccessibleName(QStringLiteral("Lire ") + files[i]);
        link->setStyleSheet(
            QStringLiteral("QPushButton { color: palette(link); text-align: left; padding: 3px; border: 1px "
                           "solid transparent; }"
                           "QPushButton:hover, QPushButton:focus { text-decoration: underline; border-color: "
                           "palette(link); }"));
        connect(link, &QPushButton::clicked, this, [this, i] { ReadRecent(i); });
        links_->addWidget(link);
    }
    recent_->setVisible(!files.isEmpty());
}

void StartView::ChooseFile() {
    presenter_.Act([this] {
        frmMain& main = presenter_.Main();
        main.cmdSelectDirGedIn.Click();
        if (!main.bDialogCancelled) main.TakeGedIn(main.cboGedIn.Get());
    });
    if (read_->isVisible()) read_->setFocus();
}

void StartView::ReadRecent(int item) {
    presenter_.ActLater([this, item] {
        frmMain& main = presenter_.Main();
        main.TakeGedIn(main.cboGedIn.Items().at(static_cast<std::size_t>(item)));
        main.cmdLoad.Click();
    });
}

bool StartView::eventFilter(QObject* object, QEvent* event) {
    const bool moves = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (object == list_.viewport() && moves) setGeometry(list_.viewport()->geometry());
    return QScrollArea::eventFilter(object, event);
}

}  // namespace swiftroll::ui

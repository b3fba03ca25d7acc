#include "desktop_application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "dialogs.h"
#include "look.h"
#include "preview_dialog.h"
#include "qt_text.h"
#include "table_view_access.h"
#include "window_keys.h"
#include "window_place.h"

namespace swiftroll::ui {
namespace {

/// The size of the first start, where the screen has room for it.
constexpr QSize kFirstSize(1200, 800);

}  // namespace

void SetUpToolkit() {
    QLocale::setDefault(QLocale(QLocale::French));
    auto* translator = new QTranslator(qApp);
    if (translator->load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        qApp->installTranslator(translator);
    }
    SetUpLook();
}

DesktopApplication::DesktopApplication()
    : settings_(folders_.Settings()),
      main_({dialogs_, clock_, pump_, files_, folders_, status_, machine_, desktop_, desktop_, desktop_,
             settings_, preview_, network_, mail_}),
      presenter_(main_) {}

DesktopApplication::~DesktopApplication() = default;

bool DesktopApplication::Start(const QString& file) {
    QAccessible::installFactory(TableViewAccess::Make);  // before assistive programs meet the first list
    window_ = std::make_unique<MainWindow>(presenter_);
    BuildKinshipDialog(presenter_, dialogs_, window_.get());
    BuildFindDialog(presenter_, window_.get());
    BuildCheckDialog(presenter_, window_.get());
    BuildRelativesDialog(presenter_, window_.get());
    BuildAboutDialog(presenter_, window_.get());
    BuildUpdatesDialog(presenter_, window_.get());
    new PreviewDialog(presenter_, preview_, window_.get());  // owned by the window
    KeepPlace(*window_, main_, true);
    dialogs_.Attach(presenter_, *window_);
    pump_.Attach(presenter_);
    network_.Attach(presenter_);
    status_.Attach(presenter_, [this] { window_->ShowStatus(); });
    presenter_.OnEnd = [this] {
        // The platform may still deliver events: nothing of them reaches the core.
        window_->hide();
        QApplication::quit();
    };
    QObject::connect(qApp, &QApplication::focusChanged, &presenter_, [this] { presenter_.FocusMoved(); });
    main_.OnShow = [this] {
        window_->TakeDesignSize();
        GiveKeys(*window_);
        if (!main_.Place.known) PlaceFirst(*window_, kFirstSize);
        RestorePlace(*window_, main_);
        window_->show();
    };
    main_.PlaceGroupsOfNewcomer();
    presenter_.Act([&] { main_.Form_Load(FromQt(file)); });
    return !main_.bEnded;
}

}  // namespace swiftroll::ui

#include "qt_ports.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QCursor>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "colours.h"
#include "help_topics.h"
#include "platform/launcher.h"
#include "qt_text.h"
#include "text/numbers.h"

namespace swiftroll::ui {
namespace {

constexpr int kPumpMilliseconds = 16;
/// The clock is only looked at every so many calls: a unit of work takes about a microsecond.
constexpr int kCallsPerLook = 64;
constexpr int kShowMilliseconds = 50;
/// What the launcher of the desktop answers.
constexpr int kLauncherDone = 0, kLauncherFileNotFound = 2, kLauncherNoProgram = 3;

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case BoxButtons::OkCancelOkToAll:
            return QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::YesToAll;
        case BoxButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case BoxButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::StandardButton ButtonOf(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::Yes:
            return QMessageBox::Yes;
        case BoxAnswer::No:
            return QMessageBox::No;
        case BoxAnswer::Cancel:
            return QMessageBox::Cancel;
        case BoxAnswer::OkToAll:
            return QMessageBox::YesToAll;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Question:
            return QMessageBox::Question;
        default:
            return QMessageBox::NoIcon;
    }
}

/// What a box answers when it cannot be shown, or was closed.
BoxAnswer CancelOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::Ok:
            return BoxAnswer::Ok;
        case BoxButtons::YesNo:
            return BoxAnswer::No;
        default:
            return BoxAnswer::Cancel;
    }
}

/// "Gedcom (*.ged)|*.ged|Tous (*.*)|*.*" as the toolkit writes filters.
QStringList FiltersOf(TextView filter) {
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].left(parts[i].indexOf(QStringLiteral(" (")));
        const QString pattern = parts[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : parts[i + 1];
        filters << name + QStringLiteral(" (") + pattern + QLatin1Char(')');
    }
    return filters;
}

/// The kind of file that is chosen gives the name its extension, and at first the name tells the kind.
void FollowFilter(QFileDialog& dialog, const QString& suffix) {
    const auto suffixOf = [](const QString& filter) {
        const QString pattern = filter.mid(filter.lastIndexOf(QLatin1Char('(')) + 1).chopped(1);
        return pattern.startsWith(QStringLiteral("*.")) ? pattern.mid(2) : QString();
    };
    for (const QString& filter : dialog.nameFilters()) {
        if (!suffix.isEmpty() && suffixOf(filter) == suffix.toLower()) dialog.selectNameFilter(filter);
    }
    if (dialog.acceptMode() != QFileDialog::AcceptSave) return;
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog, suffixOf](const QString& filter) {
                         const QString wanted = suffixOf(filter);
                         if (wanted.isEmpty()) return;
                         dialog.setDefaultSuffix(wanted);
                         const QFileInfo chosen(dialog.selectedFiles().value(0));
                         if (!chosen.isDir() && !chosen.suffix().isEmpty()) {
                             dialog.selectFile(chosen.completeBaseName() + QLatin1Char('.') + wanted);
                         }
                     });
}

}  // namespace

void QtDialogs::Attach(Presenter& presenter, QWidget& owner) {
    presenter_ = &presenter;
    owner_ = &owner;
}

/// A dialog belongs to the window that the user works with, which has the keyboard again afterwards.
QWidget* QtDialogs::Owner() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QWidget* active = QApplication::activeWindow();
    if (active != nullptr && active->parentWidget() == owner_) return active;
    // A box before the window would fix its place on the screen without its frame.
    return owner_->isVisible() ? owner_ : nullptr;
}

BoxAnswer QtDialogs::Show(const MessageBox& box) {
    if (IsEnding()) return CancelOf(box.buttons);
    presenter_->Refresh();
    QMessageBox dialog(IconOf(box.icon), ToQt(box.title), ToQt(box.text), ButtonsOf(box.buttons), Owner());
    dialog.setObjectName(QStringLiteral("box"));
    dialog.setTextFormat(Qt::PlainText);
    dialog.setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The toolkit has no such button, and calls the nearest one "Yes to All".
    if (QAbstractButton* all = dialog.button(QMessageBox::YesToAll))
        all->setText(QStringLiteral("OK pour tous"));
    if (box.preset) dialog.setDefaultButton(ButtonOf(*box.preset));
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = dialog.exec();
    QApplication::restoreOverrideCursor();
    switch (answer) {
        case QMessageBox::Yes:
            return BoxAnswer::Yes;
        case QMessageBox::No:
            return BoxAnswer::No;
        case QMessageBox::Ok:
            return BoxAnswer::Ok;
        case QMessageBox::YesToAll:
            return BoxAnswer::OkToAll;
        default:
            return CancelOf(box.buttons);
    }
}

void QtDialogs::ShowModal(Window& window) {
    const auto show = dialogs_.find(&window);
    if (IsEnding() || show == dialogs_.end()) return window.Hide();
    presenter_->Refresh();
    show->second();
}

bool QtDialogs::AskFile(const FileRequest& request, Text& chosen) {
    if (IsEnding()) return false;
    presenter_->Refresh();
    QFileDialog dialog(Owner(), ToQt(request.title));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The question of the overwriting is asked by the program.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix(ToQt(request.extension));
    dialog.setNameFilters(FiltersOf(request.filter));
    const QString name = EditableToQt(request.fileName);
    const QFileInfo file(name);
    if (!file.path().isEmpty()) dialog.setDirectory(file.path());
    if (!file.fileName().contains(QLatin1Char('*'))) dialog.selectFile(file.fileName());
    FollowFilter(dialog, file.suffix());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    chosen = FromQt(dialog.selectedFiles().first());
    return true;
}

bool QtDialogs::AskColour(std::uint32_t& colour) {
    if (IsEnding()) return false;
    const QColor chosen = QColorDialog::getColor(ColourOf(colour), Owner());
    if (chosen.isValid()) colour = ColourFrom(chosen);
    return chosen.isValid();
}

bool QtDialogs::AskFont(CellFont& font) {
    if (IsEnding()) return false;
    const QLocale french(QLocale::French);
    QFont present(ToQt(font.name));
    const double size = french.toDouble(ToQt(font.size));
    if (size > 0) present.setPointSizeF(size);
    present.setBold(font.bold);
    present.setItalic(font.italic);
    present.setStrikeOut(font.strikethrough);
    present.setUnderline(font.underline);
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, present, Owner());
    if (!accepted) return false;
    font.name = FromQt(chosen.family());
    font.size = FromQt(french.toString(chosen.pointSizeF(), 'g', 4));
    font.bold = chosen.bold();
    font.italic = chosen.italic();
    font.strikethrough = chosen.strikeOut();
    font.underline = chosen.underline();
    return true;
}

void QtDialogs::PopUp(const Menu& menu) {
    if (IsEnding()) return;
    presenter_->Refresh();
    QMenu popup(Owner());
    popup.setObjectName(QStringLiteral("contextMenu"));
    // The command runs after the menu is gone and before the core goes on.
    Command* chosen = nullptr;
    FillMenu(popup, menu, [&](Command& command) { chosen = &command; });
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    popup.exec(QCursor::pos());
    QApplication::restoreOverrideCursor();
    if (chosen != nullptr && !IsEnding()) chosen->Click();
}

void QtPump::Yield() {
    if (presenter_ == nullptr) return;
    if (presenter_->Main().bEnded) throw ProgramEnd{};
    if (++calls_ % kCallsPerLook != 0) return;
    if (sincePump_.isValid() && sincePump_.elapsed() < kPumpMilliseconds) return;
    presenter_->Refresh();
    QApplication::processEvents();
    sincePump_.start();
    if (presenter_->Main().bEnded) throw ProgramEnd{};
}

void QtPump::YieldFor(int milliseconds, const bool& stop) {
    if (presenter_ == nullptr) return;
    constexpr int kGlanceMilliseconds = 10;
    QElapsedTimer watch;
    watch.start();
    do {
        presenter_->Refresh();
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, kGlanceMilliseconds);
        if (presenter_->Main().bEnded) throw ProgramEnd{};
    } while (!stop && watch.elapsed() < milliseconds);
}

void QtStatus::StatusChanged() {
    if (!show_ || (sinceShow_.isValid() && sinceShow_.elapsed() < kShowMilliseconds)) return;
    show_();
    presenter_->Breathe();
    sinceShow_.start();
}

void QtDesktop::SetText(TextView text) { QApplication::clipboard()->setText(ToQt(text)); }

bool QtDesktop::IsShiftDown() { return (QApplication::keyboardModifiers() & Qt::ShiftModifier) != 0; }

Desktop::OpenResult QtDesktop::Open(TextView file, int& number) {
    const QFileInfo info(EditableToQt(file));
    if (!info.exists()) return OpenResult::FileNotFound;
    number = OpenLocal(info.absoluteFilePath());
    switch (number) {
        case kLauncherDone:
            return OpenResult::Opened;
        case kLauncherFileNotFound:
            return OpenResult::FileNotFound;
        case kLauncherNoProgram:
            return OpenResult::NoProgram;
        default:
            return OpenResult::Refused;
    }
}

/// Desktops let the user choose a program in the file manager.
bool QtDesktop::ChooseProgram(TextView file) {
    return OpenLocal(QFileInfo(EditableToQt(file)).absolutePath()) == kLauncherDone;
}

/// Hands a file or a folder to the desktop; what it answers.
int QtDesktop::OpenLocal(const QString& path) {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path)) ? kLauncherDone : kLauncherNoProgram;
#else
    // The toolkit would not wait for the answer.
    return platform::Launch({"xdg-open", QFile::encodeName(path).toStdString()}, pump_)
        .value_or(kLauncherNoProgram);
#endif
}

bool QtDesktop::OpenHelp(TextView file, int topic) {
    const QString manual = EditableToQt(file);
    const QString folder = QFileInfo(manual).absolutePath();
    const QString page = topic > 0 ? PageOfTopic(folder, topic) : QString();
    QUrl url = QUrl::fromLocalFile(
        page.isEmpty() ? manual : folder + QLatin1Char('/') + page.section(QLatin1Char('#'), 0, 0));
    if (page.contains(QLatin1Char('#'))) url.setFragment(page.section(QLatin1Char('#'), 1));
    return QDesktopServices::openUrl(url);
}

void QtDesktop::OpenAddress(TextView address) { QDesktopServices::openUrl(QUrl(ToQt(address))); }

}  // namespace swiftroll::ui

#include "window_fixture.h"

#include <QFile>

namespace swiftroll::test {

WindowTest::WindowTest() {
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(variable, home_.path().toLocal8Bit());
    }
    program_ = std::make_unique<ui::DesktopApplication>();
    dialogTimer_.setInterval(5);
    QObject::connect(&dialogTimer_, &QTimer::timeout, [this] { AnswerDialogs(); });
    dialogTimer_.start();
}

WindowTest::~WindowTest() { EXPECT_TRUE(answers_.empty()) << "a dialog did not come"; }

void WindowTest::Start(const QString& file) {
    ASSERT_TRUE(program_->Start(file));
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
}

void WindowTest::StartWithFamily() {
    Start();
    Read(kFamily);
    ShowTab(0);
}

void WindowTest::StartAgain() {
    program_ = std::make_unique<ui::DesktopApplication>();
    Start();
}

QString WindowTest::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return Path(name);
}

void WindowTest::OnBox(QMessageBox::StandardButton button) {
    OnDialog([button](QWidget& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr) << dialog.windowTitle().toStdString();
        ASSERT_NE(box->button(button), nullptr) << box->text().toStdString();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

void WindowTest::AnswerDialogs() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) dialog = QApplication::activePopupWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
        answered_ = nullptr;
        return;
    }
    if (dialog == answered_) return;
    answered_ = dialog;
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) boxes << box->text();
    if (answers_.empty()) {
        ADD_FAILURE() << "nobody expected: " << dialog->windowTitle().toStdString() << " / "
                      << (boxes.isEmpty() ? "" : boxes.last().toStdString());
        dialog->close();
        return;
    }
    const auto answer = std::move(answers_.front());
    answers_.pop_front();
    answer(*dialog);
    // A dialog that nobody could answer must not keep the test.
    if (HasFatalFailure() && dialog == QApplication::activeModalWidget()) dialog->close();
}

void WindowTest::Read(const QByteArray& gedcom, bool recalculate) {
    const QString file = Write(QStringLiteral("famille.ged"), gedcom);
    auto& combo = Find<QComboBox>("cboGedIn");
    combo.setFocus();
    combo.lineEdit()->selectAll();
    QTest::keyClicks(combo.lineEdit(), file);
    OnBox(recalculate ? QMessageBox::Yes : QMessageBox::No);
    Click("cmdLoad");
}

QPoint WindowTest::CellAt(Table& table, int row, int column) {
    ui::TableView& view = View(table);
    return QPoint(view.Header().sectionViewportPosition(column) + view.Header().sectionSize(column) / 2,
                  row * view.RowHeight() + view.RowHeight() / 2);
}

void WindowTest::ShowTab(int tab) {
    QTest::mouseClick(Window().Tabs().tabBar(), Qt::LeftButton, {},
                      Window().Tabs().tabBar()->tabRect(tab).center());
}

void WindowTest::OpenOutputFiles() {
    if (!Find<QAbstractButton>("chkOutputFiles").isChecked()) Click("chkOutputFiles");
}

}  // namespace swiftroll::test

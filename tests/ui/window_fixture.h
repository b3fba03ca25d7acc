#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

#include "desktop_application.h"
#include "qt_text.h"

namespace swiftroll::test {

/// A started program with its real window, in a home of its own. Dialogs that stand there are answered from a
/// timer, as a user would.
class WindowTest : public testing::Test {
  protected:
    WindowTest();
    ~WindowTest() override;

    /// Starts the program with the file of the command line.
    void Start(const QString& file = {});
    /// Starts it, reads the family and shows it.
    void StartWithFamily();
    /// Starts another program where this one has ended.
    void StartAgain();
    /// A path in the home of the test; a file of that name with these bytes.
    QString Path(const QString& name) const { return home_.filePath(name); }
    QString Write(const QString& name, const QByteArray& bytes) const;

    /// Answers the next dialogs: each is called once, in order, with the dialog that stands there.
    void OnDialog(std::function<void(QWidget&)> answer) { answers_.push_back(std::move(answer)); }
    /// Presses a button of the next message box.
    void OnBox(QMessageBox::StandardButton button);
    /// Texts of the boxes that were shown.
    QStringList boxes;

    frmMain& Main() { return program_->Main(); }
    ui::MainWindow& Window() { return program_->Window(); }
    template <class Widget>
    Widget& Find(const char* name) {
        auto* widget = Window().findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }
    /// Clicks a button; a check box at its tick, since its widget may be wider than its caption.
    void Click(const char* name) {
        auto& widget = Find<QWidget>(name);
        const QPoint middle = widget.rect().center();
        const bool isCheckBox = qobject_cast<QCheckBox*>(&widget) != nullptr;
        QTest::mouseClick(&widget, Qt::LeftButton, {}, isCheckBox ? QPoint(8, middle.y()) : middle);
    }
    /// Reads a file by the window's own controls; the list is computed with it if `recalculate`.
    void Read(const QByteArray& gedcom, bool recalculate = false);
    ui::TableView& View(Table& table) { return Window().ViewOf(table); }
    /// The middle of a cell, in the viewport of its view; both from 0, the column by its index.
    QPoint CellAt(Table& table, int row, int column);
    void ShowTab(int tab);
    /// Opens the group of the files that are written, as a user does who has not opened it yet.
    void OpenOutputFiles();

    std::unique_ptr<ui::DesktopApplication> program_;

  private:
    void AnswerDialogs();
    QTemporaryDir home_;
    QTimer dialogTimer_;
    std::deque<std::function<void(QWidget&)>> answers_;
    QPointer<QWidget> answered_;  // the dialog that was answered last, while it stands
};

/// Three generations of one family: @I1@ to @I5@, in @F1@ and @F2@.
inline constexpr const char* kFamily =
    "0 HEAD\n1 CHAR ANSI\n"
    "0 @I1@ INDI\n1 NAME Jean /Dupont/\n1 SEX M\n1 BIRT\n2 DATE 1850\n2 PLAC Lyon\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Anne /Martin/\n1 SEX F\n1 BIRT\n2 DATE 1855\n2 PLAC Paris\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Paul /Dupont/\n1 SEX M\n1 BIRT\n2 DATE 1880\n2 PLAC Lyon\n1 FAMC @F1@\n1 FAMS @F2@\n"
    "0 @I4@ INDI\n1 NAME Marie /Durand/\n1 SEX F\n1 FAMS @F2@\n"
    "0 @I5@ INDI\n1 NAME Luc /Dupont/\n1 SEX M\n1 BIRT\n2 DATE 1910\n2 PLAC Lyon\n1 FAMC @F2@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n"
    "0 @F2@ FAM\n1 HUSB @I3@\n1 WIFE @I4@\n1 CHIL @I5@\n"
    "0 TRLR\n";

}  // namespace swiftroll::test

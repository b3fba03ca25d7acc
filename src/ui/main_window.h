#pragma once

#include <QMainWindow>
#include <QTabWidget>

#include "binder.h"
#include "list_pages.h"
#include "status_line.h"

namespace swiftroll::ui {

/// The main window: layout and pictures over the controls of `frmMain`.
class MainWindow : public QMainWindow {
  public:
    explicit MainWindow(Presenter& presenter);

    TableView& ViewOf(const Table& table) const { return pages_.ViewOf(table); }
    QTabWidget& Tabs() const { return *tabs_; }
    /// Gives the window the size below which it never falls: to be called once its controls have their texts.
    void TakeDesignSize();
    /// Brings status panels, progress and wait cursor up to date.
    void ShowStatus();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void BuildMenuBar();
    void BuildCentre();
    QWidget* BuildTabs();
    QWidget* BuildFavorites();
    void Refresh();
    void RefreshTab();
    void OnTabChosen(int index);
    int HelpTopic() const;

    Presenter& presenter_;
    frmMain& main_;
    Binder binder_;
    ListPages pages_;
    StatusLine* status_;
    QTabWidget* tabs_ = nullptr;
    std::vector<std::pair<QAction*, Command*>> menuActions_;
    bool hasWaitCursor_ = false;
    bool focusesTable_ = false;  // the present tab was given the focus since the last refresh
};

}  // namespace swiftroll::ui

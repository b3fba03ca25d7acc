#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QToolButton>

#include "binder.h"

namespace swiftroll::ui {

/// The one spacing of the window, in pixels.
inline constexpr int kSpacing = 6;
inline constexpr int kMargin = 9;
/// Between a list and the edge of its page.
inline constexpr int kTableMargin = 8;
/// Fields and pages of options are no wider than can be read.
inline constexpr int kWidestField = 700, kWidestPage = 900;
/// How long the tips stay that tell how a list works.
inline constexpr int kTipMilliseconds = 20000;

/// A box with a caption around a grid.
struct Frame {
    explicit Frame(const QString& caption, const QString& name = {});
    QGroupBox* box;
    QGridLayout* grid;
};

/// New widgets bound to controls.
QCheckBox* NewCheckBox(Binder& binder, CheckBox& control);
/// A text box `characters` wide that selects its text when it takes the focus.
QLineEdit* NewTextBox(Binder& binder, TextBox& control, int characters, const QString& description = {});
QPushButton* NewButton(Binder& binder, Command& control);
/// A small square button with a caption or with a picture.
QToolButton* NewToolButton(Binder& binder, Command& control, const QString& description,
                           const QString& picture = {});
/// The combo of the names of a parameter set, with the button that saves it.
QWidget* NewParameterSet(Binder& binder, ComboBox& names, Command& save, const QString& description);
/// The room of a page of options: in the middle, no wider than can be read, and scrolled in a small window.
QWidget* NewOptionPage(QWidget* page);
/// A label that leads the keyboard to its box.
QLabel* NewLabel(const QString& caption, QWidget* buddy = nullptr);
/// Selects the whole text of a box when it takes the focus.
void SelectAllOnFocus(QLineEdit& edit);

}  // namespace swiftroll::ui

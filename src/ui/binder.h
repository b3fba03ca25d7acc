#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>

#include "presenter.h"

namespace swiftroll::ui {

/// What a binder gives a widget of any kind: the name, the tip and the accessible name of its control, its
/// focus and its enabled and visible state. `description` stands in where the control has no text of its own.
class Binder {
  public:
    /// Binds the controls of one window.
    Binder(Presenter& presenter, Window& window) : presenter_(presenter), window_(window) {}

    /// A check box, or another button that stays pressed.
    void Bind(QAbstractButton& widget, CheckBox& control);
    void Bind(QRadioButton& widget, OptionButton& control);
    /// One button for each caption of the group, in order.
    void Bind(const std::vector<QRadioButton*>& widgets, OptionGroup& control);
    void Bind(QLineEdit& widget, TextBox& control, const QString& description = {});
    /// `isFile`: the text is a file name, whose end is shown.
    void Bind(QComboBox& widget, ComboBox& control, const QString& description = {}, bool isFile = false);
    /// The user puts the rows in order by dragging, or with Ctrl and the arrow keys.
    void Bind(QListWidget& widget, OrderedList& control);
    /// A button that shows the colour behind its caption.
    void Bind(QAbstractButton& widget, ColourButton& control);
    void Bind(QLabel& widget, Label& control);
    void Bind(QAbstractButton& widget, Command& control, const QString& description = {});

  private:
    void BindCommon(QWidget& widget, Control& control, const QString& description = {});
    Presenter& presenter_;
    Window& window_;
};

}  // namespace swiftroll::ui

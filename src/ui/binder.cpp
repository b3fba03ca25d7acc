#include "binder.h"

#include <QCompleter>
#include <QSignalBlocker>

#include "colours.h"
#include "drop_down.h"
#include "mnemonics.h"
#include "ordered_list_widget.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

void ShowTip(QWidget& widget, TextView tip) {
    const QString text = ToQt(tip);
    if (!text.isEmpty() && widget.toolTip() != text) widget.setToolTip(text);
}

/// The letter that the view has marked stays, as long as the caption has it.
void ShowCaption(QAbstractButton& button, TextView caption) {
    const QString text = ToQt(caption);
    if (PlainCaption(button.text()) != PlainCaption(text))
        button.setText(WithSameMnemonic(text, button.text()));
}

/// The same; a label that leads to no field marks nothing.
void ShowCaption(QLabel& label, TextView caption) {
    const QString text = ToQt(caption), plain = PlainCaption(text);
    const bool marks = label.buddy() != nullptr;
    const QString shown = marks ? PlainCaption(label.text()) : label.text();
    if (shown != plain) label.setText(marks ? WithSameMnemonic(text, label.text()) : plain);
}

/// A new value for a combo: the items and the text as the control has them.
void ShowCombo(QComboBox& widget, const ComboBox& control, bool isFile) {
    const QSignalBlocker blocker(widget);
    const auto& items = control.Items();
    bool same = widget.count() == static_cast<int>(items.size());
    for (int i = 0; same && i < widget.count(); ++i) {
        same = widget.itemText(i) == EditableToQt(items[static_cast<std::size_t>(i)]);
    }
    if (!same) {
        widget.clear();
        for (const Text& item : items) widget.addItem(EditableToQt(item));
    }
    if (!widget.isEditable()) {
        if (widget.currentIndex() != control.ListIndex()) widget.setCurrentIndex(control.ListIndex());
        return;
    }
    const QString text = EditableToQt(control.Get());
    if (widget.currentText() == text && (same || widget.currentIndex() == control.ListIndex())) return;
    if (widget.currentIndex() != control.ListIndex()) widget.setCurrentIndex(control.ListIndex());
    widget.setEditText(text);
    if (isFile && !widget.hasFocus()) widget.lineEdit()->setCursorPosition(static_cast<int>(text.size()));
}

}  // namespace

void Binder::BindCommon(QWidget& widget, Control& control, const QString& description) {
    widget.setObjectName(ToQt(control.Name()));
    const QString caption = PlainCaption(ToQt(control.Caption));
    widget.setAccessibleName(description.isEmpty() ? caption : description);
    if (!description.isEmpty() && control.Tip.empty()) widget.setToolTip(description);
    widget.setAccessibleDescription(ToQt(control.Tip));
    presenter_.RegisterFocus(widget, window_, control);
    const auto refresh = [&widget, &control] {
        ShowTip(widget, control.Tip);
        if (widget.isEnabled() != control.Enabled) widget.setEnabled(control.Enabled);
        // A widget of a group that is hidden as a whole is not hidden by itself.
        if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
    };
    refresh();
    presenter_.OnRefresh(refresh);
}

void Binder::Bind(QAbstractButton& widget, CheckBox& control) {
    BindCommon(widget, control);
    presenter_.OnRefresh([&widget, &control] {
        ShowCaption(widget, control.Caption);
        const QSignalBlocker blocker(widget);
        widget.setChecked(control.Checked());
    });
    QObject::connect(
        &widget, &QAbstractButton::toggled, &presenter_,
        [this_ = &presenter_, &control](bool checked) { this_->Act([&] { control.SetChecked(checked); }); });
}

void Binder::Bind(QRadioButton& widget, OptionButton& control) {
    BindCommon(widget, control);
    widget.setAutoExclusive(false);
    presenter_.OnRefresh([&widget, &control] {
        ShowCaption(widget, control.Caption);
        const QSignalBlocker blocker(widget);
        widget.setChecked(control.Value());
    });
    QObject::connect(&widget, &QRadioButton::clicked, &presenter_,
                     [this_ = &presenter_, &control] { this_->Act([&] { control.SetValue(true); }); });
}

void Binder::Bind(const std::vector<QRadioButton*>& widgets, OptionGroup& control) {
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        QRadioButton& widget = *widgets[i];
        BindCommon(widget, control);
        const QString caption = ToQt(control.Captions()[i]).trimmed();
        widget.setObjectName(ToQt(control.Name()) + QStringLiteral("(%1)").arg(i));
        widget.setText(caption);
        widget.setAccessibleName(caption);
        widget.setAutoExclusive(false);
        if (i < control.Tips().size()) ShowTip(widget, control.Tips()[i]);
        presenter_.OnRefresh([&widget, &control, i] {
            const QSignalBlocker blocker(widget);
            widget.setChecked(control.Index() == static_cast<int>(i));
        });
        QObject::connect(&widget, &QRadioButton::clicked, &presenter_, [this_ = &presenter_, &control, i] {
            this_->Act([&] { control.SetIndex(static_cast<int>(i)); });
        });
    }
}

void Binder::Bind(QLineEdit& widget, TextBox& control, const QString& description) {
    BindCommon(widget, control, description);
    presenter_.OnRefresh([&widget, &control] {
        const QString text = EditableToQt(control.Get());
        if (widget.text() != text) widget.setText(text);
    });
    QObject::connect(&widget, &QLineEdit::textEdited, &presenter_,
                     [this_ = &presenter_, &control](const QString& text) {
                         this_->Act([&] { control.SetText(FromQt(text)); });
                     });
    // The Enter key settles a text as leaving the box does.
    QObject::connect(&widget, &QLineEdit::returnPressed, &presenter_,
                     [this_ = &presenter_, &control] { this_->Act([&] { control.LoseFocus(); }); });
}

void Binder::Bind(QComboBox& widget, ComboBox& control, const QString& description, bool isFile) {
    BindCommon(widget, control, description);
    widget.setEditable(!control.IsSelector());
    FitDropDown(widget);
    presenter_.OnRefresh([&widget, &control, isFile] { ShowCombo(widget, control, isFile); });
    if (widget.isEditable()) {
        widget.setInsertPolicy(QComboBox::NoInsert);
        widget.setCompleter(nullptr);
        widget.lineEdit()->setAccessibleName(widget.accessibleName());
        QObject::connect(widget.lineEdit(), &QLineEdit::textEdited, &presenter_,
                         [this_ = &presenter_, &control](const QString& text) {
                             this_->Act([&] { control.SetText(FromQt(text)); });
                         });
    }
    QObject::connect(&widget, &QComboBox::activated, &presenter_, [this_ = &presenter_, &control](int index) {
        this_->Act([&] { control.SetListIndex(index); });
    });
}

void Binder::Bind(QListWidget& widget, OrderedList& control) {
    BindCommon(widget, control);
    presenter_.OnRefresh([&widget, &control] {
        const auto& items = control.Items();
        while (widget.count() < static_cast<int>(items.size())) widget.addItem(QString());
        for (int i = 0; i < widget.count(); ++i) {
            widget.item(i)->setText(ToQt(items[static_cast<std::size_t>(i)].text));
        }
    });
    LetUserReorder(widget, [this_ = &presenter_, &control](int from, int to) {
        this_->Act([&] { control.Move(static_cast<std::size_t>(from), static_cast<std::size_t>(to)); });
    });
}

void Binder::Bind(QAbstractButton& widget, ColourButton& control) {
    BindCommon(widget, control);
    presenter_.OnRefresh([&widget, &control, shown = std::uint32_t{0xFFFFFFFF}]() mutable {
        ShowCaption(widget, control.Caption);
        if (shown == control.Colour()) return;
        shown = control.Colour();
        const QColor colour = ColourOf(shown);
        widget.setStyleSheet(
            QStringLiteral(
                "background-color: %1; color: %2; border: 1px solid palette(mid); padding: 5px 12px;")
                .arg(colour.name(),
                     colour.lightness() < 128 ? QStringLiteral("white") : QStringLiteral("black")));
    });
    QObject::connect(&widget, &QAbstractButton::clicked, &presenter_, [this_ = &presenter_, &control] {
        this_->Act([&] {
            if (control.OnClick) control.OnClick();
        });
    });
}

void Binder::Bind(QLabel& widget, Label& control) {
    BindCommon(widget, control);
    presenter_.OnRefresh([&widget, &control] { ShowCaption(widget, control.Caption); });
}

void Binder::Bind(QAbstractButton& widget, Command& control, const QString& description) {
    BindCommon(widget, control, description);
    presenter_.OnRefresh([&widget, &control] { ShowCaption(widget, control.Caption); });
    QObject::connect(&widget, &QAbstractButton::clicked, &presenter_,
                     [this_ = &presenter_, &control] { this_->Click(control); });
}

}  // namespace swiftroll::ui

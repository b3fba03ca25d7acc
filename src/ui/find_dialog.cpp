#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>

#include "dialogs.h"
#include "help_topics.h"
#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// A combo that is no wider for its items, which change with the table and with every search.
void KeepWidth(QComboBox& combo, int width) {
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo.setMinimumWidth(width);
}

/// One condition: the text, its column, and how they are compared.
QWidget* ConditionFrame(Binder& binder, frmFind& form, std::size_t condition) {
    constexpr std::size_t kWays = 3;
    ComboBox& text = form.cboTextToFind[condition];
    Frame frame(ToQt(text.Caption));
    auto* edit = new QComboBox;
    binder.Bind(*edit, text);
    edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    KeepWidth(*edit, 260);
    SelectAllOnFocus(*edit->lineEdit());
    auto* columns = new QComboBox;
    binder.Bind(*columns, form.cboColumns[condition], QStringLiteral("Colonne"));
    KeepWidth(*columns, 150);
    frame.grid->addWidget(edit, 0, 0);
    frame.grid->addWidget(NewLabel(ToQt(form.cboColumns[condition].Caption), columns), 0, 1);
    frame.grid->addWidget(columns, 0, 2);
    auto* ways = new QHBoxLayout;
    ways->setSpacing(2 * kSpacing);
    for (std::size_t way = 0; way < kWays; ++way) {
        auto* button = new QRadioButton;
        binder.Bind(*button, form.optSearch[condition * kWays + way]);
        ways->addWidget(button);
    }
    ways->addStretch(1);
    frame.grid->addLayout(ways, 1, 0, 1, 3);
    frame.grid->setColumnStretch(0, 1);
    return frame.box;
}

/// What the search answers: its line is kept free, so that the window keeps its size, and a screen reader,
/// which follows the focus, is told.
QLabel* NewAnswerLabel(Presenter& presenter, Binder& binder, Label& answer) {
    auto* label = new QLabel;
    binder.Bind(*label, answer);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setMinimumHeight(label->fontMetrics().lineSpacing());
    presenter.OnRefresh([label, shown = QString()]() mutable {
        if (std::exchange(shown, label->text()) == label->text() || shown.isEmpty()) return;
        QAccessibleEvent alert(label, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    });
    return label;
}

}  // namespace

SecondaryDialog* BuildFindDialog(Presenter& presenter, QWidget* owner) {
    frmFind& form = presenter.Main().findDialog;
    auto* dialog = new SecondaryDialog(presenter, form, owner);
    dialog->setObjectName(QStringLiteral("frmFind"));
    dialog->helpTopic = Topic::Find;
    Binder binder(presenter, form);
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    column->addWidget(ConditionFrame(binder, form, 0));
    column->addWidget(ConditionFrame(binder, form, 1));
    auto* options = new QLabel;
    binder.Bind(*options, form.lblFind);
    constexpr int kMostOptions = 2;
    options->setMinimumHeight(kMostOptions * options->fontMetrics().lineSpacing());
    column->addWidget(options);
    column->addWidget(NewAnswerLabel(presenter, binder, form.lblNotFound));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(NewButton(binder, form.cmdDeselectAll));
    buttons->addStretch(1);
    auto* find = NewButton(binder, form.cmdFind);
    find->setDefault(true);
    buttons->addWidget(find);
    buttons->addWidget(NewButton(binder, form.cmdFindNext));
    column->addLayout(buttons);
    // The window keeps its size.
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* text = static_cast<QComboBox*>(presenter.WidgetOf(form.cboTextToFind[0]));
    dialog->onActivate = [&form, text] {
        // A button that is pressed in the dialog as it comes to the front loses its click with the focus.
        if (QApplication::mouseButtons() != Qt::NoButton) return form.Refill();
        form.Activate();
        // The text may have had the focus when the window was left.
        text->setFocus();
        text->lineEdit()->selectAll();
    };
    return dialog;
}

}  // namespace swiftroll::ui

#include <QEvent>
#include <QHBoxLayout>

#include "dialogs.h"
#include "help_topics.h"
#include "layout.h"
#include "window_place.h"

namespace swiftroll::ui {
namespace {

/// A double click on a reading chooses it and starts the search.
class DoubleClick : public QObject {
  public:
    DoubleClick(QWidget& widget, Presenter& presenter, OptionButton& option)
        : QObject(&widget), presenter_(presenter), option_(option) {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonDblClick || !option_.Enabled) return false;
        presenter_.Act([this] {
            if (option_.OnDblClick) option_.OnDblClick();
        });
        return true;
    }

  private:
    Presenter& presenter_;
    OptionButton& option_;
};

}  // namespace

SecondaryDialog* BuildKinshipDialog(Presenter& presenter, QtDialogs& dialogs, QWidget* owner) {
    frmKinshipSelect& form = presenter.Main().kinshipDialog;
    auto* dialog = new SecondaryDialog(presenter, form, owner);
    dialog->setObjectName(QStringLiteral("frmKinshipSelect"));
    dialog->setModal(true);
    dialog->helpTopic = Topic::Kinship;
    Binder binder(presenter, form);
    auto* grid = new QGridLayout(dialog);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setSpacing(kSpacing);
    int row = 0;
    auto* question = new QLabel;
    binder.Bind(*question, form.lblMultipleChoice);
    grid->addWidget(question, row++, 0, 1, 3);
    for (int reading = 1; reading <= kReadings; ++reading, ++row) {
        auto* option = new QRadioButton;
        binder.Bind(*option, form.Option(reading));
        new DoubleClick(*option, presenter, form.Option(reading));  // owned by the button
        grid->addWidget(option, row, 0);
        int column = 1;
        for (TextBox* box : {&form.FirstBox(reading), &form.SecondBox(reading)}) {
            auto* text = new QLineEdit;
            binder.Bind(*text, *box,
                        column == 1 ? QStringLiteral("Premier individu") : QStringLiteral("Second individu"));
            text->setReadOnly(true);
            text->setMinimumWidth(260);
            grid->addWidget(text, row, column++);
        }
    }
    auto* inversion = new QHBoxLayout;
    inversion->addWidget(NewButton(binder, form.cmdInvertSelected));
    inversion->addWidget(NewCheckBox(binder, form.chkInverted));
    inversion->addStretch(1);
    grid->addLayout(inversion, row++, 0, 1, 3);
    auto* warning = new QLabel;
    binder.Bind(*warning, form.lblNotDisplayed);
    grid->addWidget(warning, row++, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto* ok = NewButton(binder, form.cmdOK);
    ok->setDefault(true);
    buttons->addWidget(ok);
    buttons->addWidget(NewButton(binder, form.cmdCancel));
    grid->addLayout(buttons, row, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);

    form.OnHide = [dialog] { dialog->done(QDialog::Accepted); };
    dialog->onClose = [&form] { form.cmdCancel.Click(); };
    dialogs.ShowWith(form, [&presenter, &form, dialog] {
        presenter.Refresh();
        RestorePlace(*dialog, form);
        dialog->exec();
    });
    return dialog;
}

}  // namespace swiftroll::ui

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dialogs.h"
#include "help_topics.h"
#include "layout.h"
#include "table_view.h"

namespace swiftroll::ui {

SecondaryDialog* BuildRelativesDialog(Presenter& presenter, QWidget* owner) {
    constexpr QSize kFirstSize(860, 520);
    constexpr int kDegreeCharacters = 4;
    frmRelatives& form = presenter.Main().relatives;
    auto* dialog = new SecondaryDialog(presenter, form, owner);
    dialog->setObjectName(QStringLiteral("frmRelatives"));
    dialog->setSizeGripEnabled(true);
    dialog->helpTopic = Topic::AllKin;
    form.Place.resizable = true;
    Binder binder(presenter, form);
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    auto* head = new QHBoxLayout;
    auto* person = new QLabel;
    person->setTextFormat(Qt::PlainText);
    binder.Bind(*person, form.lblPerson);
    head->addWidget(person, 1);
    auto* degree = NewTextBox(binder, form.txtDegree, kDegreeCharacters);
    head->addWidget(NewLabel(QStringLiteral("Jusqu'au degré &civil :"), degree));
    head->addWidget(degree);
    auto* list = NewButton(binder, form.cmdList);
    list->setDefault(true);
    head->addWidget(list);
    column->addLayout(head);
    auto* view = new TableView(presenter, presenter.Main().lvwRelatives);
    view->setAccessibleName(QStringLiteral("Parents par le sang"));
    view->SetHint(QStringLiteral("Aucun parent par le sang jusqu'à ce degré."));
    column->addWidget(view, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(NewButton(binder, form.cmdCopy));
    buttons->addWidget(NewButton(binder, form.cmdHtml));
    buttons->addStretch(1);
    buttons->addWidget(NewButton(binder, form.cmdClose));
    column->addLayout(buttons);
    dialog->resize(kFirstSize);
    return dialog;
}

}  // namespace swiftroll::ui

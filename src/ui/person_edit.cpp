#include "person_edit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>

#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {

PersonEdit::PersonEdit(Presenter& presenter, TextBox& slot) : presenter_(presenter), slot_(slot) {
    auto* completer = new QCompleter(&labels_, this);
    // The core has filtered them already.
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    setCompleter(completer);
    setPlaceholderText(QStringLiteral("Nom, prénom, année…"));
    connect(this, &QLineEdit::textEdited, this, &PersonEdit::Propose);
    connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) {
                const auto place = static_cast<std::size_t>(index.row());
                if (place >= people_.size()) return;
                presenter_.Act([&] { presenter_.Main().kinshipPair.Take(slot_, people_[place].sId); });
            });
    connect(this, &QLineEdit::returnPressed, this, [this, completer] {
        if (completer->popup()->isVisible()) return;  // the key chooses a person there
        presenter_.ActLater([this] { presenter_.Main().cmdFindPair.Click(); });
    });
}

void PersonEdit::Propose(const QString& typed) {
    people_ = presenter_.Main().kinshipPair.Suggest(FromQt(typed));
    QStringList labels;
    for (const KinshipPair::Suggestion& person : people_) labels << ToQt(person.label);
    labels_.setStringList(labels);
}

void PersonEdit::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(QLatin1String(kPersonFormat))) event->acceptProposedAction();
}

void PersonEdit::dragMoveEvent(QDragMoveEvent* event) { event->acceptProposedAction(); }

void PersonEdit::dropEvent(QDropEvent* event) {
    const Text sId = event->mimeData()->data(QLatin1String(kPersonFormat)).toStdString();
    event->acceptProposedAction();
    presenter_.Act([&] { presenter_.Main().kinshipPair.Take(slot_, sId); });
}

QWidget* BuildKinshipSlots(Presenter& presenter) {
    frmMain& main = presenter.Main();
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    Binder slots(presenter, main.kinshipPair), commands(presenter, main);
    const auto add = [&](TextBox& slot) {
        auto* edit = new PersonEdit(presenter, slot);
        slots.Bind(*edit, slot);
        SelectAllOnFocus(*edit);
        row->addWidget(NewLabel(ToQt(slot.Caption), edit));
        row->addWidget(edit, 1);
    };
    add(main.kinshipPair.txtFrom);
    row->addWidget(NewButton(commands, main.cmdSwapPair));
    add(main.kinshipPair.txtTo);
    row->addWidget(NewButton(commands, main.cmdFindPair));
    return widget;
}

}  // namespace swiftroll::ui

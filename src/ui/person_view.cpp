#include "person_view.h"

#include <QFontDatabase>

#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr QSize kSize(320, 400);
constexpr int kLeastWidth = 220, kRecordHeight = 180;

QWidget* NewHint() {
    auto* hint =
        new QLabel(QStringLiteral("Choisissez un individu dans la liste :\nsa famille se montre ici."));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setEnabled(false);
    return hint;
}

}  // namespace

PersonView::PersonView(Presenter& presenter, Binder& binder)
    : presenter_(presenter),
      area_(new QScrollArea),
      recordButton_(NewToolButton(binder, presenter.Main().personPanel.cmdPersonRecord, {})),
      record_(new QPlainTextEdit) {
    setObjectName(QStringLiteral("personPanel"));
    setAccessibleName(QStringLiteral("Individu courant"));
    setMinimumWidth(kLeastWidth);
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(NewHint());
    area_->viewport()->setAutoFillBackground(false);
    area_->widget()->setAutoFillBackground(false);
    recordButton_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    recordButton_->setAutoRaise(true);
    record_->setObjectName(QStringLiteral("personRecord"));
    record_->setAccessibleName(QStringLiteral("Lignes GEDCOM"));
    record_->setReadOnly(true);
    record_->setTabChangesFocus(true);
    record_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    record_->setFixedHeight(kRecordHeight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(BuildHead(binder));
    column->addWidget(area_, 1);
    column->addWidget(recordButton_);
    column->addWidget(record_);
    presenter_.OnRefresh([this] { Refresh(); });
}

QWidget* PersonView::BuildHead(Binder& binder) {
    frmMain& main = presenter_.Main();
    auto* head = new QWidget;
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(kMargin, 0, 0, 0);
    QToolButton* back = NewToolButton(binder, main.personPanel.cmdPersonBack, {}, QStringLiteral("previous"));
    back->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    fold_ = NewToolButton(binder, main.personPanel.cmdPersonPanel, {}, QStringLiteral("close"));
    fold_->setAccessibleName(QStringLiteral("Cacher le panneau"));
    for (QToolButton* button : {back, fold_}) {
        button->setAutoRaise(true);
        row->addWidget(button);
        if (button == back) row->addStretch(1);
    }
    return head;
}

QSize PersonView::sizeHint() const { return kSize; }

void PersonView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Refresh();
}

void PersonView::Refresh() {
    frmMain& main = presenter_.Main();
    if (!isVisible() || main.bTablesLocked) return;
    const PersonPanel::State present = main.personPanel.Present();
    const bool isNew = present != shown_;
    if (isNew) {
        shown_ = present;
        ShowCard();
    }
    if (std::exchange(showsRecord_, main.personPanel.chkPersonRecord.Checked()) != showsRecord_ || isNew)
        ShowRecord();
}

void PersonView::ShowCard() {
    const auto card = presenter_.Main().personPanel.Card();
    const QWidget* const focus = window()->focusWidget();
    const bool hadFocus = focus != nullptr && area_->isAncestorOf(focus);
    page_ = nullptr;
    if (card) {
        page_ = new PersonPage(*card, [this](const Text& sId) {
            // The page goes with the link that was followed.
            presenter_.ActLater([this, sId] { presenter_.Main().personPanel.GoTo(sId); });
        });
    }
    area_->setWidget(page_ != nullptr ? page_ : NewHint());
    area_->widget()->setAutoFillBackground(false);
    if (page_ != nullptr) OrderTabs();
    if (page_ != nullptr && hadFocus) page_->Head().setFocus(Qt::OtherFocusReason);
}

/// The links come behind the head of the panel, though they were made last.
void PersonView::OrderTabs() {
    QWidget* before = fold_;
    for (QWidget* field : page_->findChildren<QWidget*>()) {
        if ((field->focusPolicy() & Qt::TabFocus) == 0) continue;
        setTabOrder(before, field);
        before = field;
    }
}

void PersonView::ShowRecord() {
    recordButton_->setArrowType(showsRecord_ ? Qt::DownArrow : Qt::RightArrow);
    record_->setVisible(showsRecord_);
    if (!showsRecord_) return;
    const RecordText record = presenter_.Main().personPanel.Record();
    record_->setLineWrapMode(record.isRecord ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    record_->setPlainText(ToQt(record.text));
}

}  // namespace swiftroll::ui

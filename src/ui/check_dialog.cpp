#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include "dialogs.h"
#include "finding_model.h"
#include "help_topics.h"
#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// The findings as a table, below the choice of their kind.
class CheckDialog : public SecondaryDialog {
  public:
    CheckDialog(Presenter& presenter, frmCheck& form, QWidget* owner)
        : SecondaryDialog(presenter, form, owner), presenter_(presenter), form_(form), model_(form.findings) {
        setObjectName(QStringLiteral("frmCheck"));
        setSizeGripEnabled(true);
        helpTopic = Topic::Check;
        form.Place.resizable = true;
        Binder binder(presenter, form);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        column->setSpacing(kSpacing);
        auto* summary = new QLabel;
        binder.Bind(*summary, form.lblSummary);
        summary->setTextFormat(Qt::PlainText);
        summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        column->addWidget(summary);
        column->addLayout(BuildChoice(binder));
        column->addWidget(BuildTable(), 1);
        column->addLayout(BuildButtons(binder));
        resize(900, 560);
        setMinimumSize(560, 320);
        presenter.OnRefresh([this] { model_.Sync(); });
        onClose = [this] {
            if (form_.IsChecking()) return presenter_.Main().RequestAbort();
            form_.Hide();
        };
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy)) {
            presenter_.Act([this] { form_.cmdCopy.Click(); });
            return true;
        }
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
        GoTo(table_->currentIndex());
        return true;
    }

  private:
    QLayout* BuildChoice(Binder& binder) {
        auto* row = new QHBoxLayout;
        auto* kinds = new QComboBox;
        binder.Bind(*kinds, form_.cboKind);
        kinds->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        kinds->setMinimumWidth(320);
        row->addWidget(NewLabel(ToQt(form_.cboKind.Caption), kinds));
        row->addWidget(kinds);
        row->addStretch(1);
        return row;
    }

    QLayout* BuildButtons(Binder& binder) {
        auto* row = new QHBoxLayout;
        row->addWidget(NewButton(binder, form_.cmdCheckAgain));
        row->addStretch(1);
        row->addWidget(NewButton(binder, form_.cmdCopy));
        row->addWidget(NewButton(binder, form_.cmdSaveHtml));
        return row;
    }

    QTableView* BuildTable() {
        constexpr int kWidths[] = {56, 126, 74, 96, 210};
        table_ = new QTableView;
        table_->setObjectName(QStringLiteral("findings"));
        table_->setAccessibleName(QStringLiteral("Constats"));
        table_->setModel(&model_);
        table_->setSelectionBehavior(QAbstractItemView::SelectRows);
        table_->setAlternatingRowColors(true);
        table_->setShowGrid(false);
        table_->setWordWrap(false);
        table_->setTabKeyNavigation(false);
        table_->verticalHeader()->hide();
        table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
        QHeaderView& header = *table_->horizontalHeader();
        header.setHighlightSections(false);
        header.setStretchLastSection(true);
        for (int i = 0; i < static_cast<int>(std::size(kWidths)); ++i) header.resizeSection(i, kWidths[i]);
        // The findings come in the order of their lines.
        header.setSortIndicator(static_cast<int>(modCheck::FindingColumn::Line), Qt::AscendingOrder);
        table_->setSortingEnabled(true);
        table_->installEventFilter(this);
        connect(table_, &QTableView::doubleClicked, this, [this](const QModelIndex& index) { GoTo(index); });
        connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this] { TakeSelection(); });
        connect(&model_, &QAbstractItemModel::modelReset, this, [this] { TakeSelection(); });
        return table_;
    }

    void GoTo(const QModelIndex& index) {
        if (!index.isValid()) return;
        presenter_.Act([&] { form_.GoTo(static_cast<std::size_t>(index.row())); });
    }

    void TakeSelection() {
        form_.selectedRows.clear();
        for (const QModelIndex& index : table_->selectionModel()->selectedRows())
            form_.selectedRows.push_back(static_cast<std::size_t>(index.row()));
        std::sort(form_.selectedRows.begin(), form_.selectedRows.end());
    }

    Presenter& presenter_;
    frmCheck& form_;
    FindingModel model_;
    QTableView* table_ = nullptr;
};

}  // namespace

SecondaryDialog* BuildCheckDialog(Presenter& presenter, QWidget* owner) {
    return new CheckDialog(presenter, presenter.Main().checkDialog, owner);
}

}  // namespace swiftroll::ui

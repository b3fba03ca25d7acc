#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "colours.h"
#include "dialogs.h"
#include "help_topics.h"
#include "layout.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// The tree of the versions above the links to their files.
class UpdatesDialog : public SecondaryDialog {
  public:
    UpdatesDialog(Presenter& presenter, frmUpdates& form, QWidget* owner)
        : SecondaryDialog(presenter, form, owner), presenter_(presenter), form_(form) {
        setObjectName(QStringLiteral("frmUpdates"));
        setSizeGripEnabled(true);
        helpTopic = Topic::Updates;
        form.Place.resizable = true;
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
        column->setSpacing(kSpacing);
        tree_ = new QTreeWidget;
        tree_->setObjectName(QStringLiteral("tvwUpdates"));
        tree_->setAccessibleName(QStringLiteral("Versions"));
        tree_->setHeaderHidden(true);
        tree_->installEventFilter(this);
        tree_->viewport()->installEventFilter(this);
        column->addWidget(tree_, 1);
        Binder binder(presenter, form);
        for (DownloadLabel* label :
             {&form.lblDownloadBeta, &form.lblDownloadLastFull, &form.lblDownloadLastUpd}) {
            AddLink(*column, binder, *label);
        }
        // The check waits for the site no longer than the user does.
        onClose = [this] {
            if (form_.bWaitCursor) presenter_.Main().RequestAbort();
            form_.Hide();
        };
        form.OnInvertCaption = [this, &form](bool inverted) {
            setWindowTitle(inverted ? QStringLiteral("» %1 «").arg(ToQt(form.Caption)) : ToQt(form.Caption));
        };
        resize(640, 460);
        setMinimumSize(size());
        presenter.OnRefresh([this] { Refresh(); });
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) StopBlink(event);
        return false;
    }
    void keyPressEvent(QKeyEvent* event) override {
        StopBlink(event);
        SecondaryDialog::keyPressEvent(event);
    }
    void mousePressEvent(QMouseEvent*) override { form_.bStopBlink = true; }

  private:
    void StopBlink(const QEvent* event) {
        const auto* key = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(event) : nullptr;
        if (key == nullptr || key->key() != Qt::Key_F1) form_.bStopBlink = true;
    }
    void AddLink(QVBoxLayout& column, Binder& binder, DownloadLabel& label) {
        auto* link = new QToolButton;
        link->setAutoRaise(true);
        binder.Bind(*link, label);
        presenter_.OnRefresh([link, &label, shown = -1]() mutable {
            const int filled = label.Tag.empty() ? 0 : 1;
            if (std::exchange(shown, filled) == filled) return;
            const bool isDark = link->palette().color(QPalette::Window).lightness() < 128;
            link->setCursor(filled ? Qt::PointingHandCursor : Qt::ArrowCursor);
            link->setStyleSheet(filled
                                    ? QStringLiteral("border: none; color: %1; text-decoration: underline;")
                                          .arg(isDark ? QStringLiteral("#6aa5ff") : QStringLiteral("#0000ff"))
                                    : QStringLiteral("border: none;"));
        });
        column.addWidget(link, 0, Qt::AlignLeft);
    }
    static QTreeWidgetItem* NewItem(const UpdateNode& node) {
        auto* item = new QTreeWidgetItem({ToQt(node.text)});
        // Black on white is the colour of plain text, in a dark theme too.
        if (node.look.foreColour != 0 || node.look.backColour != 0xFFFFFF) {
            item->setForeground(0, ColourOf(node.look.foreColour));
            item->setBackground(0, ColourOf(node.look.backColour));
        }
        QFont font = item->font(0);
        font.setBold(node.look.bold);
        item->setFont(0, font);
        for (const UpdateNode& child : node.children) item->addChild(NewItem(child));
        return item;
    }
    void Refresh() {
        if (std::exchange(hasWaitCursor_, form_.bWaitCursor) != form_.bWaitCursor) {
            form_.bWaitCursor ? setCursor(Qt::WaitCursor) : unsetCursor();
        }
        if (std::exchange(shownChanges_, form_.tvwUpdates.Changes()) == form_.tvwUpdates.Changes()) return;
        tree_->clear();
        for (const auto& node : form_.tvwUpdates.Nodes()) {
            QTreeWidgetItem* item = NewItem(*node);
            tree_->addTopLevelItem(item);
            item->setExpanded(node->look.expanded);
        }
    }

    Presenter& presenter_;
    frmUpdates& form_;
    QTreeWidget* tree_;
    int shownChanges_ = 0;
    bool hasWaitCursor_ = false;
};

}  // namespace

SecondaryDialog* BuildUpdatesDialog(Presenter& presenter, QWidget* owner) {
    return new UpdatesDialog(presenter, presenter.Main().updates, owner);
}

}  // namespace swiftroll::ui

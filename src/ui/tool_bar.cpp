#include "tool_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "help_topics.h"
#include "layout.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

constexpr int kPictureSize = 20;
constexpr int kChoiceWidth = 18;

/// A button of the tool bar, which Enter presses as a click does.
class CommandButton : public QToolButton {
  public:
    explicit CommandButton(const QString& picture) {
        setIcon(ThemedIcon(picture));
        setIconSize(QSize(kPictureSize, kPictureSize));
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        setAutoRaise(true);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return animateClick();
        QToolButton::keyPressEvent(event);
    }
};

/// A list of actions that is no wider than its arrow.
class ChoiceArrow : public QComboBox {
  public:
    ChoiceArrow() {
        setFixedWidth(kChoiceWidth);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        setAttribute(Qt::WA_Hover);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionToolButton option;
        option.initFrom(this);
        option.subControls = QStyle::SC_ToolButton;
        option.features = QStyleOptionToolButton::Arrow;
        option.arrowType = Qt::DownArrow;
        option.toolButtonStyle = Qt::ToolButtonIconOnly;
        option.state |= QStyle::State_AutoRaise;
        if (underMouse() && isEnabled()) option.state |= QStyle::State_Raised;
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
    }
};

/// `description` tells what the caption leaves open.
QToolButton* NewCommand(Binder& binder, Command& command, const char* picture, const char* description = "") {
    auto* button = new CommandButton(QLatin1String(picture));
    binder.Bind(*button, command, QString::fromUtf8(description));
    return button;
}

/// A command whose action is chosen in the list at its right.
QWidget* NewChoice(Binder& binder, Command& command, const char* picture, ComboBox& selector,
                   const char* description) {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto* choices = new ChoiceArrow;
    binder.Bind(*choices, selector, QString::fromUtf8(description));
    row->addWidget(NewCommand(binder, command, picture), 1);
    row->addWidget(choices);
    return widget;
}

}  // namespace

OverflowRow* BuildToolBar(frmMain& main, Binder& binder) {
    auto* bar = new OverflowRow;
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setAccessibleName(QStringLiteral("Barre d'outils"));
    bar->Add(NewChoice(binder, main.cmdLoad, "open", main.cboLoad, "Action de lecture"));
    bar->Add(NewCommand(binder, main.cmdCalcOutput, "recalculate", "Recalcule la liste « Sortie » (F5)"));
    bar->Add(NewChoice(binder, main.cmdSaveSwift, "write-list", main.cboSaveSwift, "Format du Relevé-vif"));
    QToolButton* extract = NewCommand(binder, main.cmdSaveGed, "write-gedcom", "Écrire un extrait GEDCOM");
    SetHelpTopic(*extract, Topic::Extract);
    bar->Add(extract);
    bar->Add(NewCommand(binder, main.cmdFindPath, "find-kin"));
    bar->Add(NewChoice(binder, main.cmdDrawKinship, "draw-kin", main.cboDrawKinship, "Parentés à dessiner"));
    bar->Add(NewCommand(binder, main.cmdPrintKinship, "print", "Imprimer les liens de parenté"));
    bar->AddStretch();
    bar->Add(NewCommand(binder, main.cmdHelp, "help"));
    bar->Add(NewCommand(binder, main.cmdExit, "exit"));
    return bar;
}

}  // namespace swiftroll::ui

#include "file_rows.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "help_topics.h"
#include "layout.h"
#include "model_mark.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

struct FileRow {
    Control& label;  // whose caption stands before the row
    ComboBox& file;
    Command& select;
    Command& display;
    Command* derive;  // proposes a name
    const char* what;
    const char* howDerived;
    int topic = 0;  // of the manual, where it is not that of the tab
};

/// Rows below each other, no wider than their fields may be.
struct FileGrid {
    FileGrid() : widget(new QWidget), grid(new QGridLayout(widget)) {
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setSpacing(kSpacing);
        grid->setSizeConstraint(QLayout::SetMinAndMaxSize);
    }
    static constexpr int kLabel = 0, kFile = 1, kMark = 4;
    QWidget* widget;
    QGridLayout* grid;
    std::vector<QLabel*> labels;
};

/// Gives the combo of the row.
QComboBox* AddRow(FileGrid& rows, const FileRow& file, Binder& binder) {
    const int row = static_cast<int>(rows.labels.size());
    auto* combo = new QComboBox;
    const QString what = QString::fromUtf8(file.what);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    combo->setMinimumContentsLength(20);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMaximumWidth(kWidestField);
    binder.Bind(*combo, file.file, what, true);
    SelectAllOnFocus(*combo->lineEdit());
    auto* label = new QLabel;
    if (file.label.Kind() == ControlKind::Label) {
        binder.Bind(*label, static_cast<Label&>(file.label));
    } else {
        label->setText(ToQt(file.label.Caption));
    }
    label->setBuddy(combo);
    rows.labels.push_back(label);
    rows.grid->addWidget(label, row, FileGrid::kLabel);
    std::vector<QWidget*> widgets{
        combo, NewToolButton(binder, file.select, QStringLiteral("Choisir : ") + what),
        NewToolButton(binder, file.display, QStringLiteral("Ouvrir : ") + what, QStringLiteral("display"))};
    if (file.derive != nullptr) {
        widgets.push_back(NewToolButton(binder, *file.derive, QString::fromUtf8(file.howDerived)));
    }
    int column = FileGrid::kFile;
    for (QWidget* widget : widgets) {
        SetHelpTopic(*widget, file.topic);
        // The combo decides how high the row may be.
        if (widget != combo) widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        rows.grid->addWidget(widget, row, column++);
    }
    return combo;
}

/// A line of widgets, of which the first one takes the room that it can use.
QWidget* LeftAligned(std::initializer_list<QWidget*> widgets) {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kMargin);
    for (QWidget* widget : widgets) row->addWidget(widget, row->count() == 0 ? 1 : 0);
    row->addStretch();
    return line;
}

/// Lets the labels of all grids take the width of the widest one, whatever they come to say.
void AlignLabels(const std::vector<FileGrid>& grids) {
    int widest = 0;
    for (const FileGrid& rows : grids) {
        for (const QLabel* label : rows.labels) widest = std::max(widest, label->sizeHint().width());
    }
    for (const FileGrid& rows : grids) {
        for (QLabel* label : rows.labels) {
            if (label->minimumWidth() != widest) label->setFixedWidth(widest);
        }
    }
}

/// The head of the group of the outputs, which opens and closes it.
QToolButton* NewFold(Binder& binder, Presenter& presenter, CheckBox& isOpen, QWidget& group) {
    auto* fold = new QToolButton;
    fold->setCheckable(true);
    fold->setAutoRaise(true);
    fold->setFocusPolicy(Qt::StrongFocus);
    fold->setArrowType(Qt::RightArrow);
    group.hide();
    fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    binder.Bind(*fold, isOpen);
    presenter.OnRefresh([fold, &group, &isOpen] {
        if (group.isHidden() != isOpen.Checked()) return;
        fold->setArrowType(isOpen.Checked() ? Qt::DownArrow : Qt::RightArrow);
        group.setVisible(isOpen.Checked());
    });
    return fold;
}

}  // namespace

QWidget* BuildFileRows(frmMain& main, Binder& binder, Presenter& presenter) {
    const FileRow input{main.cboGedIn,
                        main.cboGedIn,
                        main.cmdSelectDirGedIn,
                        main.cmdDisplayGedIn,
                        nullptr,
                        "le fichier GEDCOM à lire",
                        ""};
    const FileRow outputs[] = {
        {main.cboGedOut, main.cboGedOut, main.cmdSelectDirGedOut, main.cmdDisplayGedOut,
         &main.cmdCopyGedIn2GedOut, "le fichier GEDCOM à écrire", "Génère Nom du Fichier Gedcom en Sortie",
         Topic::Extract},
        {main.lblOut, main.cboSwiftOut, main.cmdSelectDirSwiftOut, main.cmdDisplaySwiftOut,
         &main.cmdCopyGedIn2SwiftOut, "le fichier du Relevé-vif",
         "Génère Nom du Fichier Relevé-vif en Sortie"},
        {main.lblModel, main.cboFileModel, main.cmdSelectDirModel, main.cmdDisplayModel, nullptr,
         "le fichier modèle", "", Topic::Models},
        {main.cboKinship, main.cboKinship, main.cmdSelectDirKinship, main.cmdDisplayKinship,
         &main.cmdCopyTitle2kinship, "le fichier des liens de parenté", ""},
    };
    std::vector<FileGrid> grids(2);
    AddRow(grids[0], input, binder);
    for (const FileRow& file : outputs) {
        QComboBox* combo = AddRow(grids[1], file, binder);
        if (&file.file != &main.cboFileModel) continue;
        const int row = static_cast<int>(grids[1].labels.size()) - 1;
        grids[1].grid->addWidget(NewModelMark(presenter, *combo), row, FileGrid::kMark);
    }
    QWidget* group = LeftAligned({grids[1].widget});
    group->setObjectName(QStringLiteral("outputFiles"));

    auto* widget = new QWidget;
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kSpacing);
    column->addWidget(
        LeftAligned({grids[0].widget, NewFold(binder, presenter, main.chkOutputFiles, *group)}));
    column->addWidget(group);
    presenter.OnRefresh([grids] { AlignLabels(grids); });
    return widget;
}

}  // namespace swiftroll::ui

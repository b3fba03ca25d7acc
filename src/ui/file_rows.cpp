#include "file_rows.h"

#include <QHBoxLayout>

#include "help_topics.h"
#include "layout.h"
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

void AddRow(QGridLayout& grid, int row, const FileRow& file, Binder& binder) {
    auto* combo = new QComboBox;
    const QString what = QString::fromUtf8(file.what);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    combo->setMinimumContentsLength(20);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    binder.Bind(*combo, file.file, what, true);
    SelectAllOnFocus(*combo->lineEdit());
    auto* label = new QLabel;
    if (file.label.Kind() == ControlKind::Label) {
        binder.Bind(*label, static_cast<Label&>(file.label));
    } else {
        label->setText(ToQt(file.label.Caption));
    }
    label->setBuddy(combo);
    grid.addWidget(label, row, 0);
    std::vector<QWidget*> widgets{
        combo, NewToolButton(binder, file.select, QStringLiteral("Choisir : ") + what),
        NewToolButton(binder, file.display, QStringLiteral("Ouvrir : ") + what, QStringLiteral("display"))};
    if (file.derive != nullptr) {
        widgets.push_back(NewToolButton(binder, *file.derive, QString::fromUtf8(file.howDerived)));
    }
    int column = 1;
    for (QWidget* widget : widgets) {
        SetHelpTopic(*widget, file.topic);
        grid.addWidget(widget, row, column++);
    }
}

/// A button whose action is chosen in the list at its right.
QWidget* NewChoiceButton(Binder& binder, Command& command, ComboBox& selector, const QString& description) {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto* combo = new QComboBox;
    binder.Bind(*combo, selector, description);
    combo->setFixedWidth(24);
    combo->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(NewButton(binder, command), 1);
    row->addWidget(combo);
    return widget;
}

}  // namespace

QWidget* BuildFileRows(frmMain& main, Binder& binder) {
    auto* widget = new QWidget;
    auto* grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(kSpacing);
    grid->setColumnStretch(1, 1);
    const FileRow rows[] = {
        {main.cboGedIn, main.cboGedIn, main.cmdSelectDirGedIn, main.cmdDisplayGedIn, nullptr,
         "le fichier GEDCOM à lire", ""},
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
    int row = 0;
    for (const FileRow& file : rows) AddRow(*grid, row++, file, binder);

    // The buttons stand in the rows of the files that they read and write.
    constexpr int kActions = 5, kOthers = 6;
    grid->setColumnMinimumWidth(kActions, 140);
    grid->addWidget(NewChoiceButton(binder, main.cmdLoad, main.cboLoad, QStringLiteral("Action de lecture")),
                    0, kActions);
    QPushButton* extract = NewButton(binder, main.cmdSaveGed);
    SetHelpTopic(*extract, Topic::Extract);
    grid->addWidget(extract, 1, kActions);
    grid->addWidget(
        NewChoiceButton(binder, main.cmdSaveSwift, main.cboSaveSwift, QStringLiteral("Format du Relevé-vif")),
        2, kActions);
    grid->addWidget(NewButton(binder, main.cmdCalcOutput), 3, kActions);
    grid->addWidget(NewChoiceButton(binder, main.cmdDrawKinship, main.cboDrawKinship,
                                    QStringLiteral("Parentés à dessiner")),
                    4, kActions);
    grid->addWidget(NewButton(binder, main.cmdFindPath), 0, kOthers);
    grid->addWidget(NewButton(binder, main.cmdHelp), 2, kOthers);
    grid->addWidget(NewButton(binder, main.cmdExit), 3, kOthers);
    grid->addWidget(NewToolButton(binder, main.cmdPrintKinship,
                                  QStringLiteral("Imprimer les liens de parenté"), QStringLiteral("print")),
                    4, kOthers, Qt::AlignLeft);
    return widget;
}

}  // namespace swiftroll::ui

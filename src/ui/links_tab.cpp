#include <QHBoxLayout>

#include "app/cell_font.h"
#include "layout.h"
#include "option_tabs.h"
#include "qt_text.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

QWidget* IndividualFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Individu"));
    std::vector<QRadioButton*> names{new QRadioButton, new QRadioButton};
    binder.Bind(names, main.optFullName);
    frame.grid->addWidget(names[0], 0, 0);
    frame.grid->addWidget(names[1], 1, 0);
    frame.grid->addWidget(NewCheckBox(binder, main.chkIndiID), 2, 0);
    return frame.box;
}

QWidget* EventFrame(const QString& caption, Binder& binder, std::initializer_list<CheckBox*> boxes) {
    Frame frame(caption);
    int row = 0;
    for (CheckBox* box : boxes) frame.grid->addWidget(NewCheckBox(binder, *box), row++, 0);
    frame.grid->setRowStretch(row, 1);
    return frame.box;
}

QWidget* ColourFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Couleur de fond"));
    int row = 0;
    for (ColourButton* colour : {&main.cmdColorMale, &main.cmdColorFemale, &main.cmdColorUndefined}) {
        auto* button = new QPushButton;
        button->setAutoDefault(false);
        binder.Bind(*button, *colour);
        frame.grid->addWidget(button, row++, 0);
    }
    return frame.box;
}

/// The sizes of cells and gaps, in points of the drawing.
QWidget* SizeFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Dimensions"));
    int row = 0;
    for (TextBox* size : {&main.txtKinWidth, &main.txtKinHeight, &main.txtKinH, &main.txtKinV}) {
        auto* box = NewTextBox(binder, *size, 5);
        box->setAlignment(Qt::AlignRight);
        frame.grid->addWidget(NewLabel(ToQt(size->Caption), box), row, 0);
        frame.grid->addWidget(box, row, 1);
        frame.grid->addWidget(NewLabel(QStringLiteral("pt")), row++, 2);
    }
    return frame.box;
}

/// A picture of an orientation: the chosen one is raised and red.
QToolButton* NewPicture(Binder& binder, Presenter& presenter, Command& control, const QString& description,
                        const QString& picture, std::function<bool()> isChosen) {
    auto* button = NewToolButton(binder, control, description);
    button->setIconSize(QSize(40, 40));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIcon(QIcon(ThemedPixmap(picture, QSize(40, 40), Qt::black, button->devicePixelRatioF())));
    presenter.OnRefresh([button, isChosen = std::move(isChosen), shown = -1]() mutable {
        if (shown == static_cast<int>(isChosen())) return;
        shown = static_cast<int>(isChosen());
        button->setStyleSheet(
            shown == 1
                ? QStringLiteral("background-color: #ff0000; border: 2px outset #ff8080; padding: 4px;")
                : QStringLiteral("background-color: white; border: 1px solid palette(mid); padding: 5px;"));
    });
    return button;
}

QWidget* OrientationFrame(frmMain& main, Binder& binder, Presenter& presenter) {
    Frame frame(QStringLiteral("Orientation"));
    const CheckBox* landscape = &main.txtKinshipLandscape;
    frame.grid->addWidget(
        NewPicture(binder, presenter, main.picTreeH, QStringLiteral("Ancêtres en haut"),
                   QStringLiteral("tree-top"), [landscape] { return landscape->Checked(); }),
        0, 0);
    frame.grid->addWidget(
        NewPicture(binder, presenter, main.picTreeV, QStringLiteral("Ancêtres à gauche"),
                   QStringLiteral("tree-left"), [landscape] { return !landscape->Checked(); }),
        0, 1);
    frame.grid->setRowStretch(1, 1);
    return frame.box;
}

QWidget* FontFrame(frmMain& main, Binder& binder, Presenter& presenter) {
    Frame frame(QStringLiteral("Police de caractères"));
    auto* label = new QLabel;
    binder.Bind(*label, main.lblFont);
    label->setMinimumHeight(28);
    presenter.OnRefresh([label, &main] {
        const auto chosen = ParseCellFont(main.txtFont.Get());
        if (!chosen) return;
        QFont font(ToQt(chosen->name));
        font.setBold(chosen->bold);
        font.setItalic(chosen->italic);
        font.setStrikeOut(chosen->strikethrough);
        font.setUnderline(chosen->underline);
        if (label->font() != font) label->setFont(font);
    });
    frame.grid->addWidget(label, 0, 0);
    frame.grid->addWidget(NewButton(binder, main.cmdFont), 0, 1);
    frame.grid->setColumnStretch(0, 1);
    return frame.box;
}

}  // namespace

QWidget* BuildLinksTab(frmMain& main, Binder& binder, Presenter& presenter) {
    auto* page = new QWidget;
    auto* outer = new QVBoxLayout(page);
    outer->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    Frame frame(QStringLiteral("Paramètres des liens de parenté"), QStringLiteral("frameParamLinks"));
    Frame texts(QStringLiteral("Informations à générer"));
    texts.grid->addWidget(IndividualFrame(main, binder), 0, 0);
    texts.grid->addWidget(
        EventFrame(QStringLiteral("Naissance"), binder, {&main.chkIndiBirthDate, &main.chkIndiBirthPlace}), 0,
        1);
    texts.grid->addWidget(
        EventFrame(QStringLiteral("Décès"), binder, {&main.chkIndiDeathDate, &main.chkIndiDeathPlace}), 0, 2);
    texts.grid->addWidget(EventFrame(QStringLiteral("Mariage"), binder,
                                     {&main.chkMarrDate, &main.chkMarrPlace, &main.chkMarrID}),
                          0, 3);
    frame.grid->addWidget(
        NewParameterSet(binder, main.cboCells, main.cmdSaveCells, QStringLiteral("paramètres des cellules")),
        2, 0, 1, 3);
    frame.grid->addWidget(SizeFrame(main, binder), 0, 0);
    frame.grid->addWidget(OrientationFrame(main, binder, presenter), 0, 1);
    frame.grid->addWidget(texts.box, 0, 2);
    frame.grid->addWidget(ColourFrame(main, binder), 1, 0);
    frame.grid->addWidget(FontFrame(main, binder, presenter), 1, 1, 1, 2);
    frame.grid->setColumnStretch(2, 1);
    outer->addWidget(frame.box);
    outer->addStretch(1);
    return page;
}

}  // namespace swiftroll::ui

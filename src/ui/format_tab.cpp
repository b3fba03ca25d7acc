#include <QApplication>
#include <QHBoxLayout>

#include "help_topics.h"
#include "layout.h"
#include "option_tabs.h"
#include "writers/output_format.h"

namespace swiftroll::ui {
namespace {

/// Greys the caption of a box that is not ticked, though it can be.
void GreyUnlessTicked(QCheckBox& box) {
    const QPalette normal = QApplication::palette(&box);
    QPalette shown = normal;
    if (!box.isChecked()) {
        shown.setColor(QPalette::WindowText, normal.color(QPalette::Disabled, QPalette::WindowText));
    }
    if (box.palette() != shown) box.setPalette(shown);
}

QWidget* CopyFrame(frmMain& main, Binder& binder, Presenter& presenter) {
    Frame frame(QStringLiteral("Format des listes"), QStringLiteral("frameOutFormat"));
    std::vector<QRadioButton*> separators{new QRadioButton, new QRadioButton};
    binder.Bind(separators, main.optTabSpace);
    frame.grid->addWidget(NewLabel(QStringLiteral("Copier avec des :")), 0, 0);
    frame.grid->addWidget(separators[0], 0, 1);
    frame.grid->addWidget(separators[1], 0, 2);
    frame.grid->addWidget(NewCheckBox(binder, main.chkIncludeHeaders), 1, 0, 1, 4);
    auto* index = NewTextBox(binder, main.txtINDEX, 4);
    QLabel* const labels[] = {NewLabel(QStringLiteral("Index HTML"), index),
                              NewLabel(QStringLiteral("caractère(s)"))};
    frame.grid->addWidget(labels[0], 2, 0);
    frame.grid->addWidget(index, 2, 1);
    frame.grid->addWidget(labels[1], 2, 2);
    for (QLabel* label : labels) {
        presenter.OnRefresh([label, &main] { label->setEnabled(main.txtINDEX.Enabled); });
    }
    frame.grid->setColumnStretch(3, 1);
    return frame.box;
}

QWidget* ExtensionFrame(frmMain& main, Binder& binder, Presenter& presenter) {
    Frame frame(QStringLiteral("Extension des Listes en sortie"), QStringLiteral("frameFileExt"));
    std::vector<QRadioButton*> formats;
    for (std::size_t i = 0; i < main.optOutExtension.Captions().size(); ++i)
        formats.push_back(new QRadioButton);
    binder.Bind(formats, main.optOutExtension);
    frame.grid->addWidget(NewLabel(QStringLiteral("Liste en Sortie")), 0, 1);
    frame.grid->addWidget(NewLabel(QStringLiteral("Modèle en Entrée")), 0, 2);
    for (std::size_t i = 0; i < formats.size(); ++i) {
        const int row = static_cast<int>(i) + 1;
        const QString format = formats[i]->text();
        frame.grid->addWidget(formats[i], row, 0);
        frame.grid->addWidget(NewTextBox(binder, main.txtOutExtension[i], 6,
                                         QStringLiteral("Extension de la liste en sortie, ") + format),
                              row, 1);
        auto* model = NewTextBox(binder, main.txtModelExtension[i], 6,
                                 QStringLiteral("Extension du modèle en entrée, ") + format);
        SetHelpTopic(*model, Topic::Models);
        frame.grid->addWidget(model, row, 2);
    }
    QCheckBox* stylesheet = NewCheckBox(binder, main.chkGenerXSL);
    presenter.OnRefresh([stylesheet] { GreyUnlessTicked(*stylesheet); });
    const int xmlRow = modGenFileFromModel::StylesheetFormat() + 1;
    frame.grid->addWidget(stylesheet, xmlRow, 3);
    frame.grid->addWidget(NewCheckBox(binder, main.chkStrictXml), xmlRow + 1, 2, 1, 2);
    frame.grid->setColumnStretch(4, 1);
    return frame.box;
}

QWidget* PlacesFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Calcul des colonnes Lieux && Dates Min/Max"),
                QStringLiteral("frameCalcPlaceDates"));
    Frame order(QStringLiteral("Ordre de sélection des Lieux && Dates"));
    auto* list = new QListWidget;
    binder.Bind(*list, main.lbOuputPlacesOrder);
    list->setFixedHeight(3 * (list->fontMetrics().height() + 6) + 2 * list->frameWidth());
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setToolTipDuration(kTipMilliseconds);
    order.grid->addWidget(list, 0, 0);

    Frame parts(QStringLiteral("Dans le lieu complet, prendre :"), QStringLiteral("frameFormatPlace"));
    auto* format = NewTextBox(binder, main.txtPlaceFormat, 10);
    auto* separator = NewTextBox(binder, main.txtPlaceSepar, 4);
    parts.grid->addWidget(NewLabel(QStringLiteral("Format"), format), 0, 0);
    parts.grid->addWidget(format, 0, 1);
    parts.grid->addWidget(NewLabel(QStringLiteral("Séparateur de lieux"), separator), 1, 0);
    parts.grid->addWidget(separator, 1, 1);
    parts.grid->addWidget(NewCheckBox(binder, main.chkTrimSepar), 2, 0, 1, 2);
    parts.grid->setColumnStretch(2, 1);

    frame.grid->addWidget(order.box, 0, 0);
    frame.grid->addWidget(parts.box, 1, 0);
    frame.grid->addWidget(NewParameterSet(binder, main.cboOutPlace, main.cmdSavePlace,
                                          QStringLiteral("paramètres des lieux et dates")),
                          2, 0);
    frame.grid->addWidget(NewButton(binder, main.cmdRecalcIn), 3, 0);
    frame.grid->setRowStretch(4, 1);
    return frame.box;
}

QWidget* ColumnsFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Positions et largeurs des colonnes"), QStringLiteral("framePosWidColumns"));
    frame.grid->addWidget(NewParameterSet(binder, main.cboColumns, main.cmdSaveColumns,
                                          QStringLiteral("positions et largeurs des colonnes")),
                          0, 0);
    return frame.box;
}

QWidget* ReadingFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Uniquement pour lecture du GEDCOM"), QStringLiteral("frameProcGedcom"));
    frame.box->setToolTip(QStringLiteral("Ces cases seront décochées après la lecture du fichier GEDCOM."));
    frame.grid->addWidget(NewCheckBox(binder, main.chkInvertNames), 0, 0);
    frame.grid->addWidget(NewCheckBox(binder, main.chkUpperNames), 1, 0);
    return frame.box;
}

}  // namespace

QWidget* BuildFormatTab(frmMain& main, Binder& binder, Presenter& presenter) {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setSpacing(kSpacing);
    grid->addWidget(PlacesFrame(main, binder), 0, 0, 2, 1);
    grid->addWidget(ReadingFrame(main, binder), 2, 0);
    grid->addWidget(ExtensionFrame(main, binder, presenter), 0, 1);
    grid->addWidget(CopyFrame(main, binder, presenter), 1, 1);
    grid->addWidget(ColumnsFrame(main, binder), 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return page;
}

}  // namespace swiftroll::ui

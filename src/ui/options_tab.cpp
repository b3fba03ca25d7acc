#include <QVBoxLayout>

#include "layout.h"
#include "option_tabs.h"

namespace swiftroll::ui {
namespace {

QWidget* LimitFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Ne pas afficher les liens si : "), QStringLiteral("frameLimitLinks"));
    frame.grid->addWidget(NewCheckBox(binder, main.chkMaxLinks), 0, 0);
    frame.grid->addWidget(NewTextBox(binder, main.txtMaxLinks, 6, QStringLiteral("Nombre de liaisons")), 0,
                          1);
    frame.grid->addWidget(NewCheckBox(binder, main.chkMaxSpouses), 1, 0);
    frame.grid->addWidget(NewTextBox(binder, main.txtMaxSpouses, 6, QStringLiteral("Nombre de conjoints")), 1,
                          1);
    frame.grid->setColumnStretch(2, 1);
    return frame.box;
}

QWidget* NearestFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Recherche de parenté"), QStringLiteral("frameNearest"));
    frame.grid->addWidget(NewCheckBox(binder, main.chkNearest), 0, 0);
    frame.grid->addWidget(NewTextBox(binder, main.txtNearest, 6, QStringLiteral("Nombre de liens")), 0, 1);
    frame.grid->setColumnStretch(2, 1);
    frame.grid->setRowStretch(1, 1);
    return frame.box;
}

QWidget* ReadingFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Lecture"), QStringLiteral("frameReading"));
    int row = 0;
    for (CheckBox* box : {&main.chkDecodeCharset, &main.chkCalendars, &main.chkFallbackEvents})
        frame.grid->addWidget(NewCheckBox(binder, *box), row++, 0);
    frame.grid->setColumnStretch(1, 1);
    return frame.box;
}

QWidget* UpdateFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Mises-à-jour"), QStringLiteral("frameKeepUpdated"));
    frame.grid->addWidget(NewCheckBox(binder, main.chkCheckUpdates), 0, 0);
    frame.grid->addWidget(
        NewToolButton(binder, main.PicturepicKeepUpdated,
                      QStringLiteral("Vérifier si c'est la dernière version"), QStringLiteral("update")),
        0, 2);
    frame.grid->setColumnStretch(1, 1);
    return frame.box;
}

QWidget* FindFrame(frmMain& main, Binder& binder) {
    Frame frame(QStringLiteral("Options de recherche"), QStringLiteral("frameFindOptions"));
    frame.grid->addWidget(NewCheckBox(binder, main.chkIgnoreCase), 0, 0);
    frame.grid->addWidget(NewCheckBox(binder, main.chkDelAccents), 1, 0);
    frame.grid->setColumnStretch(1, 1);
    return frame.box;
}

}  // namespace

QWidget* BuildOptionsTab(frmMain& main, Binder& binder) {
    auto* page = new QWidget;
    auto* outer = new QVBoxLayout(page);
    outer->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    outer->setSpacing(kSpacing);
    Frame misc(QStringLiteral("Divers"), QStringLiteral("frameMiscOpt"));
    misc.grid->addWidget(NewCheckBox(binder, main.chkTips), 0, 0);
    misc.grid->addWidget(NewCheckBox(binder, main.chkPrivate), 1, 0);
    misc.grid->addWidget(NewTextBox(binder, main.txtPrivateYears, 6, QStringLiteral("Nombre d'années")), 1,
                         1);
    misc.grid->addWidget(NewLabel(QStringLiteral("ans")), 1, 2);
    misc.grid->setColumnStretch(3, 1);
    outer->addWidget(ReadingFrame(main, binder));
    outer->addWidget(FindFrame(main, binder));
    auto* kinship = new QHBoxLayout;
    kinship->setSpacing(kSpacing);
    kinship->addWidget(LimitFrame(main, binder));
    kinship->addWidget(NearestFrame(main, binder));
    outer->addLayout(kinship);
    outer->addWidget(misc.box);
    outer->addWidget(UpdateFrame(main, binder));
    outer->addStretch(1);
    return page;
}

}  // namespace swiftroll::ui

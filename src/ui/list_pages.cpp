#include "list_pages.h"

#include <QLabel>
#include <algorithm>

#include "kinship_view.h"
#include "layout.h"
#include "list_strip.h"
#include "person_edit.h"
#include "qt_text.h"
#include "row_teller.h"
#include "shell/list_names.h"
#include "turning_splitter.h"

namespace swiftroll::ui {
namespace {

/// A list with a title above it.
QWidget* Titled(const QString& title, QWidget& list) {
    auto* both = new QWidget;
    auto* column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    auto* label = new QLabel(title);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    column->addWidget(label);
    column->addWidget(&list, 1);
    return both;
}

}  // namespace

ListPages::ListPages(Presenter& presenter, Binder& binder)
    : presenter_(presenter),
      main_(presenter.Main()),
      binder_(binder),
      pages_{NewPage({&main_.lvwIn}),         NewPage({&main_.lvwOut}),
             NewPage({&main_.lvwFamilyXref}), NewPage({&main_.lvwXref, &main_.lvwXref1}),
             NewPage({&main_.lvwFamily}),     NewKinshipPage()} {
    NameViews();
    SetHints();
}

ListPage ListPages::NewPage(std::initializer_list<Table*> tables, int mainTable, QSplitter* sides) {
    ListPage page{new QWidget, new QVBoxLayout, sides};
    auto* column = new QVBoxLayout(page.widget);
    column->setContentsMargins(kTableMargin, kTableMargin, kTableMargin, kTableMargin);
    column->setSpacing(kTableMargin);
    page.strips->setContentsMargins(0, 0, 0, 0);
    page.strips->setSpacing(kSpacing);
    const bool hasSeveral = tables.size() > 1;
    std::vector<Table*> mainFirst(tables);
    std::rotate(mainFirst.begin(), mainFirst.begin() + mainTable, mainFirst.begin() + mainTable + 1);
    page.strips->addWidget(new ListStrip(presenter_, binder_, mainFirst));
    auto* lists = new QSplitter(Qt::Vertical);
    for (Table* table : tables) {
        auto* view = new TableView(presenter_, *table);
        views_[table] = view;
        new RowTeller(presenter_, *view);  // owned by the view
        lists->addWidget(hasSeveral ? Titled(ToQt(ListTitle(main_, *table)), *view) : view);
    }
    // The list that the tab is for has the room.
    for (int i = 0; i < lists->count(); ++i) lists->setStretchFactor(i, i == mainTable ? 3 : 1);
    lists->setChildrenCollapsible(false);
    page.sides->addWidget(lists);
    page.sides->setStretchFactor(0, 1);
    page.sides->setCollapsible(0, false);
    column->addLayout(page.strips);
    column->addWidget(page.sides, 1);
    return page;
}

/// The page of the paths: above them the pair that is searched for, beside them the drawing of the current
/// one.
ListPage ListPages::NewKinshipPage() {
    const ListPage page = NewPage({&main_.lvwPaths, &main_.lvwKinship}, 1,
                                  new TurningSplitter(presenter_, main_.txtPictureShare));
    page.strips->addWidget(BuildKinshipSlots(presenter_));
    page.sides->addWidget(new KinshipView(presenter_));
    return page;
}

void ListPages::NameViews() {
    const std::pair<Table*, const char*> names[] = {{&main_.lvwIn, "Individus"},
                                                    {&main_.lvwOut, "Relevé-vif"},
                                                    {&main_.lvwFamilyXref, "Membres des familles"},
                                                    {&main_.lvwXref, "Liens"},
                                                    {&main_.lvwXref1, "Liens de la recherche de parenté"},
                                                    {&main_.lvwFamily, "Familles"},
                                                    {&main_.lvwPaths, "Résumé des liens de parenté"},
                                                    {&main_.lvwKinship, "Liens de parenté"}};
    for (const auto& [table, name] : names) ViewOf(*table).setAccessibleName(QString::fromUtf8(name));
}

void ListPages::SetHints() {
    const std::pair<Table*, const char*> hints[] = {
        {&main_.lvwOut,
         "Lisez un fichier, placez devant la colonne « Nbre » les colonnes à regrouper,\n"
         "puis appuyez sur « Recalcul Sortie »."},
        {&main_.lvwPaths,
         "Résumé : chaque lien trouvé aura ici une ligne,\n"
         "avec son nom et ses degrés. Choisissez-en une pour aller au lien."},
        {&main_.lvwKinship,
         "Sélectionnez ou cochez deux individus dans l'onglet « Entrée »,\n"
         "puis appuyez sur « Rech. Parenté »."}};
    for (const auto& [table, hint] : hints) ViewOf(*table).SetHint(QString::fromUtf8(hint));
}

}  // namespace swiftroll::ui

#include "shell/list_names.h"

#include "shell/tabs.h"
#include "text/literal.h"

namespace swiftroll {

TextView ListName(const Application& app, const Table& table) {
    const std::pair<const Table*, TextView> names[] = {
        {&app.lvwIn, kTabCaptions[static_cast<std::size_t>(Tab::In)]},
        {&app.lvwOut, kTabCaptions[static_cast<std::size_t>(Tab::Out)]},
        {&app.lvwFamilyXref, kTabCaptions[static_cast<std::size_t>(Tab::FamilyXref)]},
        {&app.lvwXref, kTabCaptions[static_cast<std::size_t>(Tab::Xref)]},
        {&app.lvwXref1, "Liens de la recherche de parenté"_t},
        {&app.lvwFamily, kTabCaptions[static_cast<std::size_t>(Tab::Family)]},
        {&app.lvwKinship, kTabCaptions[static_cast<std::size_t>(Tab::Kinship)]},
        {&app.lvwPaths, "Résumé"_t},
        {&app.lvwRelatives, "Toute la parenté"_t}};
    for (const auto& [named, name] : names) {
        if (named == &table) return name;
    }
    return {};
}

TextView ListTitle(const Application& app, const Table& table) {
    if (&table == &app.lvwXref) return "Tous les liens entre individus"_t;
    if (&table == &app.lvwXref1) return "Liens que suit la recherche de parenté"_t;
    if (&table == &app.lvwPaths) return "Résumé des liens de parenté"_t;
    if (&table == &app.lvwKinship) return "Détail des liens de parenté"_t;
    return ListName(app, table);
}

}  // namespace swiftroll

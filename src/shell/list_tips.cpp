#include "shell/list_tips.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

Text Lines(std::initializer_list<TextView> lines) {
    Text text;
    for (const TextView line : lines) text += Concat({line, kLineEnd});
    return text;
}

/// What every table can do.
Text CommonTip() {
    return Lines({"Un double-clic sur l'onglet affiche le nombre de lignes sélectionnées"_t,
                  "    dans la liste correspondante, et les place en tête de liste."_t,
                  "Click droit = Menu contextuel."_t});
}

/// How the list is computed.
Text ListTip() {
    return Lines({"Les informations sont identiques à celle qui se trouvent dans la liste de"_t,
                  "l'onglet 'Entrée' sauf qu'il y a une donnée supplémentaire : le nombre"_t,
                  "d'individus qui ont les mêmes valeurs pour les colonnes situées avant"_t,
                  "cette colonne 'Nbre'."_t, "",
                  "Seules les colonnes situées avant la colonne 'Nombre (Nbre)' seront"_t,
                  "visualisées et/ou écrites dans le fichier créé. C'est tout à fait"_t,
                  "normal puisque c'est justement cette colonne 'Nbre' qui permet de délimiter"_t,
                  "ce qu'il faut compter."_t, "",
                  "La colonne 'ID' est générée par votre logiciel de généalogie; sa valeur"_t,
                  "est unique pour chaque individu : c'est ce qui permet à votre logiciel"_t,
                  "généalogique d'identifier un individu sans aucune équivoque; dans votre"_t,
                  "logiciel de généalogie, vous devriez donc pouvoir changer le nom, prénom,..."_t,
                  "de n'importe quel individu. Donc, vous devriez normalement déplacer la"_t,
                  "colonne 'ID' après la colonne 'Nbre', sinon il y aura autant de lignes"_t,
                  "que d'individus dans la liste de l'onglet 'Sortie' puisque cette liste"_t,
                  "fournit le compte des individus qui ont les mêmes valeurs pour chacune"_t,
                  "des colonnes qui se trouvent avant la colonne 'Nbre' (mis à part les dates)."_t});
}

/// The tip of the list is long, and the user can do without it.
void ShowListTip(Application& app) {
    Table& list = app.lvwOut;
    list.Tip =
        app.chkTips.Checked() ? Concat({CommonTip(), list.BaseTip(), kLineEnd, kLineEnd, ListTip()}) : Text();
}

}  // namespace

void AttachTips(Application& app) {
    for (Table* table : app.Shown()) {
        const TextView columns =
            "Shift+Click sur l'entête de colonne = Inclure ou non une colonne lors du Copier/Coller."_t;
        if (table != &app.lvwOut) {
            table->SetBaseTip(Concat({CommonTip(), columns, kLineEnd, table->BaseTip()}));
        }
    }
    app.chkTips.OnClick = [&app] { ShowListTip(app); };
    ShowListTip(app);
}

}  // namespace swiftroll

// Every text of the window: French, whole, and said to those who hear the window instead of seeing it.
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QToolButton>

#include "mnemonics.h"
#include "window_fixture.h"

namespace swiftroll::test {
namespace {

class Texts : public WindowTest {
  protected:
    /// Every text that a user can read on the main window and its dialogs, by the name of what shows it.
    std::vector<std::pair<QString, QString>> All() {
        std::vector<std::pair<QString, QString>> texts;
        for (const QWidget* widget : Window().findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
                texts.emplace_back(name, button->text());
            } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
                texts.emplace_back(name, label->text());
            } else if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
                texts.emplace_back(name, box->title());
            }
            texts.emplace_back(name, widget->toolTip());
            texts.emplace_back(name, widget->accessibleName());
        }
        for (const QAction* action : Window().menuBar()->findChildren<QAction*>()) {
            texts.emplace_back(action->objectName(), action->text());
        }
        for (int i = 0; i < Window().Tabs().count(); ++i) {
            texts.emplace_back(QStringLiteral("tab"), Window().Tabs().tabText(i));
        }
        return texts;
    }
    /// Whether a widget stands on a page that can be scrolled to it.
    static bool IsScrolled(const QWidget& widget) {
        for (const QWidget* outer = &widget; outer != nullptr; outer = outer->parentWidget()) {
            if (qobject_cast<const QScrollArea*>(outer) != nullptr) return true;
        }
        return false;
    }
};

TEST_F(Texts, AreFrenchWithTheirAccents) {
    Start();
    // Words that lost their accents, and bytes that were taken for another encoding. "Ecrire", "Ecart" and
    // "A Propos" begin with a capital that the product writes without its accent.
    const QRegularExpression wrong(
        QStringLiteral(
            "\\b(entree|releve|modele|genere|generer|selection(?!s)|selectionner|deselection\\w*|separateur|"
            "caracteres?|parente|parametres?|deces|prenom|lieux? de naissance a|verifier|"
            "disponibilite|mises-a-jour|aine|a jour|epoux\\?|ou est|familles? a)\\b|Ã|Â|\\?\\?|\\x{FFFD}"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpression spacing(QStringLiteral("\\S[!?;](?!\\w)|« \\s|\\s{3,}\\S"));
    for (const auto& [name, text] : All()) {
        EXPECT_FALSE(wrong.match(text).hasMatch()) << name.toStdString() << ": " << text.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral(" ,"))) << name.toStdString() << ": " << text.toStdString();
        const bool isTip = text.contains(QLatin1Char('\n'));
        EXPECT_TRUE(isTip || !spacing.match(text).hasMatch())
            << name.toStdString() << ": " << text.toStdString();
    }
}

TEST_F(Texts, StandAsTheProductSaysThem) {
    Start();
    const std::pair<const char*, const char*> quoted[] = {
        {"cmdLoad", "Lire Tout"},
        {"cmdSaveGed", "Ecrire"},
        {"cmdSaveSwift", "Ecrire en Texte"},
        {"cmdCalcOutput", "Recalcul Sortie"},
        {"cmdFindPath", "Rech. Parenté"},
        {"cmdDrawKinship", "Ecrire Toutes +"},
        {"cmdHelp", "Documentation"},
        {"cmdExit", "Quitter"},
        {"cmdRecalcIn", "ReCalcule Lieu && Dates Min/Max dans \"Entrée\""},
        {"chkIncludeHeaders", "Inclure les noms de colonnes"},
        {"chkTrimSepar", "Supprimer derniers séparateurs"},
        {"chkUpperNames", "Afficher les NOMS en MAJUSCULES"},
        {"chkInvertNames", "Inversion Nom/Prénom"},
        {"chkDelAccents", "Compare sans accents, ni ponctuation, ni caractères spéciaux"},
        {"chkMaxLinks", "Le nombre de liaisons est > que"},
        {"chkTips", "Montrer les conseils (\"ToolTips\") dans la liste \"Sortie\"."},
        {"chkCheckUpdates", "Tester au démarrage si une nouvelle version est disponible."},
        {"cmdFont", "Fonte..."},
        {"optTabSpace(0)", "Tabulations"},
        {"cmdCopyGedIn2GedOut", "V"},
        {"cmdCopyTitle2kinship", ">"}};
    for (const auto& [name, text] : quoted) {
        EXPECT_EQ(ui::PlainCaption(Find<QAbstractButton>(name).text()),
                  ui::PlainCaption(QString::fromUtf8(text)))
            << name;
    }
    QStringList frames, tabs;
    for (const QGroupBox* box : Window().findChildren<QGroupBox*>()) frames << box->title();
    for (const char* title :
         {"Calcul des colonnes Lieux && Dates Min/Max", "Ordre de sélection des Lieux && Dates",
          "Dans le lieu complet, prendre :", "Uniquement pour lecture du GEDCOM",
          "Extension des Listes en sortie", "Informations à générer", "Couleur de fond",
          "Ne pas afficher les liens si : ", "Options de recherche"}) {
        EXPECT_TRUE(frames.contains(QString::fromUtf8(title))) << title;
    }
    for (int i = 0; i < Window().Tabs().count(); ++i) tabs << Window().Tabs().tabText(i);
    EXPECT_EQ(tabs.join(QLatin1Char('|')).toStdString(),
              "Entrée|Sortie|Famille Xref|Xref|Famille|Parenté|Opt. Format|Opt. Liens|Options");
    EXPECT_EQ(Window().windowTitle().toStdString(), "SwiftRoll (v3.4.0)");
}

TEST_F(Texts, AreWholeAtTheSmallestSizeAndEveryControlHasAName) {
    Start();
    Window().resize(Window().minimumSize());
    for (int tab = 0; tab < Window().Tabs().count(); ++tab) {
        Window().Tabs().setCurrentIndex(tab);
        QTest::qWait(1);
        for (const QWidget* widget : Window().findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->objectName().isEmpty()) continue;
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const bool isControl = button != nullptr || qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                   qobject_cast<const QComboBox*>(widget) != nullptr;
            if (!isControl || widget->objectName().startsWith(QStringLiteral("qt_"))) continue;
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
            if (button == nullptr || button->text().isEmpty()) continue;
            const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
            EXPECT_GE(button->width(), text) << widget->objectName().toStdString();
            if (IsScrolled(*button)) continue;
            const QPoint corner = button->mapTo(&Window(), button->rect().bottomRight());
            EXPECT_LT(corner.x(), Window().width())
                << widget->objectName().toStdString() << " on tab " << tab;
            EXPECT_LT(corner.y(), Window().height())
                << widget->objectName().toStdString() << " on tab " << tab;
        }
    }
}

}  // namespace
}  // namespace swiftroll::test

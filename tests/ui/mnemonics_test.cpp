// Letters for Alt, and the order of the Tab key.
#include "mnemonics.h"

#include <QFrame>
#include <QMenuBar>
#include <set>

#include "window_fixture.h"

namespace swiftroll::test {
namespace {

std::vector<std::string> Assigned(const QStringList& captions, const QString& taken = {}) {
    std::vector<std::string> shown;
    std::vector<ui::MnemonicBearer> bearers;
    for (const QString& caption : captions) {
        const std::size_t place = shown.size();
        shown.push_back(caption.toStdString());
        bearers.push_back(
            {caption, [&shown, place](const QString& text) { shown[place] = text.toStdString(); }});
    }
    ui::AssignMnemonics(bearers, taken);
    return shown;
}

TEST(Mnemonics, AreDifferentLettersAsFarAsTheyGoAndLeaveCaptionsAsTheyRead) {
    using Strings = std::vector<std::string>;
    EXPECT_EQ(
        Assigned({QStringLiteral("Parents"), QStringLiteral("P&arents"), QStringLiteral("Sauve && Envoie")}),
        (Strings{"&Parents", "P&arents", "&Sauve && Envoie"}));
    // The first one gives way to the second, which has no other letter.
    EXPECT_EQ(Assigned({QStringLiteral("ab"), QStringLiteral("a"), QStringLiteral("...")}),
              (Strings{"a&b", "&a", "..."}));
    EXPECT_EQ(Assigned({QStringLiteral("été ab")}, QStringLiteral("A")), (Strings{"é&té ab"}))
        << "no accents";
    EXPECT_EQ(Assigned({QStringLiteral("a"), QStringLiteral("a")}), (Strings{"&a", "&a"})) << "shared";
    EXPECT_EQ(ui::WithSameMnemonic(QStringLiteral("Ecrire && lire"), QStringLiteral("&Lire")),
              QStringLiteral("Ecrire && &lire"));
    EXPECT_EQ(ui::PlainCaption(QStringLiteral("Sauve && &Envoie")), QStringLiteral("Sauve & Envoie"));
}

}  // namespace
}  // namespace swiftroll::test

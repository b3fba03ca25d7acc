// The output format, how file names follow it, and the command that writes.
#include <gtest/gtest.h>

#include "shell/file_names.h"
#include "support/test_ports.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

using Texts = std::vector<Text>;

struct Format : testing::Test, TestMain {
    Texts Names() const { return {main.cboSwiftOut.Get(), main.cboFileModel.Get(), main.cboKinship.Get()}; }
    void Name(TextView out, TextView model, TextView kinship) {
        main.cboSwiftOut.SetText(out);
        main.cboFileModel.SetText(model);
        main.cboKinship.SetText(kinship);
    }
};

TEST(FileNames, OnlyTheExtensionOfTheNameItselfChanges) {
    const struct {
        TextView before, after;
    } cases[] = {{"", ".x"},        {"a", "a.x"},         {"a.b.c", "a.b.x"},     {"a.", "a.x"},
                 {".a", ".x"},      {"d.e/a", "d.e/a.x"}, {"d.e\\a", "d.e\\a.x"}, {"/d/a.b", "/d/a.x"},
                 {"d.e/", "d.e/.x"}};
    for (const auto& c : cases) EXPECT_EQ(modCommon::ChangeExtension(c.before, "x"), c.after) << c.before;
}

TEST_F(Format, NamesFollowTheFormat) {
    Name("/a.b/liste.1.txt", "/m.n/modele", "/k/arbre.svg");
    main.cboSaveSwift.SetListIndex(2);
    EXPECT_EQ(Names(), (Texts{"/a.b/liste.1.xml", "/m.n/modele.xsl", "/k/arbre.html"}));
    EXPECT_EQ(main.cmdSaveSwift.Caption, "Ecrire en XML");
    EXPECT_EQ(main.optOutExtension.Index(), 2);
    EXPECT_EQ(main.iOutFormat, 2);
    EXPECT_TRUE(main.txtINDEX.Enabled);
    EXPECT_TRUE(main.chkGenerXSL.Enabled);
    EXPECT_EQ(main.lblModel.Caption, "Fichier modèle  XSL"_t);
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif + XSL"_t);
    EXPECT_EQ(main.cboSwiftOut.Items().front(), "/a.b/liste.1.xml");
    EXPECT_EQ(main.cboFileModel.Items().front(), "/m.n/modele.xsl");
    EXPECT_EQ(main.cboKinship.Items().front(), "/k/arbre.html");
    // The option buttons do the same as the selector.
    main.optOutExtension.SetIndex(0);
    EXPECT_EQ(Names(), (Texts{"/a.b/liste.1.html", "/m.n/modele.html", "/k/arbre.html"}));
    EXPECT_EQ(main.cboSaveSwift.ListIndex(), 0);
    EXPECT_EQ(main.cmdSaveSwift.Caption, "Ecrire en HTML");
    EXPECT_EQ(main.lblModel.Caption, "Fichier modèle HTML"_t);
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif"_t);
    EXPECT_TRUE(main.txtINDEX.Enabled);
    EXPECT_FALSE(main.chkGenerXSL.Enabled);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(Format, EmptyNamesTakeTheirBase) {
    main.cboGedIn.SetText("/gens/famille.ged");
    Name("", "", "k");
    main.cboSaveSwift.SetListIndex(1);
    EXPECT_EQ(Names(), (Texts{"/gens/famille.txt", ".txt", "k.html"}));
    main.cboSwiftOut.SetText("/elsewhere/x");
    main.cmdCopyGedIn2SwiftOut.Click();
    EXPECT_EQ(main.cboSwiftOut.Get(), "/gens/famille.txt");
    EXPECT_EQ(main.cboSwiftOut.Items().front(), "/gens/famille.txt");
}

TEST_F(Format, OwnExtensionsAreUsedAndAnEmptyOneIsGivenBack) {
    main.cboSaveSwift.SetListIndex(0);
    Name("a", "b", "c");
    main.txtModelExtension[0].SetText("mod");
    main.txtOutExtension[0].SetFromText("htm");
    EXPECT_EQ(Names(), (Texts{"a.htm", "b.mod", "c.htm"}));
    const TextView standard[] = {"html", "txt", "xml"};
    for (std::size_t i = 0; i < 3; ++i) {
        main.txtOutExtension[i].SetFromText("");
        EXPECT_EQ(main.txtOutExtension[i].Get(), standard[i]);
        EXPECT_EQ(main.cboSwiftOut.Get(), "a." + Text(standard[i]));
    }
    EXPECT_EQ(main.cboKinship.Get(), "c.html");
}

TEST_F(Format, TheStylesheetIsAnOptionOfXml) {
    main.cboSaveSwift.SetListIndex(2);
    main.chkGenerXSL.SetChecked(false);
    EXPECT_FALSE(main.txtModelExtension[2].Enabled);
    EXPECT_EQ(main.lblModel.Caption, "Fichier modèle "_t);
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif"_t);
    main.chkGenerXSL.SetChecked(true);
    EXPECT_TRUE(main.txtModelExtension[2].Enabled);
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif + XSL"_t);
    EXPECT_EQ(main.iOutFormat, 2);
}

TEST_F(Format, TheWriteCommandAsksWhichRowsAndWhere) {
    main.cboSwiftOut.SetText("liste");
    main.cboSaveSwift.SetListIndex(0);
    dialogs.answers = {BoxAnswer::Cancel};
    main.cmdSaveSwift.Click();
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_EQ(dialogs.boxes[0].title, main.MainCaption() + Text(" - Création Relevé-vif"_t));
    EXPECT_EQ(dialogs.boxes[0].text,
              "Voulez-vous TOUT sortir, ou uniquement les lignes sélectionnées ?\r\n\r\nOui = Toutes les "
              "lignes\r\nNon = Uniquement les lignes sélectionnées"_t);
    EXPECT_EQ(dialogs.boxes[0].buttons, BoxButtons::YesNoCancel);
    EXPECT_TRUE(dialogs.fileRequests.empty());
    main.mnuSaveSwift.Click();
    ASSERT_EQ(dialogs.fileRequests.size(), 1u);
    EXPECT_TRUE(dialogs.fileRequests[0].save);
    EXPECT_EQ(dialogs.fileRequests[0].fileName, "liste.html");
    EXPECT_TRUE(main.bDialogCancelled);
    EXPECT_EQ(dialogs.boxes.size(), 2u);
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(Format, AMissingModelStopsTheCommandUnlessNoneIsNeeded) {
    for (const int format : {0, 1, 2}) {
        main.cboSaveSwift.SetListIndex(format);
        main.cboFileModel.SetText("/m/none");
        dialogs.boxes.clear();
        dialogs.files = {"out"};
        main.cmdSaveSwift.Click();
        ASSERT_EQ(dialogs.boxes.size(), 2u);
        EXPECT_EQ(dialogs.boxes[1].title, main.MainCaption() + " - NoModel");
        EXPECT_EQ(dialogs.boxes[1].text, "Le fichier modèle\r\n/m/none\r\nn'existe pas."_t);
        EXPECT_TRUE(files.contents.empty());
    }
    main.chkGenerXSL.SetChecked(false);
    dialogs.files = {"out"};
    main.cmdSaveSwift.Click();
    EXPECT_EQ(files.contents.size(), 1u);
}

}  // namespace
}  // namespace swiftroll::test

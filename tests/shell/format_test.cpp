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
    for (const auto& [before, after] :
         std::initializer_list<std::pair<TextView, TextView>>{{"", ".x"},
                                                              {"a", "a.x"},
                                                              {"a.b.c", "a.b.x"},
                                                              {".a", ".x"},
                                                              {"d.e\\a", "d.e\\a.x"},
                                                              {"d.e/", "d.e/.x"}}) {
        EXPECT_EQ(modCommon::ChangeExtension(before, "x"), after) << before;
    }
}

TEST_F(Format, NamesAndOptionsFollowTheFormat) {
    Name("/a.b/liste.1.txt", "/m.n/modele", "/k/arbre.svg");
    main.cboSaveSwift.SetListIndex(2);
    EXPECT_EQ(Names(), (Texts{"/a.b/liste.1.xml", "/m.n/modele.xsl", "/k/arbre.html"}));
    EXPECT_EQ(main.cmdSaveSwift.Caption, "Ecrire en XML");
    EXPECT_TRUE(main.txtINDEX.Enabled && main.chkGenerXSL.Enabled && main.chkStrictXml.Enabled);
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif + XSL"_t);
    EXPECT_EQ(main.cboSwiftOut.Items().front(), "/a.b/liste.1.xml");
    main.chkGenerXSL.SetChecked(false);
    EXPECT_FALSE(main.txtModelExtension[2].Enabled);
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif"_t);
    main.chkGenerXSL.SetChecked(true);
    EXPECT_TRUE(main.txtModelExtension[2].Enabled);
    // The option buttons do the same as the selector.
    main.optOutExtension.SetIndex(0);
    EXPECT_EQ(Names(), (Texts{"/a.b/liste.1.html", "/m.n/modele.html", "/k/arbre.html"}));
    EXPECT_EQ(main.cmdSaveSwift.Caption, "Ecrire en HTML");
    EXPECT_EQ(main.lblOut.Caption, "Sortie Relevé-vif"_t);
    EXPECT_FALSE(main.chkGenerXSL.Enabled || main.chkStrictXml.Enabled);
    main.cboSaveSwift.SetListIndex(1);
    EXPECT_FALSE(main.txtINDEX.Enabled);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(Format, OwnExtensionsAreUsedAndAnEmptyOneIsGivenBack) {
    main.cboSaveSwift.SetListIndex(0);
    Name("a", "b", "c");
    main.txtModelExtension[0].SetText("mod");
    main.txtOutExtension[0].SetFromText("htm");
    EXPECT_EQ(Names(), (Texts{"a.htm", "b.mod", "c.htm"}));
    main.txtOutExtension[0].SetFromText("");
    EXPECT_EQ(Names(), (Texts{"a.html", "b.mod", "c.html"}));
    // Who only passes through the fields keeps the format.
    for (std::size_t i = 0; i < 3; ++i) {
        main.SetFocus(main.txtOutExtension[i]);
        main.SetFocus(main.txtModelExtension[i]);
    }
    main.SetFocus(main.txtOutExtension[2]);
    main.txtOutExtension[2].SetText("");
    main.SetFocus(main.txtINDEX);
    EXPECT_EQ(main.optOutExtension.Index(), 0);
    main.SetFocus(main.txtOutExtension[2]);
    main.txtOutExtension[2].SetText("rss");
    main.SetFocus(main.txtINDEX);
    EXPECT_EQ(Names(), (Texts{"a.rss", "b.xsl", "c.html"}));
}

TEST_F(Format, TheWriteCommandAsksWhichRowsAndWhere) {
    main.cboSwiftOut.SetText("liste");
    main.cboSaveSwift.SetListIndex(0);
    dialogs.answers = {BoxAnswer::Cancel};
    main.cmdSaveSwift.Click();
    ASSERT_EQ(dialogs.boxes.size(), 1u);
    EXPECT_TRUE(dialogs.boxes[0].text.starts_with("Voulez-vous TOUT sortir"));
    EXPECT_TRUE(dialogs.fileRequests.empty());
    main.mnuSaveSwift.Click();
    ASSERT_EQ(dialogs.fileRequests.size(), 1u);
    EXPECT_TRUE(dialogs.fileRequests[0].save);
    EXPECT_EQ(dialogs.fileRequests[0].fileName, "liste.html");
    EXPECT_TRUE(main.bDialogCancelled);
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

// Whole small documents, byte for byte, and what is left of them on a full disk.
#include "writers/writers_fixture.h"

namespace swiftroll::test {
namespace {

struct Documents : Writing {
    Documents() {
        files.readSize = 7;  // The model comes in blocks.
        Arrange(main.lvwOut, {"LastName", "MarrPlace", "DateMin"});
        AddIndividual(main, "@1@", {{"LastName", "Dupont"}, {"DateMin", "1800"}, {"MarrPlace", "Évry"_t}});
        AddIndividual(main, "@2@", {{"LastName", "DUPONT"}, {"FirstName", "Anne"}});
        AddIndividual(main, "@3@", {{"LastName", "Durand & <fils>"}, {"MarrPlace", "Lyon"}});
        main.cmdCalcOutput.Click();
    }
};

TEST_F(Documents, Html) {
    const TextView model =
        "<!-- %INDEX% -->\r\n<table><TR class=\"e\"><Td class=\"c\"><b>%ELEMENT%</b></Td></TR>\r\n<tbody>\n"
        "<tr><td>%ELEMENT%</td>\r\n</tr></table>%INDEX%\n";
    const Text index = "<A href=\"#SR_D\">D</A>&nbsp;";
    const Text document =
        Concat({"<!-- ", index, " -->\r\n<table>",
                "<TR class=\"e\"><Td class=\"c\"><b>Nom</b></Td><Td class=\"c\"><b>Mar. Lieu</b></Td>"
                "<Td class=\"c\"><b>Date Min</b></Td><td align=\"right\" class=\"c\"><b>Nbre</b></Td></TR>"
                "\r\n<tbody>\n"
                "<tr><A NAME=\"SR_D\"></A><td>DUPONT</td><td>&nbsp;</td><td>&nbsp;</td>"
                "<td align=\"right\">     1</td>\r\n</tr>",
                "<tr><td>Dupont</td><td>Évry</td><td>1800</td><td align=\"right\">     1</td>\r\n</tr>"_t,
                "<tr><td>Durand & <fils></td><td>Lyon</td><td>&nbsp;</td>"
                "<td align=\"right\">     1</td>\r\n</tr></table>",
                index, "\n"});
    EXPECT_EQ(Write(kHtml, model), document);
    EXPECT_TRUE(Told().empty());
    EXPECT_FALSE(main.bWaitCursor);
    // Moved columns change nothing before the next computation.
    Arrange(main.lvwOut, {"DateMin", "LastName", "Sex", "MarrPlace", "ID"});
    EXPECT_EQ(Write(kHtml, model), document);
}

TEST_F(Documents, ABlankBehindTheMarkerPadsTextAlone) {
    EXPECT_EQ(
        Write(kText, "%INDEX%\n<tr><td>%ELEMENT%;</td>\n</tr>--\n<tr>[<td>%ELEMENT%;</td>]\r\n</tr>fin"),
        "%INDEX%\nNom;Mar. Lieu;Date Min;Nbre;\n--\n"
        "[DUPONT; ; ;     1;]\r\n[Dupont;Évry;1800;     1;]\r\n[Durand & <fils>;Lyon; ;     1;]\r\nfin"_t);
    EXPECT_EQ(Write(kText, "<tr><td>%ELEMENT% |</td>\n</tr><tr><td>%ELEMENT% |</td>\n</tr>"),
              "Nom            |Mar. Lieu|Date Min|Nbre  |\n"
              "DUPONT         |         |        |     1|\n"
              "Dupont         |Évry     |1800    |     1|\n"
              "Durand & <fils>|Lyon     |        |     1|\n"_t);
    EXPECT_NE(Write(kHtml, "<tr><td>%ELEMENT% </td></tr><tr><td>%ELEMENT% </td></tr>")
                  .find("<tr><A NAME=\"SR_D\"></A><td>DUPONT</td><td>&nbsp;</td>"),
              Text::npos);
    EXPECT_EQ(
        Write(kHtml, "<tr><td>%ELEMENT%</td></tr><tr><td>%ELEMENT% </td></tr>", BoxAnswer::No),
        "<tr><td>%ELEMENT%</td><td>%ELEMENT%</td><td>%ELEMENT%</td><td align=\"right\">%ELEMENT%</td></tr>");
}

TEST_F(Documents, XmlWithItsStylesheet) {
    main.chkGenerXSL.SetChecked(true);
    EXPECT_EQ(Write(kXml,
                    "%INDEX%\n<tr><td>%ELEMENT%</td></tr>\n<for>\n"
                    "<tr><td x><v s=\"%ELEMENT%\"/><if t=\"not(%ELEMENT%)\"/></td></tr></for>"),
              WithCrLf("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
                       "<?xml:stylesheet type=\"text/xsl\" href=\"list.xsl\"?>\n"
                       "<SwiftRoll>\n"
                       " <INDI>\n  <tag>SR_D</tag>\n  <NOM>DUPONT</NOM>\n  <MARLIEU></MARLIEU>\n"
                       "  <DATEMIN></DATEMIN>\n  <NBRE>     1</NBRE>\n </INDI>\n"
                       " <INDI>\n  <NOM>Dupont</NOM>\n  <MARLIEU>Évry</MARLIEU>\n"
                       "  <DATEMIN>1800</DATEMIN>\n  <NBRE>     1</NBRE>\n </INDI>\n"
                       " <INDI>\n  <NOM>Durand & <fils></NOM>\n  <MARLIEU>Lyon</MARLIEU>\n"
                       "  <DATEMIN></DATEMIN>\n  <NBRE>     1</NBRE>\n </INDI>\n"
                       "</SwiftRoll>\n"_t));
    EXPECT_EQ(
        files.contents["out/list.xsl"],
        "<A href=\"#SR_D\">D</A><xsl:text>&#xA0;</xsl:text>\n"
        "<tr><td>Nom</td><td>Mar. Lieu</td><td>Date Min</td><td align=\"right\">Nbre</td></tr>\n<for>\n<tr>"
        "<td x><v s=\"NOM\"/><if t=\"not(NOM)\"/></td><td x><v s=\"MARLIEU\"/><if t=\"not(MARLIEU)\"/></td>"
        "<td x><v s=\"DATEMIN\"/><if t=\"not(DATEMIN)\"/></td><td x><v s=\"NBRE\"/><if t=\"not(NBRE)\"/></td>"
        "</tr></for>");
    EXPECT_TRUE(Told().empty());
}

TEST_F(Documents, XmlNamesHaveNoAccents) {
    Arrange(main.lvwOut, {"IslandNr", "DeathMin"});
    main.cmdCalcOutput.Click();
    EXPECT_NE(Write(kXml, "").find("  <tag>SR__</tag>\r\n  <NDILOT></NDILOT>\r\n  <DECESMIN></DECESMIN>\r\n"),
              Text::npos);
}

TEST_F(Documents, OnlyTheMarkedRows) {
    const TextView model = "<tr><td>%ELEMENT% </td></tr>\n<tr>-<td>%ELEMENT% </td></tr>\n";
    const Text nothing = "Nom            Mar. LieuDate MinNbre  \n";
    EXPECT_EQ(Write(kText, model, BoxAnswer::No), nothing + "\n");
    EXPECT_EQ(Write(kXml, "", BoxAnswer::No),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<SwiftRoll>\r\n</SwiftRoll>\r\n");
    main.lvwOut.Item(2).SetChecked(true);
    main.lvwOut.Item(3).SetSelected(true);
    EXPECT_EQ(Write(kText, model, BoxAnswer::No),
              nothing + Text("-Dupont         Évry     1800         1"
                             "-Durand & <fils>Lyon                  1\n"_t));
    const Text xml = Write(kXml, "", BoxAnswer::No);
    EXPECT_NE(xml.find("<SwiftRoll>\r\n <INDI>\r\n  <tag>SR_D</tag>\r\n  <NOM>Dupont</NOM>"), Text::npos)
        << xml;
}

TEST_F(Writing, VariablesOfTheDocument) {
    Read(
        WithCrLf("0 HEAD\n1 CHAR ANSI\n0 @1@ INDI\n1 NAME /%DATE_SHORT%/\n0 @2@ INDI\n1 NAME /A/\n0 TRLR\n"));
    Arrange(main.lvwOut, {"LastName"});
    main.cmdCalcOutput.Click();
    main.cboGedIn.SetText("C:\\gens\\a.b/c%TIME_LONG%.ged");
    const Text lines = main.pnlLines.Get();
    const Text model =
        Concat({"%SWIFTROLL%|%INDIVIDUALS%|%GEDCOM_LINES%|%GEDCOM_FILENAME%|%DATE_LONG%|%DATE_MEDIUM%|%DATE_"
                "SHORT%\n",
                "<tr>%TIME_LONG%<td>%ELEMENT%;</td>%TIME_SHORT%\n</tr>%individuals%%INDIVIDUALS%\n"
                "<tr>%TIME_SHORT% <td>%ELEMENT%;</td>%TIME_LONG%\n</tr>%DATE_MEDIUM% %TIME_LON%"});
    EXPECT_EQ(Write(kText, model),
              Concat({"<a href=\"", main.sWebAddress, "\">SwiftRoll</a> (v", main.sVersion, ")|2|",
                      lines.substr(lines.rfind(' ') + 1),
                      "|c14:05:09.ged|dimanche 22 novembre 2026|22-nov.-26|22/11/2026\n",
                      "%TIME_LONG%Nom;Nbre;14:05\n%individuals%2\n", "14:05 A;     1;14:05:09\n",
                      "14:05 22/11/2026;     1;14:05:09\n", "22-nov.-26 %TIME_LON%"}));
    main.cboGedIn.SetText("C:\\gens\\a.ged");
    EXPECT_EQ(Write(kHtml, Concat({"%GEDCOM_FULL_FILENAME%", kBareHtml}), BoxAnswer::No).substr(0, 18),
              "C:\\gens\\a.gedhead<");
}

const Text kOpenOutput = Text("Erreur d'écriture dans le fichier out/list.html."_t);

TEST_F(Writing, AFullDiskLeavesTheBeginningAndIsKnown) {
    ListSurnames({"A", "B"});
    for (const int format : {kHtml, kXml}) {
        const Text whole = Write(format, kBareHtml);
        EXPECT_TRUE(whole.ends_with(format == kHtml ? "tail" : "</SwiftRoll>\r\n"));
        for (std::size_t room = 0; room < whole.size(); ++room) {
            files.room = room;
            EXPECT_EQ(Write(format, kBareHtml), whole.substr(0, room));
            EXPECT_FALSE(main.bWaitCursor);
            if (format == kXml) {
                EXPECT_FALSE(main.writing.bWriteComplete) << room;
                EXPECT_TRUE(Told().empty());
                continue;
            }
            ASSERT_EQ(Told().size(), 1u) << room;
            const bool inHead = room < TextView("head").size();
            EXPECT_TRUE(inHead ? Told()[0] == kOpenOutput : Told()[0].ends_with("|out/list.html/0|")) << room;
        }
        // What failed once is forgotten at the next writing.
        files.room = whole.size();
        EXPECT_EQ(Write(format, kBareHtml), whole);
        EXPECT_TRUE(main.writing.bWriteComplete);
        files.room = static_cast<std::size_t>(-1);
    }
}

}  // namespace
}  // namespace swiftroll::test

// The alphabetical index: its links, and the anchors that they lead to.
#include "tables/columns.h"
#include "writers/writers_fixture.h"

namespace swiftroll::test {
namespace {

const Text kIndexed = Concat({"%INDEX%", kBareHtml});

/// What stands behind each occurrence of `before`, up to the next quotation mark or "<".
Texts Names(TextView document, TextView before) {
    Texts names;
    for (auto at = document.find(before); at != TextView::npos; at = document.find(before, at + 1)) {
        const TextView rest = document.substr(at + before.size());
        names.emplace_back(rest.substr(0, rest.find_first_of("\"<")));
    }
    return names;
}
Texts Links(TextView html) { return Names(html, "<A href=\"#SR_"); }
Texts Anchors(TextView html) { return Names(html, "<A NAME=\"SR_"); }
Texts Tags(TextView xml) { return Names(xml, "<tag>SR_"); }

TEST_F(Writing, EveryEntryHasItsLinkAndItsAnchor) {
    ListSurnames({"Durand", "dupont", "Li", "Le Gall", "MARTIN", "Le Bris", "", "Dupont"});
    const struct {
        TextView length;
        Texts entries;
    } cases[] = {
        {"1", {"_", "D", "L", "M"}},
        {"2", {"_", "DU", "LE", "LI", "MA"}},
        {"4", {"_", "DUPO", "DURA", "LE_B", "LE_G", "LI_", "MART"}},
        {" 30", {"_", "DUPONT_", "DURAND_", "LE_BRIS_", "LE_GALL_", "LI_", "MARTIN_"}},
    };
    for (const auto& c : cases) {
        main.txtINDEX.SetText(c.length);
        const Text html = Write(kHtml, kIndexed);
        EXPECT_EQ(Links(html), c.entries) << c.length;
        EXPECT_EQ(Anchors(html), c.entries) << c.length;
        EXPECT_EQ(Tags(Write(kXml, "")), c.entries) << c.length;
    }
    EXPECT_TRUE(Write(kHtml, kIndexed)
                    .starts_with("<A href=\"#SR__\">_</A>&nbsp;<A href=\"#SR_DUPONT_\">DUPONT_</A>&nbsp;"));
}

TEST_F(Writing, NoIndexForZeroNorForTextNorBetweenTheRows) {
    ListSurnames({"A", "B"});
    main.txtINDEX.SetText("0");
    const Text html = Write(kHtml, kIndexed);
    EXPECT_TRUE(html.starts_with("%INDEX%head")) << html;
    EXPECT_EQ(Anchors(html), (Texts{""}));
    EXPECT_EQ(Tags(Write(kXml, "")), (Texts{""}));
    main.txtINDEX.SetText("1");
    EXPECT_TRUE(Write(kText, kIndexed).starts_with("%INDEX%headNomNbre"));
    const TextView between = "<tr><td>%ELEMENT%</td></tr>%INDEX%<tr><td>%ELEMENT%</td></tr>";
    EXPECT_NE(Write(kHtml, between).find("</tr>%INDEX%<tr>"), Text::npos);
}

TEST_F(Writing, EntriesFollowTheRowsThatAreWritten) {
    ListSurnames({"A1", "B", "A2", "C", "D"});
    for (const auto& [row, cell] : {std::pair{1, "1"}, {2, "3"}, {3, "5"}, {4, "2"}, {5, "4"}}) {
        main.lvwOut.Item(row).SetCell(Out::Number, TextView(cell));
    }
    main.lvwOut.Item(1).SetSelected(true);
    main.lvwOut.Item(3).SetChecked(true);
    main.lvwOut.Item(5).SetChecked(true);
    main.lvwOut.SortBy(Out::Number, 0);
    const std::pair<BoxAnswer, Texts> cases[] = {{BoxAnswer::Yes, {"A", "C", "A", "D", "B"}},
                                                 {BoxAnswer::No, {"A", "D", "B"}}};
    for (const auto& [rows, entries] : cases) {
        const Text html = Write(kHtml, kIndexed, rows);
        EXPECT_EQ(Links(html), entries);
        EXPECT_EQ(Anchors(html), entries);
        EXPECT_EQ(Tags(Write(kXml, "", rows)), entries);
    }
}

TEST_F(Writing, ABadLengthIsReportedOnceAPass) {
    ListSurnames({"A", "B", "C"});
    for (const TextView length : {"1x", "", "-1", "32768"}) {
        main.txtINDEX.SetText(length);
        const Text html = Write(kHtml, kIndexed);
        EXPECT_EQ(Told().size(), 2u) << length;
        EXPECT_TRUE(html.starts_with("head<tr><td>Nom</td>")) << html;
        EXPECT_TRUE(html.ends_with("<td>C</td><td align=\"right\">     1</td></tr>tail")) << html;
        EXPECT_EQ(Tags(Write(kXml, "")), Texts{});
        EXPECT_EQ(Told().size(), 1u) << length;
    }
}

}  // namespace
}  // namespace swiftroll::test

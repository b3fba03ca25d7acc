// Models cut round their two sample rows.
#include "writers/model.h"

#include <random>

#include "writers/writers_fixture.h"

namespace swiftroll::test {
namespace {

using modGenFileFromModel::ModelPieces;
using modGenFileFromModel::OutFormat;
using modGenFileFromModel::SplitModelText;

constexpr OutFormat kFormats[] = {OutFormat::Html, OutFormat::Text, OutFormat::Xsl};

Texts All(const ModelPieces& p) {
    return {p.sModelHead,     p.sModelRow1Open, p.sModelCell1,     p.sModelRow1Close, p.sModelBetween,
            p.sModelRow2Open, p.sModelCell2,    p.sModelRow2Close, p.sModelTail};
}

Text Joined(const ModelPieces& pieces) {
    Text joined;
    for (const Text& piece : All(pieces)) joined += piece;
    return joined;
}

Text WithoutTags(TextView text) {
    Text out(text);
    for (const TextView tag : {"<tr>", "</tr>", "<td>", "</td>"}) out = ReplaceAll(out, tag, "");
    return out;
}

TEST(SplitModel, CutsWhereTheTagsStandAndKeepsEveryByte) {
    const Text model =
        "<html>\r\n<tr><td>no row</td></tr>\n<TABLE><Tr class=\"a\"> <TD x>lead</TD><tD "
        "y>a%ELEMENT%b<i></TD>x<td>c"
        "</td></tR>\r\n\tbetween\n<tr><td>%ELEMENT%</td></tr >\n</tr><tr><td>%ELEMENT%</td></tr>";
    for (const OutFormat format : {OutFormat::Html, OutFormat::Xsl}) {
        const auto pieces = SplitModelText(model, format);
        ASSERT_TRUE(pieces);
        EXPECT_EQ(All(*pieces),
                  (Texts{"<html>\r\n<tr><td>no row</td></tr>\n<TABLE>", "<Tr class=\"a\"> <TD x>lead</TD>",
                         "<tD y>a%ELEMENT%b<i></TD>", "x<td>c</td></tR>", "\r\n\tbetween\n", "<tr>",
                         "<td>%ELEMENT%</td>", "</tr >\n</tr>", "<tr><td>%ELEMENT%</td></tr>"}));
    }
}

TEST(SplitModel, TheTagsOfATextModelOnlyMarkThePlaces) {
    const auto pieces = SplitModelText(
        "<td>\n<tr>[<td>%ELEMENT% ;</td>]\r\n</tr>-\n<TR><tr><Td>%ELEMENT%</Td></tr>\n<tr>", OutFormat::Text);
    ASSERT_TRUE(pieces);
    EXPECT_EQ(All(*pieces), (Texts{"<td>\n", "[", "%ELEMENT% ;", "]\r\n", "-\n<TR>", "", "<Td>%ELEMENT%</Td>",
                                   "", "\n<tr>"}));
}

TEST(SplitModel, WhatLacksATagOrAMarkerIsNoModel) {
    const Text row = "<tr><td>%ELEMENT%</td></tr>";
    Texts bad = {"", row, "<tr><td>%ELEMENT%</td><td>%ELEMENT%</td></tr>", "<tr><td>%ELEMENT%</td>" + row,
                 "<td><tr>%ELEMENT%</td></tr>" + row.substr(4)};
    for (const TextView second :
         {"%ELEMENT%", "%ELEMENT%</td></tr>", "<td>%ELEMENT%</td></tr>", "<tr>%ELEMENT%</td></tr>",
          "<tr><td>%ELEMENT%</tr>", "<tr><td>%ELEMENT%</td>", "<tr><td>%element%</td></tr>"}) {
        bad.push_back(row + Text(second));
    }
    for (const Text& model : bad) {
        for (const OutFormat format : kFormats) EXPECT_FALSE(SplitModelText(model, format)) << model;
    }
    for (const TextView opening : {"<tr x><td>", "<tr><td x>", "<tr ><td>"}) {
        const Text model = row + Concat({opening, "%ELEMENT%</td></tr>"});
        EXPECT_TRUE(SplitModelText(model, OutFormat::Html)) << model;
        EXPECT_FALSE(SplitModelText(model, OutFormat::Text)) << model;
    }
}

TEST(SplitModel, PiecesOfAnyModelGiveItBack) {
    const TextView junk[] = {"<tr>",  "<TR ",  ">",    "</tr>", "<td>",
                             "<td x", "</TD>", "\r\n", "x",     "%ELEMENT%"};
    const TextView row[] = {"<tr>", "<td>", "%ELEMENT%", "</td>", "</tr>"};
    std::mt19937 random(1804);
    int split = 0;
    for (int pass = 0; pass < 10000; ++pass) {
        Text model;
        for (std::size_t i = 0; i <= 2 * std::size(row); ++i) {
            for (auto left = random() % 3; left > 0; --left) model += junk[random() % std::size(junk)];
            if (random() % 20 > 0) model += row[i % std::size(row)];
        }
        for (const OutFormat format : kFormats) {
            const auto pieces = SplitModelText(model, format);
            if (!pieces) continue;
            ++split;
            if (format == OutFormat::Text) {
                ASSERT_EQ(WithoutTags(Joined(*pieces)), WithoutTags(model)) << model;
            } else {
                ASSERT_EQ(Joined(*pieces), model);
                // The number cell relies on it.
                ASSERT_TRUE(LowerCaseAscii(pieces->sModelCell1).starts_with("<td")) << model;
                ASSERT_TRUE(LowerCaseAscii(pieces->sModelCell2).starts_with("<td")) << model;
            }
            for (const Text* cell : {&pieces->sModelCell1, &pieces->sModelCell2}) {
                ASSERT_NE(cell->find("%ELEMENT%"), Text::npos) << model;
            }
        }
    }
    EXPECT_GT(split, 1000);
}

TEST_F(Writing, ABadModelIsToldAndNothingIsTouched) {
    ListSurnames({"A"});
    files.contents["out/list.html"] = files.contents["out/list.txt"] = "before";
    EXPECT_EQ(Write(kHtml, "<tr><td>%ELEMENT%</td></tr>"), "before");
    ASSERT_EQ(Told().size(), 1u);
    EXPECT_NE(Told()[0].find("\r\n<tr ... <td ... %ELEMENT% ... </td> ... </tr> ... <tr ... <td"),
              Text::npos);
    EXPECT_EQ(Write(kText, ""), "before");
    ASSERT_EQ(Told().size(), 1u);
    EXPECT_NE(Told()[0].find("\r\n<tr> ... <td> ... %ELEMENT% ... </td> ... </tr> ... <tr> ... <td>"),
              Text::npos);
    EXPECT_FALSE(main.bWaitCursor);
}

}  // namespace
}  // namespace swiftroll::test

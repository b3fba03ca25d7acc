// Files that cannot be written, wholly or in part.
#include "writers/writers_fixture.h"

namespace swiftroll::test {
namespace {

const Text kOpenOutput = Text("Erreur d'écriture dans le fichier out/list.html."_t);

TEST_F(Writing, AFileThatCannotBeOpenedIsTold) {
    ListSurnames({"A"});
    files.contents["out/list.html"] = "before";
    files.readOnly.insert("out/list.html");
    EXPECT_EQ(Write(kHtml, kBareHtml), "before");
    EXPECT_EQ(Told(), Texts{kOpenOutput});
    EXPECT_EQ(dialogs.boxes.back().title, main.MainCaption() + " - OpenOutput");
    EXPECT_FALSE(main.bWaitCursor);
}

TEST_F(Writing, AFullDiskIsToldInTheHeadAndReportedLater) {
    ListSurnames({"A", "B"});
    const Text whole = Write(kHtml, kBareHtml);
    ASSERT_TRUE(whole.ends_with("tail"));
    for (std::size_t room = 0; room < whole.size(); ++room) {
        files.room = room;
        EXPECT_EQ(Write(kHtml, kBareHtml), whole.substr(0, room));
        ASSERT_EQ(Told().size(), 1u) << room;
        if (room < TextView("head").size()) {
            EXPECT_EQ(Told()[0], kOpenOutput);
        } else {
            EXPECT_TRUE(Told()[0].ends_with("|out/list.html/0|")) << Told()[0];
        }
        EXPECT_FALSE(main.bWaitCursor);
    }
}

TEST_F(Writing, XmlSkipsWhatFailsAndSaysSoToItsCaller) {
    ListSurnames({"A", "B"});
    const Text whole = Write(kXml, "");
    EXPECT_TRUE(main.bWriteComplete);
    for (const std::size_t room : {std::size_t{0}, std::size_t{50}, whole.size() - 1}) {
        files.room = room;
        EXPECT_EQ(Write(kXml, ""), whole.substr(0, room));
        EXPECT_FALSE(main.bWriteComplete);
        EXPECT_TRUE(Told().empty());
    }
    files.room = whole.size();
    EXPECT_EQ(Write(kXml, ""), whole);
    EXPECT_TRUE(main.bWriteComplete);
    files.contents.erase("out/list.xml");
    files.readOnly.insert("out/list.xml");
    EXPECT_EQ(Write(kXml, ""), "no file");
    EXPECT_FALSE(main.bWriteComplete);
    EXPECT_TRUE(Told().empty());
    // What failed once is forgotten at the next writing.
    Write(kHtml, kBareHtml);
    EXPECT_TRUE(main.bWriteComplete);
}

}  // namespace
}  // namespace swiftroll::test

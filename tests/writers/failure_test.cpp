// Files that cannot be written, wholly or in part.
#include "writers/writers_fixture.h"

namespace swiftroll::test {
namespace {

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

// Drawings that would fill the disk are asked about first.
#include "kinship/kinship_fixture.h"

namespace swiftroll::test {
namespace {

/// Couples of siblings, each the parents of the next one: paths double with every generation.
Text Siblings(int generations) {
    std::vector<Text> people, families;
    for (int i = 0; i <= generations; ++i) {
        const Text n = Decimal(i), next = Decimal(i + 1);
        people.insert(people.end(), {Concat({"M", n, " m"}), Concat({"W", n, " f"})});
        families.push_back(Concat({"M", n, " W", n}));
        if (i < generations) families.back() += Concat({" M", next, " W", next});
    }
    return FamilyFile(people, families);
}

struct LargeDrawing : AfterRead {
    LargeDrawing() : AfterRead(Siblings(40)) {
        events.onYield = [this] {
            if (main.kinshipSearch.lNrLinks >= 500) main.RequestAbort();
        };
        Find("M0", "W40");
        events.onYield = nullptr;
    }
    /// Draws all paths into a file; its size, 0 where there is none. `isAsked` tells of a question.
    std::size_t Draw(const Text& name, BoxAnswer answer) {
        files.contents.erase(name);
        dialogs.boxes.clear();
        dialogs.files = {name};
        dialogs.answers = {answer};
        main.mnuDrawKinshipAll.Click();
        isAsked = !dialogs.boxes.empty() && dialogs.boxes[0].topic == BoxTopic::LargeFile;
        return files.contents[name].size();
    }
    bool isAsked = false;
};

TEST(LargeDrawings, AreAskedAboutWhereTheyWouldTakeHalfOfTheDisk) {
    LargeDrawing t;
    for (const Text name : {"/k.html", "/k.svg", "/k.pdf"}) {
        t.files.free = 1'000'000;
        EXPECT_EQ(t.Draw(name, BoxAnswer::No), 0u);
        ASSERT_TRUE(t.isAsked) << name;
        EXPECT_NE(t.dialogs.boxes[0].text.find("1 Mo de libre"), Text::npos) << t.dialogs.boxes[0].text;
        t.main.drawing.lMostDrawings = 10;
        EXPECT_GT(t.Draw(name, BoxAnswer::No), 0u);
        EXPECT_FALSE(t.isAsked) << "few drawings are small";
        t.main.drawing.lMostDrawings = 0;
    }
    t.files.free = std::nullopt;
    const std::size_t size = t.Draw("/k.html", BoxAnswer::No);
    EXPECT_GT(size, 0u);
    EXPECT_FALSE(t.isAsked) << "pipes and devices have no room to fill";
    t.files.free = size;
    EXPECT_EQ(t.Draw("/k.html", BoxAnswer::Yes), size);
    EXPECT_TRUE(t.isAsked);
    t.files.free = 3 * size;
    EXPECT_EQ(t.Draw("/k.html", BoxAnswer::No), size) << "the estimate is near";
}

}  // namespace
}  // namespace swiftroll::test

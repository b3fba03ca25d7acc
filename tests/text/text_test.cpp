#include <gtest/gtest.h>

#include "text/code_page.h"
#include "text/edit.h"
#include "text/fold.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

TEST(CodePage, EveryByteComesBackFromUtf8) {
    for (int code = 0; code < 256; ++code) {
        const Text text(1, static_cast<char>(code));
        EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << code;
    }
}

TEST(CodePage, FileNamesOfAnyBytesComeBack) {
    for (const std::string name : {"été.ged", "日本.ged", "\xff\xfe", "\xc2\x81", "\xe2\x82", "a\x81z", "œ€"}) {
        EXPECT_EQ(FileNameFromText(FileNameToText(name)), name);
    }
    EXPECT_EQ(FileNameToText("été.ged"), "été.ged"_t);
}

}  // namespace
}  // namespace swiftroll

#include "extract/background_writer.h"

#include <gtest/gtest.h>

#include "support/kind_of.h"
#include "text/failure.h"

namespace swiftroll::modSaveGed {
namespace {

/// Takes some pieces, then says once that the disk is full.
struct FillingFile : File {
    explicit FillingFile(int room) : left(room) {}
    std::size_t Read(char*, std::size_t) override { return 0; }
    void Write(TextView bytes) override {
        if (left-- == 0) throw Failure(FailureKind::FileAccess);
        written += bytes;
    }
    std::int64_t Length() override { return 0; }
    void Close() override {}
    int left;
    Text written;
};

Text Numbers(int first, int last) {
    Text all;
    for (int i = first; i < last; ++i) all += std::to_string(i) + '\n';
    return all;
}

TEST(BackgroundWriter, KeepsTheOrderOfPiecesOfAllSizes) {
    FillingFile file(-1);
    BackgroundWriter writer(file);
    const Text small = Numbers(0, 10), large = Numbers(10, 1'000'000);
    Text expected;
    for (int round = 0; round < 3; ++round) {
        writer.Write(small);
        writer.Write(large);
        expected += small + large;
    }
    writer.Finish();
    EXPECT_EQ(file.written, expected);
}

TEST(BackgroundWriter, NothingFollowsAPieceThatFailed) {
    FillingFile file(1);
    BackgroundWriter writer(file);
    const Text large = Numbers(0, 1'000'000);
    EXPECT_EQ(test::KindOf([&] {
                  for (int round = 0; round < 4; ++round) writer.Write(large);
              }),
              FailureKind::FileAccess);
    const Text soFar = file.written;
    writer.Write("more");
    writer.Finish();  // told once
    EXPECT_EQ(file.written, soFar);
    EXPECT_EQ(soFar, large);
}

}  // namespace
}  // namespace swiftroll::modSaveGed

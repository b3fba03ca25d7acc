#pragma once

#include <gtest/gtest.h>

#include "gedcom/line_reader.h"
#include "support/test_ports.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {

/// An application that has read `text`, whose lines end in "\n" here and in CR LF in the file.
struct AfterReading : TestMain {
    explicit AfterReading(TextView text) { Read(WithCrLf(text)); }
};

/// A file of one individual for each body of sub-lines, "@I1@" and so on, and a closing line.
inline Text Individuals(const std::vector<Text>& bodies) {
    Text file;
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        file += Concat({"0 @I", Decimal(static_cast<std::int64_t>(i + 1)), "@ INDI\n", bodies[i]});
    }
    return file + "0 TRLR\n";
}

/// The two sides of a case written as "what is read -> what comes of it".
inline std::pair<TextView, TextView> Sides(TextView textAndResult) {
    const std::size_t arrow = textAndResult.find(" -> ");
    return {textAndResult.substr(0, arrow), textAndResult.substr(arrow + 4)};
}

/// Reads an individual for each case, what the case reads behind `before`, and compares cells of its row.
inline void ExpectCells(TextView before, std::initializer_list<ColumnId> columns,
                        const std::vector<TextView>& cases) {
    std::vector<Text> bodies;
    for (const TextView c : cases) bodies.push_back(Concat({before, Sides(c).first, "\n"}));
    AfterReading t(Individuals(bodies));
    const std::vector<Text> rows = CellsOf(t.main.lvwIn, columns);
    ASSERT_EQ(rows.size(), cases.size());
    for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i], Sides(cases[i]).second) << cases[i];
}

/// The bytes of a range; a sign of its own when the range is none.
inline Text Slice(TextView file, const modReadGedcom::RecordRange& range) {
    if (range.start < 1 || range.end < range.start ||
        range.end > static_cast<std::int64_t>(file.size()) + 1) {
        return Concat({"no range: ", Decimal(range.start), " ", Decimal(range.end)});
    }
    return Text(file.substr(static_cast<std::size_t>(range.start - 1),
                            static_cast<std::size_t>(range.end - range.start)));
}

/// The bytes that the tag of a row tells.
inline Text Slice(TextView file, const Row& row) {
    const auto parts = Split(row.Tag(), " ");
    if (parts.size() != 2) return Concat({"no range: ", row.Tag()});
    return Slice(file, modReadGedcom::RecordRange{ToLong(parts[0]), ToLong(parts[1])});
}

}  // namespace swiftroll::test

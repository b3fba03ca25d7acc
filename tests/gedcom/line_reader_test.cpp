// Lines, their positions and their fields.
#include "gedcom/line_reader.h"

#include <gtest/gtest.h>

#include <random>

#include "gedcom/reader_fixture.h"

namespace swiftroll::test {
namespace {

using modReadGedcom::LineReader;
using modReadGedcom::LineScanner;
using modReadGedcom::RecordRange;

constexpr std::size_t kWhole = static_cast<std::size_t>(-1);

/// The lines of a file: "position:text" each, and what was left over at the end as "rest:text".
std::vector<Text> Scan(TextView bytes, std::size_t readSize) {
    MemoryFiles files;
    files.contents["f"] = bytes;
    files.readSize = readSize;
    LineScanner scanner(files.Open("f", Files::Mode::Read));
    std::vector<Text> lines;
    while (scanner.Next()) lines.push_back(Concat({Decimal(scanner.LinePosition()), ":", scanner.Line()}));
    EXPECT_EQ(scanner.ReadPosition(), static_cast<std::int64_t>(bytes.size()));
    lines.push_back(Concat({"rest:", scanner.Line()}));
    return lines;
}

/// Reads a file one character at a time, as simply as can be.
class SlowScanner {
  public:
    explicit SlowScanner(TextView bytes) : bytes_(bytes) {}
    bool Next() {
        line.clear();
        position = static_cast<std::int64_t>(read_) + 1;
        while (read_ < bytes_.size()) {
            const char c = bytes_[read_++];
            if (c != '\r' && c != '\n') {
                if (c != ' ' || !line.empty()) line += c;
            } else if (line.empty()) {
                position = static_cast<std::int64_t>(read_) + 1;
            } else {
                break;
            }
        }
        return read_ < bytes_.size();
    }
    Text line;
    std::int64_t position = 1;

  private:
    TextView bytes_;
    std::size_t read_ = 0;
};

std::vector<Text> ScanSlowly(TextView bytes) {
    SlowScanner scanner(bytes);
    std::vector<Text> lines;
    while (scanner.Next()) lines.push_back(Concat({Decimal(scanner.position), ":", scanner.line}));
    lines.push_back("rest:" + scanner.line);
    return lines;
}

/// A text of fewer than `length` random pieces.
Text Soup(std::mt19937& random, const std::vector<TextView>& pieces, std::size_t length) {
    Text text;
    for (auto left = random() % length; left > 0; --left) text += pieces[random() % pieces.size()];
    return text;
}

TEST(LineScanner, LongLinesCrossBlocksWhole) {
    for (const std::size_t block : {std::size_t{1} << 12, std::size_t{1} << 16, std::size_t{1} << 18}) {
        for (std::size_t length = block - 12; length <= block + 2; ++length) {
            const Text file = "0 A\r\n  1 " + Text(length, 'x') + "\r\n2 B\r\n" + Text(2 * length, 'y') +
                              "\n" + Text(3 * length, ' ') + "3 C\r\n";
            const auto expected = ScanSlowly(file);
            ASSERT_TRUE(Scan(file, kWhole) == expected) << length;
            ASSERT_TRUE(Scan(file, block / 3) == expected) << length;
        }
    }
}

/// What a reader tells of a file when every box is answered with OK.
struct Told {
    /// "0:level|xref|tag|value" of every line, "1:level" of one that ends the reading.
    std::vector<Text> lines;
    std::vector<Text> boxes;
    std::map<Text, RecordRange> records;
    RecordRange head{1, 1}, subn{0, 0}, last;
};

Text LineText(int result, int level, TextView xref, TextView tag, TextView value) {
    const Text head = Concat({Decimal(result), ":", Decimal(level)});
    return result != 0 ? head : Concat({head, "|", xref, "|", tag, "|", value});
}

Told Tell(TestMain& t, LineReader& reader, TextView bytes, std::size_t readSize) {
    Told told;
    t.files.contents["f"] = bytes;
    t.files.readSize = readSize;
    t.dialogs.boxes.clear();
    EXPECT_TRUE(reader.InitGedcom("f"));
    reader.ResetRecords();
    std::int32_t result = 0;
    while (result == 0 && (result = reader.Read1Line()) != -1)
        told.lines.push_back(LineText(result, reader.iLevel, reader.sXrefDef, reader.sTag, reader.sValue));
    for (const MessageBox& box : t.dialogs.boxes) told.boxes.push_back(box.text);
    told.head = reader.head;
    told.subn = reader.subn;
    told.last = {reader.lPrevPos, reader.lCurPos};
    return told;
}

/// The same steps one by one, with texts and numbers only.
class SlowReader {
  public:
    explicit SlowReader(TextView bytes) : scanner_(bytes), length_(static_cast<std::int64_t>(bytes.size())) {}

    Told Tell() {
        std::int32_t lines = 0, result = 0;
        while (result == 0) {
            const bool got = scanner_.Next();
            const Text whole = line_ = scanner_.line;
            FailureKind failure{};
            if (!got) {
                level_ = -1;
                const bool atRecord = Split(failure) >= 0 && level_ == 0;
                line_ = whole;
                tag_ = xref_ = "";
                NoteRecord(atRecord ? scanner_.position : length_ + 1, lines);
                break;
            }
            ++lines;
            result = Split(failure);
            if (result < 0) {
                Box(failure, lines);
                result = 0;
                continue;
            }
            told_.lines.push_back(LineText(result, level_, xref_, tag_, value_));
            if (result == 1 && level_ != 0) tag_ = xref_ = "";
            if (result == 1 || level_ == 0) NoteRecord(scanner_.position, lines);
        }
        told_.last = {previous_, current_};
        return told_;
    }

  private:
    /// 0, 1 for a level of several digits, -1 for a failure.
    int Split(FailureKind& failure) {
        auto p = static_cast<int>(line_.find(' ') + 1);
        while (!line_.empty()) {
            if (line_[0] >= '0' && line_[0] <= '9') {
                if (p < 0) return failure = FailureKind::InvalidArgument, -1;
                const Text number(TrimRight(line_.substr(0, static_cast<std::size_t>(p))));
                if (number.empty() || number.find_first_not_of("0123456789") != Text::npos)
                    return failure = FailureKind::TypeMismatch, -1;
                const int level = number.size() > 9 ? 99999 : std::stoi(number);
                if (level > 32767) return failure = FailureKind::Overflow, -1;
                level_ = level;
                break;
            }
            line_.erase(0, 1);
            --p;
        }
        if (p < 0) return failure = FailureKind::InvalidArgument, -1;
        const Text behind = line_.substr(std::min(line_.size(), static_cast<std::size_t>(p)));
        xref_ = behind.starts_with('@')
                    ? behind.substr(0, std::max(behind.find('@', 1), behind.find('@', 1) + 1))
                    : "";
        line_ = TrimLeft(TextView(behind).substr(xref_.size()));
        const auto blank = line_.find(' ');
        tag_ = line_.substr(0, blank);
        value_ = blank == Text::npos ? "" : line_.substr(blank + 1);
        return p > 2 ? 1 : 0;
    }
    void NoteRecord(std::int64_t position, std::int32_t lines) {
        previous_ = current_;
        current_ = position;
        if (openTag_ == "HEAD") told_.head = {previous_, current_};
        if (openTag_ == "SUBN") told_.subn = {previous_, current_};
        const bool isNew =
            openXref_.empty() ||
            told_.records.try_emplace(openTag_ + " " + openXref_, RecordRange{previous_, current_}).second;
        if (!isNew) Box(FailureKind::DuplicateKey, lines);
        openTag_ = tag_;
        openXref_ = xref_;
    }
    void Box(FailureKind kind, std::int32_t lines) {
        told_.boxes.push_back(Concat({Decimal(static_cast<int>(kind)), ": ", Description(kind), "\r\nLigne ",
                                      Decimal(lines), "\r\n", TrimRight(line_)}));
    }

    SlowScanner scanner_;
    std::int64_t length_, previous_ = 1, current_ = 1;
    Text line_, xref_, tag_, value_, openTag_, openXref_;
    int level_ = 0;
    Told told_;
};

TEST(LineReader, ReadsAnySoupAsTheStepsOneByOne) {
    std::mt19937 random(2);
    const std::vector<TextView> bytes = {"0", "1", "2", " ", "@", "A", "\r", "\n"};
    const std::vector<TextView> words = {"0 ",   "0 ",  "0 ",   "1 ",    "2 ",   "10 ",  "@A@ ",
                                         "@B@ ", "@B@", "INDI", "HEAD ", "SUBN", "\r\n", "\r\n",
                                         "\r\n", "\n",  "\r",   " ",     "x",    "x ",   "32768 "};
    TestMain t;
    LineReader reader(t.main);
    for (int i = 0; i < 3000; ++i) {
        const Text soup = Soup(random, i % 3 == 0 ? bytes : words, 60);
        const std::size_t readSize = i % 2 == 0 ? 1 + random() % 9 : kWhole;
        SCOPED_TRACE('"' + soup + '"');
        ASSERT_EQ(Scan(soup, readSize), ScanSlowly(soup));
        const Told expected = SlowReader(soup).Tell();
        const Told told = Tell(t, reader, soup, readSize);
        ASSERT_EQ(told.lines, expected.lines);
        ASSERT_EQ(told.boxes, expected.boxes);
        ASSERT_TRUE(told.head == expected.head && told.subn == expected.subn && told.last == expected.last);
        ASSERT_EQ(reader.colRecords().Count(), expected.records.size());
        for (const auto& [key, range] : expected.records)
            ASSERT_EQ(reader.colRecords().Find(key), range) << key;
    }
}

TEST(LineReader, SplitsLinesIntoFields) {
    TestMain t;
    LineReader reader(t.main);
    for (const TextView c :
         {"0 @I1@ INDI -> 0:0|@I1@|INDI|", "2 CONT  deux  blancs  -> 0:2||CONT| deux  blancs ",
          "0 @I1@INDI x -> 0:0|@I1@|INDI|x", "12 X y -> 1:12", "\357\273\2770 HEAD -> 0:0||HEAD|"}) {
        const auto [line, fields] = Sides(c);
        EXPECT_EQ(Tell(t, reader, Concat({line, "\r\n"}), kWhole).lines, Rows({fields})) << line;
    }
    EXPECT_TRUE(t.dialogs.boxes.empty());
    using modReadGedcom::GetXrefUsed;
    EXPECT_EQ(GetXrefUsed("  @I1@  "), "@I1@");
    for (const TextView none : {"", "  ", "I1", "@I1", "I1@", "@I1@ x"})
        EXPECT_EQ(GetXrefUsed(none), "") << none;
}

TEST(LineReader, AReadFailureIsToldAndThenCountsAsTheEnd) {
    const Text file = WithCrLf("0 HEAD\n0 @I1@ INDI\n1 NAME Jean /A/\n0 @I2@ INDI\n1 NAME Eve /B/\n0 TRLR\n");
    const std::size_t second = file.find("0 @I2@");
    for (std::size_t breaksAt = 0; breaksAt < file.size(); ++breaksAt) {
        SCOPED_TRACE(breaksAt);
        TestMain t;
        t.files.breaksAt = breaksAt;
        t.files.readSize = breaksAt % 3 == 0 ? kWhole : 1 + breaksAt % 7;
        t.Read(file);
        ASSERT_EQ(t.dialogs.boxes.size(), 2u);
        EXPECT_EQ(t.dialogs.boxes[0].topic, BoxTopic::LineError);
        EXPECT_TRUE(t.dialogs.boxes[0].text.starts_with("57: ")) << t.dialogs.boxes[0].text;
        EXPECT_EQ(t.dialogs.boxes[1].topic, BoxTopic::Recalculation);
        EXPECT_EQ(t.main.pnlMessage.Get(), "Lecture terminée"_t);
        // What was read whole is there, and no range goes beyond what was read.
        if (breaksAt > second + 13) {
            ASSERT_EQ(t.main.lvwIn.Count(), 2);
            EXPECT_EQ(Slice(file, t.main.lvwIn.Item(1)), file.substr(8, second - 8));
        }
        for (std::int32_t i = 1; i <= t.main.lvwIn.Count(); ++i) {
            const std::int32_t end = ToLong(Split(t.main.lvwIn.Item(i).Tag(), " ").at(1));
            EXPECT_LE(end, static_cast<std::int32_t>(breaksAt) + 1);
        }
    }
}

TEST(LineReader, FilesBeyondTheReachOfPositionsAreRefused) {
    TestMain t;
    t.files.toldLength = (std::int64_t{1} << 31) + 1;
    t.Read("0 @I1@ INDI\r\n0 TRLR\r\n");
    EXPECT_TRUE(t.dialogs.boxes.at(0).title.ends_with(" - InitGed"));
    EXPECT_TRUE(t.dialogs.boxes.at(0).text.starts_with("Le fichier in.ged d"));
    EXPECT_EQ(t.main.lvwIn.Count(), 0);
    t.files.toldLength = std::int64_t{1} << 31;
    t.main.cmdLoad.Click();
    EXPECT_EQ(t.main.lvwIn.Count(), 1);
}

TEST(LineReader, TellsHowFarItIsEveryThousandLines) {
    Text file;
    for (int i = 0; i < 2500; ++i) file += "1 NOTE x\r\n";
    TestMain t;
    std::map<Text, int> shown;
    t.events.onYield = [&] { shown[t.main.pnlLines.Get()] = static_cast<int>(t.main.ProgressBar1.Value()); };
    t.Read(file);
    // Line 999 ends at byte 9990, in units of 128 bytes 9984 of 25000; line 1999 at 19990, so 19968.
    const std::map<Text, int> expected = {
        {"", 0}, {"Ligne(s) GEDCOM : 1000", 39}, {"Ligne(s) GEDCOM : 2000", 79}};
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(t.main.pnlLines.Get(), "Ligne(s) GEDCOM : 2501");
}

}  // namespace
}  // namespace swiftroll::test

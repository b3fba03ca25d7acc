// The yardstick of the benchmarks: the least that any reader of a GEDCOM file must do. It splits every line
// into level, cross-reference, tag and value, and indexes the records by their cross-references.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

struct Line {
    unsigned level = 0;
    std::string_view reference;
    std::string_view tag;
    std::string_view value;
};

std::string_view TakeWord(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(word.size() < rest.size() ? word.size() + 1 : word.size());
    return word;
}

Line Split(std::string_view text) {
    Line line;
    std::size_t digits = 0;
    while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') {
        line.level = line.level * 10 + static_cast<unsigned>(text[digits++] - '0');
    }
    text.remove_prefix(digits < text.size() ? digits + 1 : digits);
    if (!text.empty() && text.front() == '@') {
        line.reference = TakeWord(text);
    }
    line.tag = TakeWord(text);
    line.value = text;
    return line;
}

class Baseline {
  public:
    void Read(std::FILE* file) {
        std::vector<char> block(kBlockSize);
        std::size_t kept = 0;  // the beginning of a line that the last block cut
        for (;;) {
            const std::size_t got = std::fread(block.data() + kept, 1, block.size() - kept, file);
            if (got == 0) break;
            const std::string_view bytes(block.data(), kept + got);
            const std::size_t used = ScanLines(bytes);
            kept = bytes.size() - used;
            std::memmove(block.data(), block.data() + used, kept);
            if (kept == block.size()) block.resize(2 * block.size());
        }
        if (kept > 0) Add(std::string_view(block.data(), kept));
    }

    void Print() const {
        std::printf("lines %zu, records %zu, checksum %016llx\n", lines_, records_.size(),
                    static_cast<unsigned long long>(checksum_));
    }

  private:
    static constexpr std::size_t kBlockSize = std::size_t{1} << 18;

    // Returns how many bytes the whole lines take.
    std::size_t ScanLines(std::string_view bytes) {
        const char* at = bytes.data();
        const char* const end = at + bytes.size();
        while (const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            const char* const lineEnd = static_cast<const char*>(found);
            Add(std::string_view(at, static_cast<std::size_t>(lineEnd + 1 - at)));
            at = lineEnd + 1;
        }
        return static_cast<std::size_t>(at - bytes.data());
    }

    void Add(std::string_view text) {
        const std::uint64_t lineOffset = offset_;
        offset_ += text.size();
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) {
            text.remove_suffix(1);
        }
        const Line line = Split(text);
        if (line.level == 0 && !line.reference.empty()) {
            records_.emplace(line.reference, lineOffset);
        }
        ++lines_;
        Mix(line.level);
        Mix(line.reference);
        Mix(line.tag);
        Mix(line.value);
    }

    // The length and both ends of each part: enough that the compiler cannot drop the splitting.
    void Mix(std::string_view part) {
        const auto byte = [](char c) { return static_cast<std::uint64_t>(static_cast<unsigned char>(c)); };
        Mix(part.empty() ? 0 : part.size() << 16 | byte(part.front()) << 8 | byte(part.back()));
    }
    void Mix(std::uint64_t number) { checksum_ = (checksum_ ^ number) * 0x100000001B3ULL; }

    std::unordered_map<std::string, std::uint64_t> records_;
    std::uint64_t offset_ = 0;
    std::uint64_t checksum_ = 0;
    std::size_t lines_ = 0;
};

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("usage: baseline FILE\n", stderr);
        return 2;
    }
    std::FILE* const file = std::fopen(arguments[1], "rb");
    if (file == nullptr) {
        std::perror(arguments[1]);
        return 1;
    }
    Baseline baseline;
    baseline.Read(file);
    std::fclose(file);
    baseline.Print();
    return 0;
}

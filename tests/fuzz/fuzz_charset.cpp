// Any bytes as a file whose first line is the name that it declares: each line is decoded. What is told of
// the file holds for its bytes, and ASCII stays as it is.
#include <cstdint>
#include <cstdlib>

#include "charset/decoder.h"
#include "charset/utf16_text.h"
#include "charset/utf8_check.h"
#include "support/memory_files.h"

namespace swiftroll::test {
namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void DecodeLines(charset::Decoder& decoder, TextView text) {
    while (!text.empty()) {
        const TextView line = text.substr(0, text.find('\n'));
        const bool isAscii = charset::FindHighByte(line, 0) == line.size();
        const Text decoded(decoder.Decode(line));
        Require(!isAscii || decoded == line);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
}

void Decode(TextView bytes) {
    MemoryFiles files;
    files.contents["f"] = bytes;
    const auto open = [&] { return files.Open("f", Files::Mode::Read); };
    charset::Decoder decoder(open());
    decoder.Declare(bytes.substr(0, bytes.find('\n')));
    if (decoder.Found().IsUtf16()) {
        const auto text = charset::Utf16Text(*open(), decoder.Found().charset).Open();
        Require(charset::CheckUtf8(*text) != charset::Utf8Answer::Neither);
        Text utf8(static_cast<std::size_t>(text->Length()), ' ');
        Require(text->ReadAt(0, utf8.data(), utf8.size()) == utf8.size());
        DecodeLines(decoder, utf8);
    } else {
        DecodeLines(decoder, bytes);
    }
    const charset::FoundCharset& found = decoder.Found();
    const bool saysUtf8 = found.charset == charset::Charset::Utf8 && found.toldBy == charset::ToldBy::Bytes;
    Require(!saysUtf8 || charset::CheckUtf8(*open()) == charset::Utf8Answer::Utf8);
}

}  // namespace
}  // namespace swiftroll::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    swiftroll::test::Decode({reinterpret_cast<const char*>(data), size});
    return 0;
}

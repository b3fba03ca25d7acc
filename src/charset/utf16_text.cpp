#include "charset/utf16_text.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>

#include "charset/file_walk.h"
#include "text/failure.h"

namespace swiftroll::charset {
namespace {

constexpr char32_t kMark = 0xFEFF, kNoCharacter = 0xFFFD;

class TextFile : public File {
  public:
    explicit TextFile(std::shared_ptr<const Text> text) : text_(std::move(text)) {}
    std::size_t Read(char* buffer, std::size_t size) override {
        size = std::min(size, text_->size() - position_);
        std::copy_n(text_->data() + position_, size, buffer);
        position_ += size;
        return size;
    }
    std::size_t ReadAt(std::int64_t position, char* buffer, std::size_t size) override {
        position_ = std::min(static_cast<std::size_t>(position), text_->size());
        return Read(buffer, size);
    }
    void Write(TextView) override { throw Failure(FailureKind::FileAccess); }
    std::int64_t Length() override { return static_cast<std::int64_t>(text_->size()); }
    void Close() override {}

  private:
    std::shared_ptr<const Text> text_;
    std::size_t position_ = 0;
};

/// A code unit; what a file ends with in the middle of one is none.
char32_t UnitAt(TextView bytes, std::size_t at, Charset order) {
    if (at + 1 >= bytes.size()) return kNoCharacter;
    const auto first = static_cast<unsigned char>(bytes[at]),
               second = static_cast<unsigned char>(bytes[at + 1]);
    return order == Charset::Utf16LittleEndian ? first | second << 8 : first << 8 | second;
}

void AppendUtf8(Text& text, char32_t character) {
    char bytes[U8_MAX_LENGTH];
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, character);
    text.append(bytes, length);
}

Text Convert(File& file, Charset order) {
    Text text;
    // Half the size for the most part: a page of text that says more grows once.
    text.reserve(static_cast<std::size_t>(std::max<std::int64_t>(file.Length(), 0)) / 9 * 5);
    WalkFile(file, [&](TextView bytes, std::size_t end) {
        std::size_t at = 0;
        for (; at < end; at += 2) {
            char32_t character = UnitAt(bytes, at, order);
            if (U16_IS_SURROGATE(character)) {
                const char32_t next = UnitAt(bytes, at + 2, order);
                const bool isPair = U16_IS_SURROGATE_LEAD(character) && U16_IS_TRAIL(next);
                character = isPair ? U16_GET_SUPPLEMENTARY(character, next) : kNoCharacter;
                if (isPair) at += 2;
            }
            if (character != kMark || !text.empty()) AppendUtf8(text, character);
        }
        return std::min(at, bytes.size());
    });
    return text;
}

}  // namespace

Utf16Text::Utf16Text(File& file, Charset order) : text_(std::make_shared<const Text>(Convert(file, order))) {}

std::unique_ptr<File> Utf16Text::Open() const { return std::make_unique<TextFile>(text_); }

}  // namespace swiftroll::charset

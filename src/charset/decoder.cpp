#include "charset/decoder.h"

#include <algorithm>
#include <array>

#include "charset/ansel.h"
#include "charset/byte_survey.h"
#include "charset/utf8_check.h"
#include "text/code_page.h"
#include "text/failure.h"

namespace swiftroll::charset {
namespace {

/// UTF-16 by its mark, or by the NULs beside the ASCII that every GEDCOM file begins with.
FoundCharset CharsetOfHead(TextView head) {
    if (head.starts_with("\xEF\xBB\xBF")) return {Charset::Utf8, ToldBy::Mark};
    if (head.starts_with("\xFF\xFE")) return {Charset::Utf16LittleEndian, ToldBy::Mark};
    if (head.starts_with("\xFE\xFF")) return {Charset::Utf16BigEndian, ToldBy::Mark};
    std::array<std::size_t, 2> nuls{};
    for (std::size_t at = 0; at < head.size(); ++at) nuls[at % 2] += head[at] == '\0' ? 1 : 0;
    const std::size_t most = head.size() / 4;
    // A few letters of other scripts, such as U+0100, have their NUL on the other side.
    if (nuls[1] > most && nuls[0] < nuls[1] / 4) return {Charset::Utf16LittleEndian, ToldBy::Bytes};
    if (nuls[0] > most && nuls[1] < nuls[0] / 4) return {Charset::Utf16BigEndian, ToldBy::Bytes};
    return {};
}

/// Whether a text is the first bytes of a character: one that goes on in a CONC line.
bool IsCutOff(TextView text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lead < 0xC2 || lead > 0xF4 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return text.size() < length && std::all_of(text.begin() + 1, text.end(), [](char c) {
               return (static_cast<unsigned char>(c) & 0xC0u) == 0x80u;
           });
}

}  // namespace

Decoder::Decoder(std::unique_ptr<File> file)
    : file_(std::move(file)), highHalf_(HighHalfOf(Charset::Windows1252)) {
    if (file_ == nullptr) return;
    try {
        LookAtHead();
    } catch (const Failure&) {
        file_.reset();
    }
}

Decoder::Decoder(FoundCharset found)
    : found_(std::move(found)),
      isWindows1252_(found_.charset == Charset::Windows1252),
      highHalf_(HighHalfOf(found_.charset == Charset::Ascii ? Charset::Windows1252 : found_.charset)) {}

void Decoder::LookAtHead() {
    std::array<char, 256> head{};
    std::size_t size = 0;
    for (std::size_t read = 1; read > 0 && size < head.size(); size += read)
        read = file_->ReadAt(static_cast<std::int64_t>(size), head.data() + size, head.size() - size);
    found_ = CharsetOfHead({head.data(), size});
}

bool Decoder::Declare(TextView name) {
    if (!found_.declared) {
        found_.declared = name;
        const bool isOpen = found_.toldBy == ToldBy::Nothing || found_.toldBy == ToldBy::Guess;
        if (isOpen && (found_.toldBy == ToldBy::Guess || !CharsetOfName(name))) Tell();
    }
    return found_.toldBy != ToldBy::Unknown;
}

const FoundCharset& Decoder::Look() {
    if (found_.toldBy == ToldBy::Nothing) Tell();
    return found_;
}

void Decoder::Tell() {
    try {
        TellByBytes();
    } catch (const Failure&) {
        // The reader meets the same failure, and tells it.
        file_.reset();
        TellByBytes();
    }
}

void Decoder::TellByBytes() {
    const Utf8Answer answer = file_ == nullptr ? Utf8Answer::Neither : CheckUtf8(*file_);
    if (answer == Utf8Answer::Ascii) return Settle(Charset::Ascii, ToldBy::Bytes);
    if (answer == Utf8Answer::Utf8) return Settle(Charset::Utf8, ToldBy::Bytes);
    const auto named = found_.declared ? CharsetOfName(*found_.declared) : std::nullopt;
    if (found_.declared && !named) return Settle(Charset::Windows1252, ToldBy::Unknown);
    const bool isSure = named && named != Charset::Utf8 && named != Charset::Ansel;
    if (isSure || (named && file_ == nullptr)) return Settle(*named, ToldBy::Name);
    if (file_ == nullptr) return Settle(Charset::Windows1252, ToldBy::Guess);
    const ByteSurvey survey = SurveyBytes(*file_);
    // UTF-8 with some broken characters is still UTF-8.
    const bool bearsOutName = (named == Charset::Utf8 && survey.utf8 >= survey.notUtf8) ||
                              (named == Charset::Ansel && survey.ansel.IsPlausible());
    if (bearsOutName) return Settle(*named, ToldBy::Name);
    Settle(survey.MostPlausible(), ToldBy::Guess);
}

void Decoder::Settle(Charset charset, ToldBy toldBy) {
    found_.charset = charset;
    found_.toldBy = toldBy;
    isWindows1252_ = charset == Charset::Windows1252;
    highHalf_ = HighHalfOf(charset);
}

TextView Decoder::DecodeBeyondAscii(TextView value) {
    if (found_.toldBy == ToldBy::Nothing) Tell();
    if (isWindows1252_) return value;
    const bool isUtf8 = found_.charset == Charset::Utf8 || found_.IsUtf16();
    if (isUtf8 && DecodePlainUtf8(value)) return decoded_;
    if (isUtf8) {
        TakeUtf8(value);
    } else if (found_.charset == Charset::Ansel) {
        DecodeAnsel(value, codePoints_);
    } else {
        codePoints_.clear();
        for (const char c : value) codePoints_ += CodePointOf(c);
    }
    decoded_.clear();
    found_.transliterated += transliteration_.Append(codePoints_, decoded_);
    return decoded_;
}

/// Most values hold nothing but characters of Windows-1252, which take one step. False for another one.
bool Decoder::DecodePlainUtf8(TextView value) {
    decoded_.resize(value.size());
    char* place = decoded_.data();
    for (std::size_t at = 0; at < value.size();) {
        if (static_cast<unsigned char>(value[at]) < 0x80) {
            *place++ = value[at++];
            continue;
        }
        const Utf8Char character = FirstUtf8Char(value.substr(at));
        const auto byte = CodePageByte(character.codePoint);
        if (character.length == 0 || !byte) return false;
        *place++ = static_cast<char>(*byte);
        at += character.length;
    }
    decoded_.resize(static_cast<std::size_t>(place - decoded_.data()));
    return true;
}

/// Bytes that are no UTF-8 stand for those of Windows-1252.
void Decoder::TakeUtf8(TextView value) {
    codePoints_.clear();
    while (!value.empty()) {
        const Utf8Char character = FirstUtf8Char(value);
        if (character.length == 0 && IsCutOff(value)) return;
        codePoints_ += character.length == 0 ? CodePointOf(value[0]) : character.codePoint;
        value.remove_prefix(std::max<std::size_t>(character.length, 1));
    }
}

char32_t Decoder::CodePointOf(char c) const {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x80 ? byte : highHalf_[byte - 0x80u];
}

}  // namespace swiftroll::charset

#pragma once

#include <memory>

#include "charset/charset.h"
#include "charset/code_pages.h"
#include "charset/file_walk.h"
#include "charset/transliteration.h"

namespace swiftroll::charset {

/// Gives the values of a GEDCOM file as Windows-1252. The character set is told when the first value beyond
/// ASCII comes, so that a file without one is never looked at; ANSI costs a look at its first accented
/// letter.
class Decoder {
  public:
    /// `file` is the file that is read, opened once more: it is looked at out of order. Without one, since a
    /// pipe can be opened only once, the text is taken at its word. When `Found` tells UTF-16, values are to
    /// be those of its Utf16Text.
    explicit Decoder(std::unique_ptr<File> file);
    /// Decodes more of a file of which this was found. What no value told so far is taken at its word.
    explicit Decoder(FoundCharset found);

    /// Takes the value of a CHAR line; the first one counts. False when it cannot be told in which character
    /// set the text is.
    bool Declare(TextView name);

    /// The value in Windows-1252; a view of `value` or of memory that the next call uses again.
    TextView Decode(TextView value) {
        if (isWindows1252_ || FindHighByte(value, 0) == value.size()) return value;
        return DecodeBeyondAscii(value);
    }

    const FoundCharset& Found() const { return found_; }
    /// The same, told by the whole file where no value needed it so far.
    const FoundCharset& Look();
    /// Lets go of the file, when all is read.
    void Close() { file_.reset(); }

  private:
    void LookAtHead();
    void Tell();
    void TellByBytes();
    void Settle(Charset charset, ToldBy toldBy);
    TextView DecodeBeyondAscii(TextView value);
    bool DecodePlainUtf8(TextView value);
    void TakeUtf8(TextView value);
    char32_t CodePointOf(char c) const;

    std::unique_ptr<File> file_;
    FoundCharset found_;
    bool isWindows1252_ = false;
    HighHalf highHalf_;  // of a set of one byte a character, and for bytes that are no UTF-8
    Transliteration transliteration_;
    std::u32string codePoints_;  // both reused to avoid allocation
    Text decoded_;
};

}  // namespace swiftroll::charset

#pragma once

#include <algorithm>
#include <array>

#include "text/code_page.h"

namespace swiftroll {

/// The bytes of a string literal as a template argument.
template <std::size_t N>
struct Utf8Literal {
    char bytes[N]{};
    consteval Utf8Literal(const char (&literal)[N]) { std::copy_n(literal, N, bytes); }
    constexpr std::string_view View() const { return {bytes, N - 1}; }
};

namespace detail {

template <std::size_t N>
struct CodePageLiteral {
    char bytes[N]{};
    std::size_t length = 0;
};

template <Utf8Literal literal>
consteval auto ToCodePage() {
    CodePageLiteral<sizeof literal.bytes> out;
    for (std::size_t i = 0; i + 1 < sizeof literal.bytes;) {
        char& byte = out.bytes[out.length++] = literal.bytes[i];
        // Most are ASCII, and what is done for each of them costs time in every file that has texts.
        if (static_cast<unsigned char>(byte) < 0x80) {
            ++i;
            continue;
        }
        const Utf8Char next = FirstUtf8Char(literal.View().substr(i));
        const auto converted = CodePageByte(next.codePoint);
        // A literal that is no UTF-8, or has a character that the code page lacks, must not compile.
        if (next.length == 0 || !converted) throw "not a Windows-1252 text";
        byte = static_cast<char>(*converted);
        i += next.length;
    }
    return out;
}

template <Utf8Literal literal>
inline constexpr auto kCodePageLiteral = ToCodePage<literal>();

}  // namespace detail

inline namespace literals {

/// "Décès"_t: a UTF-8 literal of the source as Windows-1252, converted while compiling.
template <Utf8Literal literal>
consteval TextView operator""_t() {
    return {detail::kCodePageLiteral<literal>.bytes, detail::kCodePageLiteral<literal>.length};
}

}  // namespace literals
}  // namespace swiftroll

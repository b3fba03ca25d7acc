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

template <Utf8Literal literal>
consteval std::size_t CodePageLength() {
    std::size_t length = 0;
    for (std::string_view rest = literal.View(); !rest.empty(); ++length) {
        const Utf8Char next = FirstUtf8Char(rest);
        // A literal that is no UTF-8, or has a character that the code page lacks, must not compile.
        if (next.length == 0 || !CodePageByte(next.codePoint)) throw "not a Windows-1252 text";
        rest.remove_prefix(next.length);
    }
    return length;
}

template <Utf8Literal literal>
consteval auto ToCodePage() {
    std::array<char, CodePageLength<literal>() + 1> out{};
    std::size_t i = 0;
    for (std::string_view rest = literal.View(); !rest.empty(); ++i) {
        const Utf8Char next = FirstUtf8Char(rest);
        out[i] = static_cast<char>(*CodePageByte(next.codePoint));
        rest.remove_prefix(next.length);
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
    return {detail::kCodePageLiteral<literal>.data(), detail::kCodePageLiteral<literal>.size() - 1};
}

}  // namespace literals
}  // namespace swiftroll

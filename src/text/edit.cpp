#include "text/edit.h"

#include <algorithm>
#include <array>

namespace swiftroll {
namespace {

constexpr std::array<char, 256> MakeUpperTable() {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < 256; ++code) {
        unsigned upper = code;
        if (code >= 'a' && code <= 'z') upper = code - 0x20;
        if (code >= 0xE0 && code <= 0xFE && code != 0xF7) upper = code - 0x20;
        if (code == 0x9A || code == 0x9C || code == 0x9E) upper = code - 0x10;
        if (code == 0xFF) upper = 0x9F;
        table[code] = static_cast<char>(upper);
    }
    return table;
}

constexpr std::array<char, 256> kUpper = MakeUpperTable();

}  // namespace

TextView TrimLeft(TextView text) {
    const auto first = text.find_first_not_of(' ');
    return first == TextView::npos ? TextView() : text.substr(first);
}

TextView TrimRight(TextView text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

TextView Trim(TextView text) { return TrimRight(TrimLeft(text)); }

Text UpperCase(TextView text) {
    Text out(text);
    for (char& c : out) c = UpperCase(c);
    return out;
}

char UpperCase(char c) { return kUpper[static_cast<unsigned char>(c)]; }

bool SameButCase(TextView a, TextView b) {
    return a == b || std::equal(a.begin(), a.end(), b.begin(), b.end(),
                                [](char x, char y) { return UpperCase(x) == UpperCase(y); });
}

Text LowerCaseAscii(TextView text) {
    Text out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 0x20);
    }
    return out;
}

std::vector<TextView> Split(TextView text, TextView separator) {
    std::vector<TextView> parts;
    while (!separator.empty()) {
        const auto at = text.find(separator);
        if (at == TextView::npos) break;
        parts.push_back(text.substr(0, at));
        text.remove_prefix(at + separator.size());
    }
    parts.push_back(text);
    return parts;
}

Text ReplaceAll(TextView text, TextView what, TextView by) {
    Text out;
    while (!what.empty()) {
        const auto at = text.find(what);
        if (at == TextView::npos) break;
        out += text.substr(0, at);
        out += by;
        text.remove_prefix(at + what.size());
    }
    out += text;
    return out;
}

Text Concat(std::initializer_list<TextView> pieces) {
    std::size_t size = 0;
    for (const TextView piece : pieces) size += piece.size();
    Text out;
    out.reserve(size);
    for (const TextView piece : pieces) out += piece;
    return out;
}

Text PadRight(TextView text, std::size_t width) {
    Text out(text);
    if (out.size() < width) out.append(width - out.size(), ' ');
    return out;
}

Text AlignRight(TextView text, std::size_t width) {
    if (text.size() >= width) return Text(text.substr(text.size() - width));
    return Text(width - text.size(), ' ').append(text);
}

TextView FileNamePart(TextView path) { return path.substr(path.find_last_of("\\/") + 1); }

}  // namespace swiftroll

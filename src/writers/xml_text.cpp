#include "writers/xml_text.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/edit.h"

namespace swiftroll::modGenFileFromModel {
namespace {

bool IsAllowed(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < ' ') return c == '\t' || c == '\r' || c == '\n';
    // Undefined bytes stand for the control of the same number; readers of XML refuse them.
    return byte < 0x80 || byte > 0x9F || kCodePageC1[byte - 0x80] != byte;
}

bool IsPlainInAddress(unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

}  // namespace

Text AllowedInXml(TextView text) {
    Text allowed(text);
    std::replace_if(
        allowed.begin(), allowed.end(), [](char c) { return !IsAllowed(c); }, '?');
    return ReplaceAll(allowed, "]]>", "]]?");
}

Text XmlText(TextView text) {
    Text escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        if (c == '&') {
            escaped += "&amp;";
        } else if (c == '<') {
            escaped += "&lt;";
        } else if (c == '>') {
            escaped += "&gt;";
        } else {
            escaped += IsAllowed(c) ? c : '?';
        }
    }
    return escaped;
}

Text XmlAddress(TextView sFileName) {
    constexpr TextView kDigits = "0123456789ABCDEF";
    Text address;
    for (const char c : FileNameFromText(sFileName)) {
        const auto byte = static_cast<unsigned char>(c);
        if (IsPlainInAddress(byte)) {
            address += c;
        } else {
            address.append(1, '%').append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 0xF]);
        }
    }
    return address;
}

}  // namespace swiftroll::modGenFileFromModel

#include "text/markup.h"

namespace swiftroll {

Text EscapeMarkup(TextView text) {
    Text escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
        }
    }
    return escaped;
}

}  // namespace swiftroll

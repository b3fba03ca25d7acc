#include "extract/head_charset.h"

#include "gedcom/gedcom_line.h"
#include "text/edit.h"

namespace swiftroll::modSaveGed {
namespace {

constexpr TextView kLine = "1 CHAR UTF-8", kLineEnds = "\r\n";

bool IsCharset(TextView text) {
    modReadGedcom::GedcomLine line;
    line.sLine = TrimLeft(text);
    return !line.Split() && line.iLevel == 1 && line.sTag == "CHAR";
}

}  // namespace

Text DeclareUtf8(TextView sHead) {
    if (sHead.empty()) return {};
    for (std::size_t begin = 0; begin < sHead.size();) {
        const std::size_t end = std::min(sHead.find_first_of(kLineEnds, begin), sHead.size());
        if (IsCharset(sHead.substr(begin, end - begin)))
            return Concat({sHead.substr(0, begin), kLine, sHead.substr(end)});
        begin = std::min(sHead.find_first_not_of(kLineEnds, end), sHead.size());
    }
    const bool hasEnd = kLineEnds.find(sHead.back()) != TextView::npos;
    return Concat({sHead, hasEnd ? TextView() : kLineEnd, kLine, kLineEnd});
}

}  // namespace swiftroll::modSaveGed

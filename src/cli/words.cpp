#include "words.h"

#include "arguments.h"
#include "text/code_page.h"
#include "text/edit.h"

namespace swiftroll::cli {

std::vector<std::string> Words(const std::string& list) {
    std::vector<std::string> words;
    if (list.empty()) return words;
    for (const std::string_view word : Split(list, ",")) words.emplace_back(word);
    return words;
}

Text TextOf(const std::string& word) {
    auto text = FromUtf8(word);
    if (!text) throw UsageError("caractères hors de Windows-1252 : " + word);
    return *std::move(text);
}

}  // namespace swiftroll::cli

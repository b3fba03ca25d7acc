#include "update/ini_file.h"

#include <boost/unordered/unordered_flat_set.hpp>

#include "text/edit.h"
#include "text/failure.h"

namespace swiftroll {
namespace {

constexpr std::size_t kMostBytes = std::size_t{16} << 20;
/// What the buffer of a value holds beside its end.
constexpr std::size_t kLongestValue = 999;

bool IsFolderEnd(char c) { return c == '\\' || c == '/'; }

Text NameOf(TextView section, TextView key) {
    return Concat({UpperCase(Trim(section)), "\n", UpperCase(Trim(key))});
}

/// The section that a line opens, or nothing.
std::optional<TextView> SectionOf(TextView line) {
    if (!line.starts_with('[')) return std::nullopt;
    const std::size_t end = line.find(']');
    return end == TextView::npos ? std::nullopt : std::optional(line.substr(1, end - 1));
}

TextView WithoutQuotes(TextView value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Blanks and tabs at both ends do not belong to names and values.
TextView Stripped(TextView text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\0')) {
        text.remove_suffix(1);
    }
    return text;
}

/// Calls `visit` for each line, without its end.
template <class Visitor>
void VisitLines(TextView content, Visitor visit) {
    while (!content.empty()) {
        const std::size_t end = std::min(content.find_first_of("\r\n"), content.size());
        visit(content.substr(0, end));
        content.remove_prefix(std::min(end + 1, content.size()));
    }
}

}  // namespace

void cIniFile::CreateIni(TextView sDir, TextView sFile) {
    if (!sDir.empty() && IsFolderEnd(sDir.back())) sDir.remove_suffix(1);
    if (!sFile.empty() && IsFolderEnd(sFile.front())) sFile.remove_prefix(1);
    SetINIFile(Concat({sDir, separator_, sFile}));
}

void cIniFile::SetINIFile(TextView file) {
    file_ = file;
    isLoaded_ = false;
}

Text cIniFile::GetFile(TextView sSection, TextView sKey) {
    if (!isLoaded_) Load();
    const auto value = values_.find(NameOf(sSection, sKey));
    return value == values_.end() ? Text() : value->second.substr(0, kLongestValue);
}

Text cIniFile::Content() {
    Text content;
    if (!files_.Exists(file_)) return content;
    const auto file = files_.Open(file_, Files::Mode::Read);
    content.resize(kMostBytes);
    std::size_t size = 0;
    while (size < content.size()) {
        const std::size_t read = file->Read(content.data() + size, content.size() - size);
        if (read == 0) break;
        size += read;
    }
    content.resize(size);
    content.shrink_to_fit();
    return content;
}

void cIniFile::Load() {
    values_.clear();
    isLoaded_ = true;
    try {
        ReadLines(Content());
    } catch (const Failure&) {
        // A file that cannot be read holds no keys.
    }
}

void cIniFile::ReadLines(TextView content) {
    boost::unordered_flat_set<Text> opened;
    Text section;
    bool isRead = false;  // the lines belong to the first section of their name
    VisitLines(content, [&](TextView line) {
        line = Stripped(line);
        if (const auto name = SectionOf(line)) {
            section = UpperCase(Stripped(*name));
            isRead = opened.insert(section).second;
            return;
        }
        const std::size_t equals = line.find('=');
        if (!isRead || line.starts_with(';') || equals == TextView::npos) return;
        values_.try_emplace(NameOf(section, Stripped(line.substr(0, equals))),
                            WithoutQuotes(Stripped(line.substr(equals + 1))));
    });
}

void cIniFile::WriteFile(TextView sSection, TextView sKey, TextView sValue) {
    const Text line = Concat({sKey, "=", sValue, "\r\n"});
    Text written;
    bool isInSection = false, isDone = false;
    const auto finish = [&] {
        if (isInSection && !isDone) written += line;
        isDone = isDone || isInSection;
    };
    VisitLines(Content(), [&](TextView old) {
        const TextView stripped = Stripped(old);
        if (stripped.empty()) return;
        if (const auto name = SectionOf(stripped)) {
            finish();
            isInSection = SameButCase(Stripped(*name), sSection);
        } else if (isInSection && !isDone &&
                   SameButCase(Stripped(stripped.substr(0, stripped.find('='))), sKey)) {
            written += line;
            isDone = true;
            return;
        }
        written += Concat({old, "\r\n"});
    });
    finish();
    if (!isDone) written += Concat({"[", sSection, "]\r\n", line});
    const auto file = files_.Open(file_, Files::Mode::Write);
    file->Write(written);
    file->Close();
    isLoaded_ = false;
}

}  // namespace swiftroll

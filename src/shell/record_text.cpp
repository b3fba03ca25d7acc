#include "shell/record_text.h"

#include <algorithm>

#include "charset/decoder.h"
#include "extract/record_range.h"
#include "extract/record_source.h"
#include "shell/file_as_read.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

/// More than a user reads.
constexpr std::int64_t kMostBytes = 1 << 16;

RecordText Refusal(TextView why) { return {Text(why), false}; }

/// The lines of a record with one line feed between them, decoded one by one.
Text LinesOf(TextView record, const charset::FoundCharset* found) {
    std::optional<charset::Decoder> decoder;
    if (found != nullptr) decoder.emplace(*found);
    Text lines;
    while (!record.empty()) {
        const std::size_t end = std::min(record.find_first_of("\r\n"), record.size());
        const TextView line = record.substr(0, end);
        if (!line.empty()) {
            if (!lines.empty()) lines += '\n';
            lines += decoder ? decoder->Decode(line) : line;
        }
        record.remove_prefix(std::min(end + 1, record.size()));
    }
    return lines;
}

}  // namespace

RecordText ReadRecord(Files& files, const modReadGedcom::LineReader& lines, const RowView& person) {
    const modReadGedcom::FileRead& read = lines.Origin();
    switch (StateOf(read, files)) {
        case FileAsRead::NotReadableAgain:
            return Refusal(
                "Ce fichier GEDCOM ne peut pas être relu. Copiez-le dans un fichier du disque, puis lisez la "
                "copie."_t);
        case FileAsRead::Changed:
            return Refusal(
                "Le fichier GEDCOM a changé depuis sa lecture. Relisez-le pour voir cet enregistrement."_t);
        case FileAsRead::Same:
            break;
    }
    modReadGedcom::RecordRange range = modSaveGed::RangeOfTag(person.Tag());
    if (modSaveGed::IsEmpty(range))
        return Refusal("La place de cet individu dans le fichier n'est pas connue.");
    const bool isCut = range.end - range.start > kMostBytes;
    if (isCut) range.end = range.start + kMostBytes;
    try {
        modSaveGed::RecordSource source(std::move(lines.OpenTwice(read.sFile)[0]), read.sFile);
        Text text = LinesOf(source.Read(range), lines.FoundCharset());
        if (isCut) text += "\n(La suite de cet enregistrement n'est pas montrée.)"_t;
        return {std::move(text), true};
    } catch (const Failure&) {
        return Refusal(
            "Le fichier GEDCOM ne peut plus être lu. Vérifiez qu'il est encore là, puis relisez-le."_t);
    }
}

}  // namespace swiftroll

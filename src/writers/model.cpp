#include "writers/model.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::modGenFileFromModel {
namespace {

constexpr TextView kCellEnd = "</td>", kRowEnd = "</tr>";

/// One sample row: where its parts begin and end.
struct SampleRow {
    std::size_t row, cell, cellEnd, rowEnd;
};

class Splitter {
  public:
    Splitter(TextView model, OutFormat iOutFormat)
        : model_(model),
          lower_(LowerCaseAscii(model)),
          row_(iOutFormat == OutFormat::Text ? "<tr>" : "<tr"),
          cell_(iOutFormat == OutFormat::Text ? "<td>" : "<td") {}

    /// The sample row of the first marker at or behind `from`; its tags must stand behind `from` too.
    std::optional<SampleRow> RowFrom(std::size_t from) const {
        const auto element = model_.find(kElement, from);
        if (element == TextView::npos) return std::nullopt;
        const auto cell = lower_.rfind(cell_, element);
        if (cell == Text::npos) return std::nullopt;
        const auto row = lower_.rfind(row_, cell);
        const auto cellEnd = lower_.find(kCellEnd, element);
        if (row == Text::npos || row < from || cellEnd == Text::npos) return std::nullopt;
        const auto rowEnd = lower_.find(kRowEnd, cellEnd);
        if (rowEnd == Text::npos) return std::nullopt;
        return SampleRow{row, cell, cellEnd + kCellEnd.size(), rowEnd + kRowEnd.size()};
    }
    Text Cut(std::size_t from, std::size_t to) const { return Text(model_.substr(from, to - from)); }

  private:
    TextView model_;
    Text lower_;
    TextView row_, cell_;
};

void RemoveTags(ModelPieces& pieces) {
    for (Text* piece : {&pieces.sModelRow1Open, &pieces.sModelRow2Open})
        *piece = ReplaceAll(*piece, "<tr>", "");
    for (Text* piece : {&pieces.sModelRow1Close, &pieces.sModelRow2Close})
        *piece = ReplaceAll(*piece, kRowEnd, "");
    for (Text* piece : {&pieces.sModelCell1, &pieces.sModelCell2}) {
        *piece = ReplaceAll(ReplaceAll(*piece, "<td>", ""), kCellEnd, "");
    }
}

void TellMissingTags(Feedback& feedback, OutFormat iOutFormat) {
    const TextView tags =
        iOutFormat == OutFormat::Text
            ? "<tr> ... <td> ... %ELEMENT% ... </td> ... </tr> ... <tr> ... <td> ... %ELEMENT% ... </td> ... </tr>"_t
            : "<tr ... <td ... %ELEMENT% ... </td> ... </tr> ... <tr ... <td ... %ELEMENT% ... </td> ... </tr>"_t;
    feedback.Box(" - HTML/XSL/TXT"_t,
                 Concat({"Le fichier modèle HTML/XSL/TXT ne contient pas les Tags nécessaires."_t, kLineEnd,
                         "Le fichier doit contenir :"_t, kLineEnd, tags, kLineEnd,
                         "Voir l'aide à la rubrique 'Format du Fichier Modèle HTML/XSL/TXT'"_t}));
}

}  // namespace

std::optional<ModelPieces> SplitModelText(TextView model, OutFormat iOutFormat) {
    const Splitter splitter(model, iOutFormat);
    const auto first = splitter.RowFrom(0);
    if (!first) return std::nullopt;
    const auto second = splitter.RowFrom(first->rowEnd);
    if (!second) return std::nullopt;
    ModelPieces pieces{splitter.Cut(0, first->row),
                       splitter.Cut(first->row, first->cell),
                       splitter.Cut(first->cell, first->cellEnd),
                       splitter.Cut(first->cellEnd, first->rowEnd),
                       splitter.Cut(first->rowEnd, second->row),
                       splitter.Cut(second->row, second->cell),
                       splitter.Cut(second->cell, second->cellEnd),
                       splitter.Cut(second->cellEnd, second->rowEnd),
                       splitter.Cut(second->rowEnd, model.size())};
    if (iOutFormat == OutFormat::Text) RemoveTags(pieces);
    return pieces;
}

std::optional<ModelPieces> SplitModel(Files& files, Feedback& feedback, TextView sFile,
                                      OutFormat iOutFormat) {
    return feedback.trail.Guard(
        "SplitModel",
        [&] {
            auto pieces = SplitModelText(ReadWholeFile(files, sFile), iOutFormat);
            if (!pieces) TellMissingTags(feedback, iOutFormat);
            return pieces;
        },
        [&] { return Text(sFile); });
}

Text ReadWholeFile(Files& files, TextView sFile) {
    const auto file = files.Open(sFile, Files::Mode::Read);
    Text bytes;
    char block[1 << 16];
    while (const std::size_t size = file->Read(block, sizeof block)) bytes.append(block, size);
    return bytes;
}

}  // namespace swiftroll::modGenFileFromModel

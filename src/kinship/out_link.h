#pragma once

#include <span>

#include "kinship/island_links.h"
#include "kinship/path_core.h"
#include "tables/text_copier.h"

namespace swiftroll::modKinship {

/// The number of a path has so many digits, and so has that of a line; this stands between the two.
inline constexpr std::size_t kPathDigits = 6;
inline constexpr TextView kPathEnd = "-";
/// What the cell `Visible` of `lvwPaths` says of a path that stands in `lvwKinship`, and of a hidden one.
inline constexpr TextView kVisible = "Oui", kHidden = "Non";

/// Writes paths into `lvwKinship`, a row for each individual and one that separates the path from the next.
/// Cells share their texts: a person's name, or a family's, stands once however many rows show it.
class PathWriter {
  public:
    /// `island` and `core` must outlive the writer.
    PathWriter(Application& app, const IslandGraph& island, const PathCore& core);

    /// `OutLink`: writes the path with the number `lNrLinks` over these links of the core, or nothing when
    /// the options `chkMaxLinks` and `chkMaxSpouses` hide it; false then. Steps that only cross a couple are
    /// folded. The widths follow hidden paths too, and so does `lvwPaths`, as far as anybody could read it.
    bool OutLink(std::int64_t lNrLinks, std::span<const std::int32_t> links);

  private:
    /// Texts of the store of lvwKinship; `Type` is empty until they are fetched.
    struct LinkTexts {
        TextRef Type, IDFamily, Family;
    };
    struct PersonTexts {
        TextRef IDIndi, Indi;
    };
    struct Line {
        PersonTexts person;
        LinkTexts link;
    };
    const LinkTexts& TextsOfLink(std::int32_t link);
    const PersonTexts& TextsOfPerson(std::int32_t node);
    TextRef Folded(const LinkTexts& first, const LinkTexts& second);
    TextRef LineNumber(std::size_t lSeqNr);
    void Compose(std::span<const std::int32_t> links);
    bool IsHidden() const;
    void WriteSummary(TextView number, bool isHidden);
    void Widen(ColumnId column, std::size_t length);

    Application& app_;
    const IslandGraph& island_;
    const PathCore& core_;
    TextStore& store_;
    TextCopier copier_;                     // from lvwXref1
    std::vector<LinkTexts> linkTexts_;      // by link of the core
    std::vector<PersonTexts> personTexts_;  // by node of the core
    std::vector<TextRef> lineNumbers_;      // six digits, by line number from 1
    std::vector<Line> lines_;               // of the present path
    std::int32_t nrSpouses_ = 0;
    std::int32_t hiddenSummaries_ = 0;
};

}  // namespace swiftroll::modKinship

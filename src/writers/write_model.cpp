#include "writers/write_model.h"

#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/index.h"
#include "writers/variables.h"
#include "writers/xml.h"

namespace swiftroll::modGenFileFromModel {
namespace {

constexpr TextView kRightAlignedCell = "<td align=\"right\"";
constexpr TextView kPaddedElement = "%ELEMENT% ";
constexpr TextView kIndex = "%INDEX%";

/// One document on its way to its file.
class Document {
  public:
    Document(const ListSource& source, ModelPieces model, const OutputFormat& format, bool bSelectedOnly)
        : source_(source),
          tables_(source.tables),
          variables_(source.product, source.origin, source.clock.Now()),
          model_(std::move(model)),
          format_(*format.model),
          selectedOnly_(bSelectedOnly),
          emptyCell_(format.sEmptyCell) {
        const bool asksForPadding = model_.sModelCell2.find(kPaddedElement) != Text::npos;
        marker_ = asksForPadding ? kPaddedElement : kElement;
        padCells_ = asksForPadding && format_ == OutFormat::Text;
        if (format.hasIndex) MakeIndex();
    }

    void Open(TextView sOutFile) {
        try {
            source_.files.Delete(sOutFile);
        } catch (const Failure&) {
            // The opening tells what is wrong.
        }
        file_ = source_.files.Open(sOutFile, Files::Mode::Write);
        PrintWithIndex(model_.sModelHead);
    }

    void WriteRest() {
        WriteHeaderRow();
        Print(model_.sModelBetween);
        if (format_ == OutFormat::Xsl) {
            WriteTemplateRow();
        } else {
            WriteDataRows();
        }
        PrintWithIndex(model_.sModelTail);
        file_->Close();
    }

  private:
    void MakeIndex() {
        const bool hasPlace =
            model_.sModelHead.find(kIndex) != Text::npos || model_.sModelTail.find(kIndex) != Text::npos;
        if (source_.options.txtINDEX.Get() == "0" || !hasPlace) return;
        index_ = CalcINDEXes(source_, selectedOnly_, emptyCell_);
    }

    /// Prints the head or the tail, the index at its places. It goes to the file piece by piece, since a
    /// model may ask for it many times.
    void PrintWithIndex(TextView sText) {
        const std::vector<TextView> pieces = index_ ? Split(sText, kIndex) : std::vector{sText};
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (i > 0) Print(*index_);
            Print(pieces[i]);
        }
    }

    void Print(TextView sText) { PrintWithOtherTags(*file_, sText, variables_); }

    const Column& ColumnAtPosition(std::int16_t position) const {
        return tables_.lvwOut.ColumnAt(tables_.positions.Of(tables_.lvwOut).iColAtPos[position]);
    }

    void PrintCell(TextView model, TextView sCell) { Print(ReplaceAll(model, marker_, sCell)); }

    void PrintNumberCell(TextView model, TextView sCell) {
        Text filled = ReplaceAll(model, marker_, sCell);
        if (format_ != OutFormat::Text) filled.replace(0, 3, kRightAlignedCell);
        Print(filled);
    }

    Text HeaderCell(const Column& column) {
        if (!padCells_) return column.Caption;
        Text sCell = PadRight(column.Caption, static_cast<std::size_t>(tables_.lMaxLenOut[column.Index]));
        padWidth_[column.Index] = static_cast<std::int32_t>(sCell.size());
        return sCell;
    }

    void WriteHeaderRow() {
        file_->Write(model_.sModelRow1Open);
        for (std::int16_t position = 1; position < tables_.positions.iPosNumber; ++position) {
            PrintCell(model_.sModelCell1, HeaderCell(ColumnAtPosition(position)));
        }
        PrintNumberCell(model_.sModelCell1, HeaderCell(tables_.lvwOut.ColumnAt(Out::Number)));
        Print(model_.sModelRow1Close);
    }

    void WriteTemplateRow() {
        const PerPosition<Text> tags = MakeColumnTags(tables_);
        Print(model_.sModelRow2Open);
        for (std::int16_t position = 1; position <= tables_.positions.iPosNumber; ++position) {
            Print(ReplaceAll(model_.sModelCell2, kElement, tags[position]));
        }
        Print(model_.sModelRow2Close);
    }

    void WriteDataRows() {
        AnchorWriter anchors(source_);
        for (std::int32_t i = 1; i <= tables_.lvwOut.Count(); ++i) {
            const Row row = tables_.lvwOut.Item(i);
            if (selectedOnly_ && !row.Marked()) continue;
            Print(model_.sModelRow2Open);
            if (format_ == OutFormat::Html) anchors.PutINDEX(*file_, row, false);
            for (std::int16_t position = 1; position < tables_.positions.iPosNumber; ++position) {
                WriteDataCell(row, ColumnAtPosition(position).Index);
            }
            PrintNumberCell(model_.sModelCell2, row.Cell(Out::Number));
            Print(model_.sModelRow2Close);
        }
    }

    void WriteDataCell(const Row& row, ColumnId column) {
        const TextView sCell = row.Cell(column);
        if (padCells_) {
            PrintCell(model_.sModelCell2, PadRight(sCell, static_cast<std::size_t>(padWidth_[column])));
        } else {
            PrintCell(model_.sModelCell2, sCell.empty() ? emptyCell_ : sCell);
        }
    }

    const ListSource& source_;
    ArrangedTables& tables_;
    DocumentVariables variables_;
    ModelPieces model_;
    OutFormat format_;
    bool selectedOnly_;
    TextView emptyCell_;
    TextView marker_;
    bool padCells_ = false;
    Widths padWidth_;
    std::optional<Text> index_;  // nothing when the index is not made
    std::unique_ptr<File> file_;
};

}  // namespace

bool WriteFileFromModel(const ListSource& source, const OutputFormat& format, TextView sOutFile,
                        TextView sModelFile, bool bSelectedOnly) {
    const ScopedFlag wait(source.feedback.bWaitCursor);
    bool opened = false;
    return source.feedback.trail.GuardElse(
        "WriteFileFromModel",
        [&] {
            auto pieces = SplitModel(source.files, source.feedback, sModelFile, *format.model);
            if (!pieces) return false;
            Document document(source, std::move(*pieces), format, bSelectedOnly);
            document.Open(sOutFile);
            opened = true;
            document.WriteRest();
            return true;
        },
        [&] {
            if (opened) {
                source.feedback.trail.ErrorLog(Concat({sOutFile, "/", bSelectedOnly ? "-1" : "0"}));
            } else {
                source.feedback.Box(" - OpenOutput"_t,
                                    Concat({"Erreur d'écriture dans le fichier "_t, sOutFile, "."}));
            }
        });
}

}  // namespace swiftroll::modGenFileFromModel

#pragma once

#include <optional>
#include <span>

#include "writers/list_source.h"
#include "writers/model.h"

namespace swiftroll::modGenFileFromModel {

struct OutputFormat;

/// What one command writes, and where.
struct WriteRequest {
    TextView sOutFile;
    TextView sModelFile;
    TextView sXslFile;  // the stylesheet beside the output; empty for none
    bool bSelectedOnly = false;
};

/// What became of the files of a command; a failure that was told stands in a box.
enum class Written { Whole, FailureTold, FailureUntold };

/// Writes `lvwOut` in a format.
using Writer = Written (*)(const ListSource& source, const OutputFormat& format, const WriteRequest& request);

/// A format in which the Relevé-vif is written.
struct OutputFormat {
    /// How texts of the window name it.
    TextView name;
    /// Caption of its option button.
    TextView caption;
    /// What chooses it on the command line.
    TextView word;
    /// Standard extensions of the list and of its model.
    TextView outExtension, modelExtension;
    /// How its model is read; nothing for a format without a model.
    std::optional<OutFormat> model;
    /// Whether the model makes a stylesheet beside the list, on demand, and not the list.
    bool hasStylesheet;
    /// Whether it can have an alphabetical index.
    bool hasIndex;
    /// What stands for an empty cell in what the model makes.
    TextView sEmptyCell;
    Writer write;

    bool NeedsModel(bool withStylesheet) const { return model && (withStylesheet || !hasStylesheet); }
};

/// The formats by their numbers, which the options hold.
std::span<const OutputFormat> OutputFormats();

/// The number of HTML, which drawings are written in too.
inline constexpr int kHtmlFormat = 0;

/// The number of the one format with a stylesheet.
int StylesheetFormat();

/// What the option record holds of the formats.
std::vector<FormatOption> FormatOptions();

}  // namespace swiftroll::modGenFileFromModel

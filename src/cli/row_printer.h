#pragma once

#include <array>
#include <string>

#include "app/ports.h"
#include "text/text.h"

namespace swiftroll::cli {

/// Prints rows of cells into a file, as UTF-8. What ends a cell or a line stands in a cell as `\t`, `\n`,
/// `\r`, and so `\\`. All members throw Failure FileAccess.
class RowPrinter {
  public:
    explicit RowPrinter(File& file);
    /// The text of a cell.
    void Cell(TextView text);
    /// Bytes that need no care, the tab between cells for one.
    void Raw(std::string_view bytes) { out_ += bytes; }
    void EndLine();
    /// Writes what remains, and closes the file.
    void Finish();

  private:
    void Flush();
    File& file_;
    std::array<bool, 256> isPlain_{};
    std::string out_;
};

}  // namespace swiftroll::cli

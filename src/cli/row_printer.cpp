#include "row_printer.h"

#include "text/code_page.h"

namespace swiftroll::cli {
namespace {

constexpr std::size_t kFlushSize = std::size_t{1} << 16;

}  // namespace

RowPrinter::RowPrinter(File& file) : file_(file) {
    for (unsigned code = 0; code < 256; ++code) isPlain_[code] = code < 0x80;
    for (const char c : {'\t', '\n', '\r', '\\'}) isPlain_[static_cast<unsigned char>(c)] = false;
}

void RowPrinter::Cell(TextView text) {
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isPlain_[static_cast<unsigned char>(text[i])]) continue;
        out_ += text.substr(plain, i - plain);
        plain = i + 1;
        switch (text[i]) {
            case '\t':
                out_ += "\\t";
                break;
            case '\n':
                out_ += "\\n";
                break;
            case '\r':
                out_ += "\\r";
                break;
            case '\\':
                out_ += "\\\\";
                break;
            default:
                out_ += ToUtf8(text.substr(i, 1));
        }
    }
    out_ += text.substr(plain);
}

void RowPrinter::EndLine() {
    out_ += '\n';
    if (out_.size() >= kFlushSize) Flush();
}

void RowPrinter::Finish() {
    Flush();
    file_.Close();
}

void RowPrinter::Flush() {
    file_.Write(out_);
    out_.clear();
}

}  // namespace swiftroll::cli

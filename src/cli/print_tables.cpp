#include "print_tables.h"

#include <array>
#include <string>

#include "text/code_page.h"

namespace swiftroll::cli {
namespace {

constexpr std::size_t kFlushSize = std::size_t{1} << 16;

class Printer {
  public:
    explicit Printer(File& file) : file_(file) {
        for (unsigned code = 0; code < 256; ++code) isPlain_[code] = code < 0x80;
        for (const char c : {'\t', '\n', '\r', '\\'}) isPlain_[static_cast<unsigned char>(c)] = false;
    }

    void Cell(TextView text) {
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
    void Raw(std::string_view bytes) { out_ += bytes; }
    void EndLine() {
        out_ += '\n';
        if (out_.size() >= kFlushSize) Flush();
    }
    void Finish() {
        Flush();
        file_.Close();
    }

  private:
    void Flush() {
        file_.Write(out_);
        out_.clear();
    }
    File& file_;
    std::array<bool, 256> isPlain_{};
    std::string out_;
};

void PrintTable(Printer& printer, Table& table, bool withKeys) {
    if (withKeys) printer.Raw("Key\tTag\tMarques\t");
    for (const Column& column : table.Columns()) {
        if (column.Index.Section() > 0) printer.Raw("\t");
        printer.Cell(column.Key);
    }
    printer.EndLine();
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        const Row row = table.Item(i);
        if (withKeys) {
            printer.Cell(row.Key());
            printer.Raw("\t");
            printer.Cell(row.Tag());
            printer.Raw(row.Selected() ? "\tS" : "\t");
            printer.Raw(row.Checked() ? "C\t" : "\t");
        }
        for (int section = 0; section < table.ColumnCount(); ++section) {
            if (section > 0) printer.Raw("\t");
            printer.Cell(row.Cell(ColumnId::OfSection(section)));
        }
        printer.EndLine();
    }
}

}  // namespace

void PrintTables(const std::vector<Table*>& tables, bool withKeys, File& file) {
    Printer printer(file);
    for (Table* table : tables) {
        if (tables.size() > 1) {
            printer.Raw("# " + table->Name());
            printer.EndLine();
        }
        PrintTable(printer, *table, withKeys);
    }
    printer.Finish();
}

}  // namespace swiftroll::cli

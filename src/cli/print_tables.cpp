#include "print_tables.h"

#include "row_printer.h"

namespace swiftroll::cli {
namespace {

void PrintTable(RowPrinter& printer, Table& table, bool withKeys) {
    if (withKeys) printer.Raw("Key\tTag\tMarques\t");
    for (const Column& column : table.Columns()) {
        if (column.Index.Section() > 0) printer.Raw("\t");
        printer.Cell(column.Key);
    }
    printer.EndLine();
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        const Row row = table.Item(i);
        table.Need(row);
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
    RowPrinter printer(file);
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

#include "list/table_page.h"

#include <algorithm>

#include "text/code_page.h"
#include "text/markup.h"

namespace swiftroll::modCalcOut {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 16;

std::string Escaped(TextView text) { return EscapeMarkup(ToUtf8(text)); }

std::vector<const Column*> ShownColumns(const Table& table) {
    std::vector<const Column*> columns;
    for (const Column& column : table.Columns()) {
        if (column.IsOn()) columns.push_back(&column);
    }
    std::sort(columns.begin(), columns.end(),
              [](const Column* a, const Column* b) { return a->Position < b->Position; });
    return columns;
}

std::string PageHead(const std::string& title) {
    return "<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           title +
           "</title>\n<style>\n"
           "body { font-family: sans-serif; margin: 1.5em; }\n"
           "table { border-collapse: collapse; }\n"
           "th, td { border: 1px solid #bbb; padding: 0.2em 0.6em; text-align: left; }\n"
           "th { background: #e8edf3; color: #000; position: sticky; top: 0; }\n"
           "</style>\n</head>\n<body>\n<h1>" +
           title + "</h1>\n<table>\n<thead>\n<tr>";
}

}  // namespace

void WriteTablePage(File& file, TextView sTitle, Table& table,
                    const std::function<bool(const Row& row)>& isLeftOut) {
    const auto columns = ShownColumns(table);
    std::string page = PageHead(Escaped(sTitle));
    for (const Column* column : columns) page += "<th scope=\"col\">" + Escaped(column->Caption) + "</th>";
    page += "</tr>\n</thead>\n<tbody>\n";
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        const Row row = table.Item(i);
        if (isLeftOut(row)) continue;
        table.Need(row);
        page += "<tr>";
        for (const Column* column : columns) page += "<td>" + Escaped(row.Cell(column->Index)) + "</td>";
        page += "</tr>\n";
        if (page.size() < kPieceSize) continue;
        file.Write(page);
        page.clear();
    }
    file.Write(page + "</tbody>\n</table>\n</body>\n</html>\n");
    file.Close();
}

}  // namespace swiftroll::modCalcOut

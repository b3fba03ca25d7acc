#include "support/test_ports.h"

#include "text/edit.h"

namespace swiftroll::test {

BoxAnswer ScriptedDialogs::Show(const MessageBox& box) {
    boxes.push_back(box);
    if (!answers.empty()) {
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    if (box.topic == BoxTopic::Recalculation) return BoxAnswer::No;
    return box.buttons == BoxButtons::YesNo || box.buttons == BoxButtons::YesNoCancel ? BoxAnswer::Yes
                                                                                      : BoxAnswer::Ok;
}

void ScriptedDialogs::ShowModal(Window& window) {
    if (onWindow) onWindow(window);
    window.Hide();
}

bool ScriptedDialogs::AskFile(const FileRequest& request, Text& chosen) {
    fileRequests.push_back(request);
    if (files.empty()) return false;
    chosen = files.front();
    files.pop_front();
    return true;
}

bool ScriptedDialogs::AskColour(std::uint32_t& chosen) {
    chosen = colour.value_or(chosen);
    return colour.has_value();
}

void ScriptedDialogs::PopUp(const Menu& menu) {
    if (onMenu) onMenu(menu);
}

bool ScriptedDialogs::AskFont(CellFont& chosen) {
    chosen = font.value_or(chosen);
    return font.has_value();
}

void TestMain::Read(TextView gedcom) {
    files.contents["in.ged"] = gedcom;
    main.cboGedIn.SetText("in.ged");
    main.cmdLoad.Click();
}

void TestMain::ReadAndList(TextView gedcom) {
    Read(gedcom);
    main.cmdCalcOutput.Click();
}

std::vector<Text> RowsOf(Table& table) {
    std::vector<Text> rows;
    for (std::int32_t i = 1; i <= table.Count(); ++i) rows.push_back(RowText(table.Item(i)));
    return rows;
}

std::vector<Text> CellsOf(Table& table, std::initializer_list<ColumnId> columns) {
    std::vector<Text> rows;
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        Text text;
        for (const ColumnId column : columns) text += Concat({"|", table.Item(i).Cell(column)});
        rows.push_back(text.substr(1));
    }
    return rows;
}

Text RowText(const Row& row) {
    Text text;
    for (int section = 0; section < row.ColumnCount(); ++section) {
        if (section > 0) text += '|';
        text += row.Cell(ColumnId::OfSection(section));
    }
    return text;
}

Text WithCrLf(TextView text) { return ReplaceAll(text, "\n", "\r\n"); }

}  // namespace swiftroll::test

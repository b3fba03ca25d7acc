// Any bytes as a GEDCOM file: read it, compute the list, write it in all formats, and hold the tables'
// invariants.
#include <cstdint>
#include <cstdlib>
#include <set>

#include "support/test_ports.h"

namespace swiftroll::test {
namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void CheckTable(Table& table) {
    std::set<std::string> keys;
    for (std::int32_t i = 1; i <= table.Count(); ++i) {
        const Row row = table.Item(i);
        Require(row.Index() == i);
        const std::string key = row.Key();
        if (!key.empty()) Require(table.Item(TextView(key)) == row && keys.insert(key).second);
    }
}

void ReadAndWrite(TextView gedcom) {
    TestMain test;
    test.files.contents["model"] =
        "<html>%INDEX%<tr><td>%ELEMENT% </td></tr> <tr><td>%ELEMENT% </td></tr>%INDIVIDUALS%</html>";
    try {
        test.ReadAndList(gedcom);
        for (int format = 0; format < 3; ++format) {
            test.main.cboSaveSwift.SetListIndex(format);
            test.main.cboFileModel.SetText("model");
            test.dialogs.files = {"out"};
            test.main.cmdSaveSwift.Click();
        }
    } catch (const ProgramEnd&) {
        // Two individuals of one identifier end the program after their report.
    }
    for (Table* table : test.main.All()) CheckTable(*table);
}

}  // namespace
}  // namespace swiftroll::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    swiftroll::test::ReadAndWrite({reinterpret_cast<const char*>(data), size});
    return 0;
}

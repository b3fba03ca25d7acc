// The shipped stylesheet, applied to the XML as another program would.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace swiftroll::test {
namespace {

std::size_t CountOf(const std::string& what, const std::string& text) {
    std::size_t count = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++count;
    return count;
}

std::string Bytes(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Stylesheet, MakesThePageOfTheList) {
    std::string name = (std::filesystem::temp_directory_path() / "swiftroll-xsl-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    const std::filesystem::path folder = name;
    const std::string command = "cd '" + name +
                                "' && '" SWIFTROLL_CLI "' releve '" SWIFTROLL_EXAMPLES
                                "/famille.ged' -q -o list.xml --xsl 2>cli.log"
                                " && xsltproc list.xsl list.xml >page.html 2>xslt.log";
    ASSERT_EQ(std::system(command.c_str()), 0) << Bytes(folder / "cli.log") << Bytes(folder / "xslt.log");
    const std::string list = Bytes(folder / "list.xml"), page = Bytes(folder / "page.html");
    const std::size_t rows = CountOf("<INDI>", list);
    EXPECT_GT(rows, 0u);
    EXPECT_EQ(CountOf("<tr", page), rows + 1) << "a row for each group, and the header";
    EXPECT_EQ(CountOf("href=\"#SR_", page), CountOf("<tag>", list));
    EXPECT_EQ(CountOf("id=\"SR_", page), CountOf("<tag>", list)) << "every link of the index leads to a row";
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace swiftroll::test

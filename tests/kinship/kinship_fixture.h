#pragma once

#include <gtest/gtest.h>

#include <random>

#include "support/test_ports.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {

/// A family of a file: "H W C1 C2 ...", "-" where there is no husband or no wife.
inline Text FamilyFile(const std::vector<Text>& people, const std::vector<Text>& families) {
    Text file;
    for (const Text& person : people) {
        // "Anne f": a name and a sex.
        const auto words = Split(person, " ");
        file += Concat({"0 @", words[0], "@ INDI\r\n1 NAME ", words[0], " /de ", words[0], "/\r\n"});
        if (words.size() > 1) file += Concat({"1 SEX ", UpperCase(words[1]), "\r\n"});
    }
    for (std::size_t i = 0; i < families.size(); ++i) {
        file += Concat({"0 @F", Decimal(static_cast<std::int64_t>(i + 1)), "@ FAM\r\n"});
        const auto members = Split(families[i], " ");
        for (std::size_t k = 0; k < members.size(); ++k) {
            const TextView tag = k == 0 ? "HUSB" : k == 1 ? "WIFE" : "CHIL";
            if (members[k] != "-") file += Concat({"1 ", tag, " @", members[k], "@\r\n"});
        }
    }
    return file + "0 TRLR\r\n";
}

/// A file of people "P0", "P1", ... in as many families. Anybody may be husband, wife or child of any family,
/// more than once too.
inline Text TangledFile(int count, std::mt19937& random) {
    std::vector<Text> people, families;
    for (int i = 0; i < count; ++i) people.push_back("P" + Decimal(i) + (random() % 2 == 0 ? " m" : " f"));
    for (int i = 0; i < count; ++i) {
        Text family;
        for (std::size_t k = 0; k < 2 + random() % 3; ++k) {
            const auto person = static_cast<std::int64_t>(random() % static_cast<unsigned>(count));
            family += Concat({k == 0 ? "" : " ", random() % 9 == 0 && k < 2 ? "-" : "P" + Decimal(person)});
        }
        families.push_back(family);
    }
    return FamilyFile(people, families);
}

/// An application that has read a file.
struct AfterRead : TestMain {
    explicit AfterRead(TextView file) { Read(file); }
    AfterRead(const std::vector<Text>& people, const std::vector<Text>& families)
        : AfterRead(FamilyFile(people, families)) {}

    void Find(TextView from, TextView to) {
        main.kinshipRequest.FindPathBetween(Concat({"@", from, "@"}), Concat({"@", to, "@"}));
    }
    /// The paths in the order of the table, each as "000001 A Fils B ... (spouses, rows)".
    std::vector<Text> Paths() {
        std::vector<Text> paths;
        Text path;
        for (std::int32_t i = 1; i <= main.lvwKinship.Count(); ++i) {
            const Row row = main.lvwKinship.Item(i);
            const TextView seqNr = row.Text();
            if (seqNr.ends_with("-999999")) {
                paths.push_back(
                    Concat({path, " (", row.Cell(Kinship::NrSpouses), ", ", row.Cell(Kinship::NrLink), ")"}));
                continue;
            }
            if (seqNr.ends_with("-000001")) path = seqNr.substr(0, seqNr.find('-'));
            const TextView id = row.Cell(Kinship::IDIndi);
            path += Concat({" ", id.substr(1, id.size() - 2)});
            if (!row.Cell(Kinship::Type).empty()) path += Concat({" ", row.Cell(Kinship::Type)});
        }
        return paths;
    }
};

}  // namespace swiftroll::test

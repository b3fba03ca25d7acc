// The job "tables", and the options that all jobs share.
#include <algorithm>

#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

using Tables = CliTest;

/// The cell of a key in a line of a printed table.
std::string CellOf(const std::string& keys, const std::string& line, const std::string& key) {
    const auto cells = [](const std::string& text) {
        Strings parts(1);
        for (const char c : text) {
            if (c == '\t') {
                parts.emplace_back();
            } else {
                parts.back() += c;
            }
        }
        return parts;
    };
    const Strings names = cells(keys), values = cells(line);
    EXPECT_EQ(names.size(), values.size()) << line;
    const auto found = std::find(names.begin(), names.end(), key);
    if (found == names.end() || names.size() != values.size()) return "no cell " + key;
    return values[static_cast<std::size_t>(found - names.begin())];
}

/// The cells of a key in all rows of the one table printed.
Strings ColumnOf(const Outcome& run, const std::string& key) {
    const Strings lines = run.Lines();
    Strings cells;
    for (std::size_t i = 1; i < lines.size(); ++i) cells.push_back(CellOf(lines[0], lines[i], key));
    return cells;
}

TEST_F(Tables, IndividualsInFileOrder) {
    const Outcome run = Cli({"tables", "f.ged"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(
        run.out,
        "ID\tLastName\tFirstName\tBirthPlace\tBirthMin\tBirthMax\tDeathPlace\tDeathMin\tDeathMax\tPlace\t"
        "DateMin\tDateMax\tSex\tMarrPlace\tMarrMin\tMarrMax\tIslandNr\n"
        "@I1@\tde\\tla \\\\Courœ\tRené\tParis, Seine\t1850\t1850\t\t\t\tParis, "
        "Seine\t1850\t1850\tM\t\t\t\t0001\n"
        "@I2@\tBo\xC2\x81\tAnne\tBrest\t\t\tLyon\t\t\tBrest\t\t\tF\t\t\t\t0001\n"
        "@I3@\tDE LA COUR\tLuc\tPARIS SEINE\t1880\t1880\t\t\t\tPARIS SEINE\t1880\t1880\t\t\t\t\t0001\n");
    EXPECT_EQ(run.err, "Ligne(s) GEDCOM : 29\n3 Individu(s)\n1 Famille(s)\nLecture terminée\n");
    const Outcome quiet = Cli({"tables", "f.ged", "-q", "-t", "lvwIn"});
    EXPECT_EQ(quiet.out, run.out);
    EXPECT_EQ(quiet.err, "");
}

TEST_F(Tables, SeveralTablesWithTheirKeysAndMarks) {
    const Outcome run = Cli(
        {"tables", "f.ged", "-t", "lvwFamilyXref,lvwOut,lvwKinship,lvwIn", "--cles", "--marquer", "@I3@"});
    EXPECT_EQ(run.code, 0);
    const Strings lines = run.Lines();
    ASSERT_EQ(lines.size(), 16u);
    EXPECT_EQ(lines[0], "# lvwFamilyXref");
    EXPECT_EQ(lines[1], "Key\tTag\tMarques\tIDFam\tType\tIDIndi\tSex\tFamily\tIndi");
    EXPECT_EQ(lines[2].substr(0, 27), "@F1@@I1@\t\t\t@F1@\tEpoux\t@I1@\t");
    EXPECT_EQ(lines[5], "# lvwOut");
    EXPECT_EQ(CellOf(lines[6], lines[8], "Key"), "\\\\DE LA COUR\\\\PARIS SEINE");
    EXPECT_EQ(CellOf(lines[6], lines[8], "Number"), "     2");
    EXPECT_EQ(lines[9], "# lvwKinship");
    EXPECT_EQ(lines[11], "# lvwIn");
    // The computation of the list has put the individuals in the order of their groups.
    EXPECT_EQ(lines[13].substr(0, 14), "@I2@\t127 224\t\t");
    EXPECT_EQ(lines[14].substr(0, 13), "@I1@\t22 127\t\t");
    EXPECT_EQ(lines[15].substr(0, 16), "@I3@\t224 316\tSC\t");
}

TEST_F(Tables, FieldsAreSetInTheOrderOfTheCommandLine) {
    const auto places = [&](const Strings& options) {
        Strings arguments = {"tables", "f.ged", "-q"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.code, 0) << run.err;
        return ColumnOf(run, "Place");
    };
    EXPECT_EQ(places({"--set", "txtPlaceFormat=%1"}), (Strings{"Paris", "Brest", "PARIS SEINE"}));
    EXPECT_EQ(places({"--set", "txtPlaceFormat=%1", "--set=txtPlaceFormat=é=%0"}),
              (Strings{"é=Paris, Seine", "é=Brest", "é=PARIS SEINE"}));
    EXPECT_EQ(places({"--ordre-lieux", "2,1,3"}), (Strings{"Paris, Seine", "Lyon", "PARIS SEINE"}));
    EXPECT_EQ(places({"--ordre-lieux", "2,1,3", "--set", "lbOuputPlacesOrder=1,2,3"}),
              (Strings{"Paris, Seine", "Brest", "PARIS SEINE"}));
    EXPECT_EQ(ColumnOf(Cli({"tables", "f.ged", "--set", "chkUpperNames=1"}), "LastName"),
              (Strings{"DE\\tLA \\\\COURŒ", "BO\xC2\x81", "DE LA COUR"}));
}

TEST_F(Tables, ColumnsBeforeTheNumberFormTheGroups) {
    const auto list = [&](const Strings& options, const std::string& key) {
        Strings arguments = {"tables", "f.ged", "-q", "-t", "lvwOut"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.code, 0) << run.err;
        return ColumnOf(run, key);
    };
    EXPECT_EQ(list({}, "DateMax"), (Strings{"", "1880"}));
    EXPECT_EQ(list({"--colonnes", ""}, "Number"), (Strings{"     3"}));
    EXPECT_EQ(list({"--colonnes", "Place,BirthMin"}, "BirthMin"), (Strings{"", "1850"}));
    EXPECT_EQ(list({"--colonnes", "ID"}, "ID"), (Strings{"@I1@", "@I2@", "@I3@"}));
    EXPECT_EQ(list({"--colonnes", "ID", "--colonnes", "LastName"}, "ID"), (Strings{"", ""}));
    EXPECT_EQ(list({"--colonnes", "LastName"}, "Place"), (Strings{"", ""}));
}

TEST_F(Tables, WithoutFamilies) {
    const Outcome run = Cli({"tables", "f.ged", "--sans-familles", "-t", "lvwFamily,lvwXref,lvwIn"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.Lines().size(), 3u + 3u + 3u);
}

TEST_F(Tables, UsageErrorsNameTheirCause) {
    const std::pair<Strings, std::string> cases[] = {
        {{"tables", "f.ged", "--set", "chkFoo=1"}, "chkFoo"},
        {{"tables", "f.ged", "--set", "txtOutExtension=a"}, "txtOutExtension"},
        {{"tables", "f.ged", "--set", "chkTips=yes"}, "chkTips"},
        {{"tables", "f.ged", "--set", "chkTips"}, "chkTips"},
        {{"tables", "f.ged", "--set", "optFullName=2"}, "optFullName"},
        {{"tables", "f.ged", "--set", "cboLoad=Tout"}, "cboLoad"},
        {{"tables", "f.ged", "--set", "cmdColorMale=bleu"}, "cmdColorMale"},
        {{"tables", "f.ged", "--set", "cmdLoad=1"}, "cmdLoad"},
        {{"tables", "f.ged", "--set", "txtPlaceSepar=Ω"}, "Ω"},
        {{"tables", "f.ged", "--set"}, "--set"},
        {{"tables", "f.ged", "--ordre-lieux", "1,2"}, "1,2"},
        {{"tables", "f.ged", "--ordre-lieux", "1,2,2"}, "1,2,2"},
        {{"tables", "f.ged", "--colonnes", "Place,Prénom"}, "Prénom"},
        {{"tables", "f.ged", "--colonnes", "Place,"}, "colonne"},
        {{"tables", "f.ged", "--colonnes", "Number"}, "Number"},
        {{"tables", "f.ged", "--colonnes", "Place,Sex,Place"}, "Place"},
        {{"tables", "f.ged", "-t", "lvwIn,lvwFoo"}, "lvwFoo"},
        {{"tables", "f.ged", "-t", ""}, "table"},
        {{"tables", "f.ged", "--foo"}, "--foo"},
        {{"tables", "f.ged", "-o", "x"}, "-o"},
        {{"tables", "f.ged", "g.ged"}, "g.ged"},
        {{"tables", "f.ged", "--ajouter", "parents"}, "--ajouter"},
        {{"tables"}, "GEDCOM"},
        {{"releve", "f.ged"}, "-o"},
        {{"extrait", "f.ged", "-o", "x.ged"}, "extrait"},
        {{"parente", "f.ged", "@I1@", "@I3@"}, "parente"},
        {{}, "tables"},
    };
    for (const auto& [arguments, cause] : cases) {
        const Outcome run = Cli(arguments);
        const std::string line = testing::PrintToString(arguments) + run.err;
        EXPECT_EQ(run.code, 2) << line;
        EXPECT_TRUE(run.Says(cause)) << line;
        EXPECT_FALSE(run.Says("expected")) << "not in French: " << line;
        EXPECT_EQ(run.out, "") << line;
        EXPECT_FALSE(run.Says("Ligne(s)")) << line;
    }
}

TEST_F(Tables, HelpAndVersion) {
    const Outcome help = Cli({"--aide"});
    EXPECT_EQ(help.code, 0);
    for (const char* word : {"tables", "releve", "--colonnes", "--strict", "écrase"}) {
        EXPECT_NE(help.out.find(word), std::string::npos) << word;
    }
    const Outcome version = Cli({"--version"});
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.out, "SwiftRoll 3.4.0\n");
}

TEST_F(Tables, WhatCannotBeReadOrPrintedFails) {
    const Outcome missing = Cli({"tables", "none.ged"});
    EXPECT_EQ(missing.code, 1);
    EXPECT_EQ(missing.out, "");
    EXPECT_TRUE(missing.Says("SwiftRoll (v3.4.0) - InitGed : Le fichier none.ged n'existe pas.\n"))
        << missing.err;
    EXPECT_EQ(Cli({"tables", "home", "-q"}).code, 1);
    const Outcome unknown = Cli({"tables", "f.ged", "-q", "--marquer", "@I1@,@I9@"});
    EXPECT_EQ(unknown.code, 1);
    EXPECT_TRUE(unknown.Says("@I9@")) << unknown.err;
    EXPECT_EQ(unknown.out, "");
    EXPECT_EQ(Cli({"tables", "f.ged", "-q"}, "/dev/full").code, 1);
}

TEST_F(Tables, BoxesAreAnsweredInAHurryOrStrictly) {
    Put("c.ged", "0 HEAD\r\n1 CHAR UTF-8\r\n0 @I1@ INDI\r\n0 TRLR\r\n");
    Put("l.ged", "0 @I1@ INDI\r\n0 @I2@ INDI\r\nJunk line\r\n0 @I3@ INDI\r\n0 TRLR\r\n");
    for (const auto& [file, box] :
         {std::pair{"c.ged", "UTF-8 : Jeu de caractères non supporté"}, {"l.ged", "Erreur Ligne"}}) {
        const Outcome hurried = Cli({"tables", file, "-q"});
        EXPECT_EQ(hurried.code, 0) << hurried.err;
        EXPECT_TRUE(hurried.Says(box)) << hurried.err;
        const Outcome strict = Cli({"tables", file, "-q", "--strict"});
        EXPECT_EQ(strict.code, 3) << strict.err;
        EXPECT_EQ(strict.err, hurried.err);
        EXPECT_LT(strict.Lines().size(), hurried.Lines().size());
        EXPECT_TRUE(hurried.out.starts_with(strict.Lines()[0]));
        const Outcome releve = Cli({"releve", file, "-q", "--strict", "-o", "x.html"});
        EXPECT_EQ(releve.code, 3) << releve.err;
        EXPECT_FALSE(Exists("x.html"));
    }
}

TEST_F(Tables, AFailureGoesToTheLogToo) {
    Put("twice.ged", "0 @I1@ INDI\r\n0 @I1@ INDI\r\n0 TRLR\r\n");
    const Outcome run = Cli({"tables", "twice.ged", "-q"});
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.Says("SwiftRoll (v3.4.0) - Erreur \"")) << run.err;
    const std::string log = Bytes("data/SwiftRoll/SwiftRoll.log");
    EXPECT_NE(log.find("SwiftRoll (v3.4.0) - Erreur \""), std::string::npos) << log;
    EXPECT_NE(log.find("\r\nlvwIn         = 1\r\n"), std::string::npos) << log;
    environment = {"XDG_DATA_HOME=/dev/null"};
    EXPECT_EQ(Cli({"tables", "twice.ged", "-q"}).code, 1);
    EXPECT_EQ(Bytes("data/SwiftRoll/SwiftRoll.log"), log);
}

TEST_F(Tables, AnInterruptedReadPrintsWhatWasRead) {
    const Outcome run =
        CliInterrupted("fifo", {"tables", "fifo", "-q"}, Crowd(1, 20000), Crowd(20001, 40000));
    EXPECT_EQ(run.code, 3) << run.err;
    const Strings ids = ColumnOf(run, "ID");
    ASSERT_GT(ids.size(), 0u);
    EXPECT_LT(ids.size(), 60000u);
    EXPECT_EQ(ids.back(), "@I" + std::to_string(ids.size()) + "@");
    EXPECT_FALSE(Exists("data/SwiftRoll/SwiftRoll.log"));
}

TEST_F(Tables, NamesOfFilesCanHaveAnyCharacter) {
    for (const char* name : {"é œ.ged", "Ωμέγα.ged", "\xFF\x81.ged", "[a],b.ged"}) {
        Put(name, kFamily);
        const Outcome run = Cli({"tables", name, "-q"});
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.Lines().size(), 4u) << name;
    }
    EXPECT_TRUE(Cli({"tables", "œuvre.ged"}).Says("Le fichier œuvre.ged n'existe pas."));
}

TEST_F(Tables, TheExampleIsRead) {
    const std::string example = std::string(SWIFTROLL_EXAMPLES) + "/famille.ged";
    const Outcome run = Cli({"tables", example, "-q", "--strict"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.Lines().size(), 110u);
    int people = 0;
    for (const std::string& number : ColumnOf(Cli({"tables", example, "-q", "-t", "lvwOut"}), "Number")) {
        people += std::stoi(number);
    }
    EXPECT_EQ(people, 109);
}

}  // namespace
}  // namespace swiftroll::test

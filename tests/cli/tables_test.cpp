// The job "tables", and the options that all jobs share.
#include <algorithm>

#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Tables : CliTest {
    /// The cells of a key in all rows of the one table that is printed.
    static Strings ColumnOf(const Outcome& run, const std::string& key) {
        EXPECT_TRUE(run.code == 0 || run.code == 3) << run.err;
        const Strings lines = run.Lines();
        const Strings keys = lines.empty() ? lines : Split(lines[0], '\t');
        const auto column = static_cast<std::size_t>(std::find(keys.begin(), keys.end(), key) - keys.begin());
        Strings cells;
        for (std::size_t i = 1; i < lines.size(); ++i) {
            Strings row = Split(lines[i], '\t');
            row.resize(keys.size());
            cells.push_back(row.at(column));
        }
        return cells;
    }
};

TEST_F(Tables, SeveralTablesWithTheirKeysAndMarks) {
    const Strings lines =
        Cli({"tables", "f.ged", "-t", "lvwFamilyXref,lvwOut,lvwKinship,lvwIn", "--cles", "--marquer", "@I3@"})
            .Lines();
    ASSERT_EQ(lines.size(), 16u);
    // The computation of the list has put the individuals in the order of their groups.
    const std::pair<std::size_t, std::string> beginnings[] = {
        {0, "# lvwFamilyXref"},
        {1, "Key\tTag\tMarques\tIDFam\tType\tIDIndi\tSex\tFamily\tIndi"},
        {2, "@F1@@I1@\t\t\t@F1@\tEpoux\t@I1@\t"},
        {5, "# lvwOut"},
        {8, "\\\\DE LA COUR\\\\PARIS SEINE\t"},
        {9, "# lvwKinship"},
        {11, "# lvwIn"},
        {13, "@I2@\t127 224\t\t"},
        {14, "@I1@\t22 127\t\t"},
        {15, "@I3@\t224 316\tSC\t"}};
    for (const auto& [line, beginning] : beginnings)
        EXPECT_TRUE(lines[line].starts_with(beginning)) << lines[line];
    EXPECT_EQ(Cli({"tables", "f.ged", "--sans-familles", "-t", "lvwFamily,lvwXref,lvwIn"}).Lines().size(),
              9u);
}

TEST_F(Tables, FieldsAndColumnsAreSetInTheOrderOfTheCommandLine) {
    const struct {
        Strings options;
        const char* key;
        Strings cells;
    } cases[] = {
        {{"--set", "txtPlaceFormat=%1"}, "Place", {"Paris", "Brest", "PARIS SEINE"}},
        {{"--set", "txtPlaceFormat=%1", "--set=txtPlaceFormat=é=%0"},
         "Place",
         {"é=Paris, Seine", "é=Brest", "é=PARIS SEINE"}},
        {{"--ordre-lieux", "2,1,3"}, "Place", {"Paris, Seine", "Lyon", "PARIS SEINE"}},
        {{"--ordre-lieux", "2,1,3", "--set", "lbOuputPlacesOrder=1,2,3"},
         "Place",
         {"Paris, Seine", "Brest", "PARIS SEINE"}},
        {{"--set", "chkUpperNames=1"}, "LastName", {"DE\\tLA \\\\COURŒ", "BO\xC2\x81", "DE LA COUR"}},
        {{"-t", "lvwOut"}, "DateMax", {"", "1880"}},
        {{"-t", "lvwOut", "--colonnes", ""}, "Number", {"     3"}},
        {{"-t", "lvwOut", "--colonnes", "Place,BirthMin"}, "BirthMin", {"", "1850"}},
        {{"-t", "lvwOut", "--colonnes", "ID", "--colonnes", "LastName"}, "ID", {"", ""}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ColumnOf(Cli(Strings{"tables", "f.ged", "-q"} + c.options), c.key), c.cells)
            << testing::PrintToString(c.options);
    }
}

TEST_F(Tables, UsageErrorsNameTheirCause) {
    const auto expectError = [&](const Strings& arguments, const std::string& cause) {
        const Outcome run = Cli(arguments);
        SCOPED_TRACE(testing::PrintToString(arguments) + run.err);
        run.Ends(2, cause);
        EXPECT_FALSE(run.Says("expected")) << "not in French";
        EXPECT_FALSE(run.Says("Ligne(s)"));
        EXPECT_EQ(run.out, "");
    };
    for (const std::string value :
         {"chkFoo=1", "txtOutExtension=a", "chkTips=yes", "chkTips", "optFullName=2", "cboLoad=Tout",
          "cmdColorMale=bleu", "cmdLoad=1", "txtMaxLinks=0", "txtMaxSpouses=0,5", "txtMaxSpouses=dix",
          "txtINDEX=a", "txtINDEX="}) {
        expectError({"tables", "f.ged", "--set", value}, Split(value, '=')[0]);
    }
    for (const std::string words :
         {"--set|--set", "--set txtPlaceSepar=Ω|Ω", "--ordre-lieux 1,2|1,2", "--ordre-lieux 1,2,2|1,2,2",
          "--colonnes Place,Prénom|Prénom", "--colonnes Place,|colonne", "--colonnes Number|Number",
          "--colonnes Place,Sex,Place|Place", "-t lvwIn,lvwFoo|lvwFoo", "--foo|--foo", "-o x|-o",
          "g.ged|g.ged", "--ajouter|--ajouter", "--ajouter parent|parent", "--enlever V=|V=",
          "--ajouter Nom<=|Nom<=", "--enlever =|=", "--ajouter LastName|LastName", "--ajouter Ω>=|Ω"}) {
        const Strings sides = Split(words, '|');
        expectError(Strings{"tables", "f.ged"} + Split(sides[0], ' '), sides[1]);
    }
    for (const std::string mode : {"ascendants:0", "descendants:", "ascendants:x"}) {
        expectError({"tables", "f.ged", "--ajouter", mode}, mode);
    }
    expectError({"tables"}, "GEDCOM");
    expectError({"parente"}, "GEDCOM");
    expectError({"releve", "f.ged"}, "-o");
    expectError({"extrait", "f.ged"}, "-o");
    expectError({"tables", "f.ged", "-t", ""}, "table");
    expectError({}, "tables");
}

TEST_F(Tables, MarksAreAddedAndRemovedInTheOrderOfTheCommandLine) {
    const struct {
        const char* options;
        Strings marks;
    } cases[] = {
        {"--marquer @I3@ --ajouter parents", {"SC", "SC", "SC"}},
        {"--ajouter parents --marquer @I3@", {"", "", "SC"}},
        {"--marquer @I1@ --ajouter enfants --enlever individus", {"", "", ""}},
        {"--marquer @I1@ --enlever individus --marquer @I2@", {"", "SC", ""}},
        {"--marquer @I2@ --ajouter conjoints", {"SC", "SC", ""}},
        {"--marquer @I3@,@I1@ --enlever enfants", {"SC", "", ""}},
        {"--marquer @I3@ --ajouter parents --enlever BirthMin>=", {"", "", ""}},
        {"--marquer @I3@ --ajouter ascendants:9999999999 --enlever descendants:1", {"SC", "SC", ""}},
        {"--marquer @I1@ --ajouter BirthMin<=", {"SC", "SC", ""}},
        {"--marquer @I1@ --ajouter BirthPlace=", {"SC", "", "SC"}},
        {"--set chkDelAccents=0 --marquer @I1@ --ajouter BirthPlace=", {"SC", "", ""}},
        {"--sans-familles --marquer @I1@ --ajouter enfants", {"SC", "", ""}},
    };
    for (const auto& c : cases) {
        const Strings options = Split(c.options, ' ');
        EXPECT_EQ(ColumnOf(Cli(Strings{"tables", "f.ged", "-q", "--cles"} + options), "Marques"), c.marks)
            << c.options;
    }
    const Outcome list = Cli({"releve", "f.ged", "-q", "-o", "-", "--format", "texte", "--marques",
                              "--marquer", "@I1@", "--ajouter", "conjoints"});
    EXPECT_NE(list.out.find("Brest"), std::string::npos) << list.out;
}

TEST_F(Tables, HelpAndVersion) {
    const std::string help = Cli({"--aide"}).out;
    // The words that the program offers where none is given.
    const std::string message = Split(Cli({}).err, '\n').at(0);
    std::size_t jobs = 0;
    for (std::string word : Split(message.substr(message.rfind(" : ") + 3), ' ')) {
        if (word == "ou") continue;
        if (word.back() == ',') word.pop_back();
        EXPECT_NE(help.find("\n  swiftroll-cli " + word + " FICHIER.ged"), std::string::npos) << word;
        ++jobs;
    }
    EXPECT_GE(jobs, 4u) << message;
    EXPECT_EQ(Cli({"--version"}).out, "SwiftRoll 3.4.0\n");
}

TEST_F(Tables, WhatCannotBeReadOrPrintedFails) {
    const std::pair<Strings, std::string> cases[] = {
        {{"œuvre.ged"}, "SwiftRoll (v3.4.0) - InitGed : Le fichier œuvre.ged n'existe pas.\n"},
        {{"home"}, "home"},
        {{"f.ged", "--marquer", "@I1@,@I9@"}, "@I9@"}};
    for (const auto& [words, message] : cases) {
        const Outcome run = Cli(Strings{"tables", "-q"} + words);
        run.Ends(1, message);
        EXPECT_EQ(run.out, "");
    }
    EXPECT_EQ(Cli({"tables", "f.ged", "-q"}, "/dev/full").code, 1);
}

TEST_F(Tables, BoxesAreAnsweredInAHurryOrStrictly) {
    Put("c.ged", "0 HEAD\r\n1 CHAR KOI8-R\r\n0 @I1@ INDI\r\n1 NAME \xE9\r\n0 TRLR\r\n");
    Put("l.ged", "0 @I1@ INDI\r\n0 @I2@ INDI\r\nJunk line\r\n0 @I3@ INDI\r\n0 TRLR\r\n");
    for (const auto& [file, box] :
         {std::pair{"c.ged", "KOI8-R : Jeu de caractères non supporté"}, {"l.ged", "Erreur Ligne"}}) {
        const Outcome hurried = Cli({"tables", file, "-q"});
        hurried.Ends(0, box);
        const Outcome strict = Cli({"tables", file, "-q", "--strict"});
        EXPECT_EQ(strict.code, 3) << strict.err;
        EXPECT_EQ(strict.err, hurried.err);
        EXPECT_LT(strict.Lines().size(), hurried.Lines().size());
        EXPECT_EQ(Cli({"releve", file, "-q", "--strict", "-o", "x.html"}).code, 3);
        EXPECT_FALSE(Exists("x.html"));
    }
}

TEST_F(Tables, AFailureOfTheReadGoesToTheLogAndDropsNoJob) {
    std::string place = "%1";  // that the formatter would replace without end
    for (int n = 2; n <= 9; ++n) {
        for (int i = 0; i < 20; ++i) place += "%" + std::to_string(n);
        place += ",";
    }
    Put("grows.ged", "0 @I1@ INDI\r\n1 BIRT\r\n2 PLAC " + place + "\r\n0 @F1@ FAM\r\n0 TRLR\r\n");
    const Strings words = {"grows.ged", "-q", "--set", "txtPlaceFormat=%1"};
    const Outcome run = Cli(Strings{"tables"} + words);
    run.Ends(1, "SwiftRoll (v3.4.0) - Erreur \"");
    EXPECT_EQ(run.Lines().size(), 2u) << run.out;
    const std::string log = Bytes("data/SwiftRoll/SwiftRoll.log");
    EXPECT_NE(log.find("SwiftRoll (v3.4.0) - Erreur \""), std::string::npos) << log;
    EXPECT_NE(log.find("\r\nlvwIn         = 1\r\n"), std::string::npos) << log;
    for (const char* job : {"releve", "extrait"}) {
        EXPECT_EQ(Cli(Strings{job} + words + Strings{"-o", job, "--marquer", "@I1@"}).code, 1);
        EXPECT_TRUE(Exists(job)) << job;
    }
    environment = {"XDG_DATA_HOME=/dev/null"};
    EXPECT_EQ(Cli(Strings{"tables"} + words).code, 1);
}

TEST_F(Tables, AnInterruptedReadPrintsWhatWasRead) {
    const Outcome run = CliInterrupted({"tables", "fifo", "-q"});
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
        EXPECT_EQ(Cli({"tables", name, "-q"}).Lines().size(), 4u) << name;
    }
}

}  // namespace
}  // namespace swiftroll::test

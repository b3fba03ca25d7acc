// The job "parente".
#include <cstdlib>

#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Parente : CliTest {};

TEST_F(Parente, PrintsThePathsOfThePair) {
    const Outcome run = Cli({"parente", "f.ged", "@I3@", "@I2@"});
    EXPECT_EQ(run.code, 0);
    const Strings lines = run.Lines();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "SeqNr\tIDIndi\tIndi\tType\tIDFamily\tFamily\tNrSpouses\tNrLink");
    EXPECT_TRUE(lines[1].starts_with("000001-000001\t@I3@\tDE LA COUR, Luc\tEnfant\t@F1@\t")) << lines[1];
    EXPECT_TRUE(lines[2].starts_with("000001-000002\t@I2@\t")) << lines[2];
    EXPECT_EQ(run.err,
              "Ligne(s) GEDCOM : 29\n3 Individu(s)\n1 Famille(s)\n1 liens de parenté trouvé(s) au total.\n");
    // Whatever is marked, and whatever the order of the rows.
    const Outcome other = Cli({"parente", "f.ged", "@I2@", "@I3@", "--marquer", "@I1@", "-q"});
    EXPECT_EQ(other.code, 0);
    EXPECT_TRUE(other.Lines().at(1).starts_with("000001-000001\t@I2@\t"));
    EXPECT_EQ(other.err, "");
}

TEST_F(Parente, WritesTheTablesAskedFor) {
    EXPECT_EQ(Cli({"parente", "f.ged", "@I3@", "@I2@", "-t", "lvwKinship,lvwXref1", "-o", "liste.tsv"}).code,
              0);
    const std::string list = Bytes("liste.tsv");
    EXPECT_TRUE(list.starts_with("# lvwKinship\nSeqNr\t"));
    EXPECT_NE(list.find("# lvwXref1\nIndi1\tType\tIndi2\tIDFamily\tFamily\n@I1@\tEpoux\t@I2@\t@F1@\t"),
              std::string::npos)
        << list;
    Cli({"parente", "f.ged", "@I3@", "@I1@", "-o", "liste.tsv"}).Ends(1, "liste.tsv existe déjà");
    EXPECT_EQ(Bytes("liste.tsv"), list);
    EXPECT_EQ(Cli({"parente", "f.ged", "@I3@", "@I1@", "-o", "f.ged", "-f"}).code, 1);
    EXPECT_EQ(Cli({"parente", "f.ged", "@I3@", "@I1@", "-o", "liste.tsv", "-f"}).code, 0);
    EXPECT_NE(Bytes("liste.tsv"), list);
    Cli({"parente", "f.ged", "@I3@", "@I1@", "-o", "no/where"}).Ends(1, "no/where");
}

TEST_F(Parente, RefusesWhatIsNoPairWithTheBoxOfTheRequest) {
    Put("two.ged", kFamily.substr(0, kFamily.find("0 TRLR")) + "0 @I4@ INDI\r\n0 TRLR\r\n");
    for (const std::string id : {"@I2@", "@I4@"}) {
        const Outcome run = Cli({"parente", "two.ged", "@I2@", id});
        run.Ends(1, "SwiftRoll (v3.4.0) - Parenté : Il faut spécifier les 2 individus");
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(run.Says(id == "@I2@" ? "  1 Individu(s) En Surbrillance ET Cochés"
                                          : "  2 Individu(s) En Surbrillance ET Cochés"))
            << run.err;
    }
    Cli({"parente", "f.ged", "@I2@", "@I9@"}).Ends(1, "@I9@");
    const Outcome without = Cli({"parente", "f.ged", "@I2@", "@I3@", "--sans-familles"});
    without.Ends(1, "--sans-familles");
    EXPECT_EQ(without.out, "");
}

TEST_F(Parente, StopsAtItsLimitsAndKeepsWhatItFound) {
    const auto paths = [](const Outcome& run) { return CountOf("-999999\t", run.out); };
    // The last path there is, too, is one too many.
    const Outcome only = Cli({"parente", "f.ged", "@I3@", "@I2@", "--max", "1"});
    EXPECT_EQ(only.code, 3);
    EXPECT_EQ(paths(only), 1u);
    EXPECT_EQ(Cli({"parente", "f.ged", "@I3@", "@I2@", "--max", "2", "--delai", "60"}).code, 0);
    // Two rows of people, everybody linked by marriage to the one beside and by descent to the one below.
    std::string crowd;
    constexpr int kGenerations = 40;
    for (int i = 0; i <= kGenerations; ++i) {
        const std::string n = std::to_string(i), next = std::to_string(i + 1);
        crowd += "0 @M" + n + "@ INDI\n1 SEX M\n0 @W" + n + "@ INDI\n1 SEX F\n";
        crowd += "0 @F" + n + "@ FAM\n1 HUSB @M" + n + "@\n1 WIFE @W" + n + "@\n";
        if (i < kGenerations) crowd += "1 CHIL @M" + next + "@\n1 CHIL @W" + next + "@\n";
    }
    Put("many.ged", crowd + "0 TRLR\n");
    const Outcome some = Cli({"parente", "many.ged", "@M0@", "@W40@", "--max", "25"});
    EXPECT_EQ(some.code, 3);
    EXPECT_EQ(paths(some), 25u);
    EXPECT_TRUE(some.Says("25 liens de parenté trouvé(s) au total."));
    Cli({"parente", "many.ged", "@M0@", "@W40@", "--max", "25", "--set", "chkMaxLinks=1", "--set",
         "txtMaxLinks=41"})
        .Ends(3, " non affiché(s).");
    const Outcome nearest =
        Cli({"parente", "many.ged", "@M0@", "@W40@", "--proches", "25", "-t", "lvwKinship,lvwPaths"});
    EXPECT_EQ(nearest.code, 0) << nearest.err;
    EXPECT_EQ(paths(nearest), 25u);
    EXPECT_TRUE(nearest.Says("25 liens de parenté trouvé(s) au total."));
    EXPECT_EQ(CountOf("\t000\t0041\t40\t40\t@M0@\tOui\n", nearest.out), 25u) << nearest.out;
    const Outcome timed = Cli({"parente", "many.ged", "@M0@", "@W40@", "--delai", "0.05", "-o", "k.tsv"});
    EXPECT_EQ(timed.code, 3);
    EXPECT_TRUE(Bytes("k.tsv").starts_with("SeqNr\t"));
}

TEST_F(Parente, DrawsThePathsFound) {
    const auto boxes = [&](const char* page) { return CountOf("\n<table class=Indiv", Bytes(page)); };
    const Strings pair{"parente", "f.ged", "@I3@", "@I2@", "-o", "k.tsv", "-f"};
    const Outcome run = Cli(pair + Strings{"--dessin", "page.html"});
    run.Ends(0, "Inégalité");  // the gap takes the size of the box, and that is told
    EXPECT_TRUE(run.Says(" : Terminé\n"));
    EXPECT_EQ(boxes("page.html"), 3u) << "the child and both parents";
    EXPECT_EQ(Cli(pair + Strings{"--dessin", "page.html", "--mode", "toutes", "-q"}).err,
              "SwiftRoll (v3.4.0) - Fichier existant : Le fichier existe déjà\npage.html\n"
              "Voulez-vous l'écraser ?\n");
    EXPECT_EQ(boxes("page.html"), 2u);
    EXPECT_EQ(Cli(pair + Strings{"--dessin", "page.html", "--mode", "une", "--lignes", "000001-000002"}).code,
              0);
    EXPECT_EQ(boxes("page.html"), 1u) << "from the last row on";
    EXPECT_EQ(Cli(pair + Strings{"--dessin", "page.html", "--mode", "une+"}).code, 0);
    EXPECT_EQ(boxes("page.html"), 3u);
    const Outcome unknown =
        Cli(pair + Strings{"--dessin", "new.html", "--mode", "une", "--lignes", "000009-000001"});
    unknown.Ends(1, "000009-000001");
    EXPECT_FALSE(Exists("new.html"));
    const Outcome kept = Cli({"parente", "f.ged", "@I3@", "@I2@", "--dessin", "page.html"});
    EXPECT_EQ(kept.code, 1);
    EXPECT_EQ(kept.out, "");
    const Outcome screen = Cli(pair + Strings{"--dessin", "-", "-q"});
    EXPECT_TRUE(screen.out.starts_with("<HTML>\r\n")) << screen.err;
}

TEST_F(Parente, DrawsAsPdfAndSvgByTheExtension) {
    environment = {"SOURCE_DATE_EPOCH=1700000000"};
    const Strings pair{"parente", "f.ged", "@I3@", "@I2@", "-o", "k.tsv", "-f"};
    EXPECT_EQ(Cli(pair + Strings{"--dessin", "a.PDF", "--set", "txtFont=Arial|8|0|0|0|0|0"}).code, 0);
    EXPECT_EQ(Cli(pair + Strings{"--dessin", "b.pdf"}).code, 0);
    const std::string pdf = Bytes("b.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-") && pdf.ends_with("%%EOF\n"));
    EXPECT_NE(pdf.find("20231114"), std::string::npos) << "the time of the epoch";
    EXPECT_EQ(Bytes("a.PDF"), pdf);
    EXPECT_EQ(Cli(pair + Strings{"--dessin", "c.svg", "--set", "txtFont=D<&\"|8|0|0|0|0|0"}).code, 0);
    const std::string svg = Bytes("c.svg");
    EXPECT_NE(svg.find("font-family=\"'D&lt;&amp;&quot;', sans-serif\""), std::string::npos) << svg;
    EXPECT_NE(svg.find(">Luc, DE LA COUR</text>"), std::string::npos);
    EXPECT_NE(svg.find("<title>Chemin 1 : mère (2 liaisons, 0 conjoint)</title>"), std::string::npos);
    EXPECT_EQ(svg.find('\t'), std::string::npos) << "a tab of a name";
    EXPECT_EQ(CountOf("<rect ", svg), 4u) << "three boxes and the ground";
    Cli(pair + Strings{"--dessin", "no/where.svg"})
        .Ends(1, "Erreur d'écriture dans le fichier no/where.svg.");
    Cli(pair + Strings{"--dessin", "no/where.pdf"})
        .Ends(1, "Erreur d'écriture dans le fichier no/where.pdf.");
    // Two ways from one to the other: by either parent of both.
    Put("two.ged",
        "0 @I1@ INDI\n1 SEX M\n0 @I2@ INDI\n1 SEX F\n0 @I3@ INDI\n1 SEX M\n0 @I4@ INDI\n1 SEX F\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I3@\n1 CHIL @I4@\n0 @F2@ FAM\n1 WIFE @I2@\n1 CHIL @I3@\n1 CHIL "
        "@I4@\n"
        "0 TRLR\n");
    const Strings two{"parente", "two.ged", "@I3@", "@I4@", "-o", "k.tsv", "-f", "--dessin"};
    EXPECT_EQ(Cli(two + Strings{"p.svg"}).code, 0);
    EXPECT_EQ(CountOf("<title>Chemin", Bytes("p.svg")), 2u);
    EXPECT_EQ(Cli(two + Strings{"p.svg", "--dessin-max", "1"}).code, 0);
    EXPECT_EQ(CountOf("<title>Chemin", Bytes("p.svg")), 1u);
    EXPECT_EQ(Cli(two + Strings{"p.pdf"}).code, 0);
    EXPECT_EQ(CountOf("/Type /Page ", Bytes("p.pdf")), 1u);
    EXPECT_EQ(Cli(two + Strings{"p.pdf", "--chemin-par-page"}).code, 0);
    EXPECT_EQ(CountOf("/Type /Page ", Bytes("p.pdf")), 2u);
}

TEST_F(Parente, FillsHalfOfADiskOnlyWhenToldTo) {
    if (std::system("unshare -Urm mount -t tmpfs none /mnt 2>/dev/null") != 0) {
        GTEST_SKIP() << "no disk can be mounted here";
    }
    std::filesystem::create_directory(folder_ / "small");
    launcher = {"unshare", "-Urm", "sh", "-c", "mount -t tmpfs -o size=32k none small && exec \"$@\"", "sh"};
    const Strings words{"parente", kExample, "@I70@", "@I60@", "-q", "-o", "small/k.tsv"};
    Cli(words).Ends(1, "Le fichier prendrait environ");
    EXPECT_EQ(Cli(words + Strings{"--grand"}).code, 0);
}

TEST_F(Parente, UsageErrorsNameTheirCause) {
    for (const std::string words :
         {"|identifiants", "@I2@ --max 0|--max", "@I2@ --max 1x|--max", "@I2@ --proches 0|--proches",
          "@I2@ --delai nan|--delai", "@I2@ --delai -1|--delai", "@I2@ --dessin -|-o",
          "@I2@ --dessin x.html --mode deux|deux", "@I2@ --dessin x.html --lignes 000001-000001|--lignes",
          "@I2@ --mode une|--dessin", "@I2@ --dessin-max 3|--dessin-max",
          "@I2@ --dessin x.html --chemin-par-page|PDF", "@I2@ -t lvwFoo|lvwFoo"}) {
        const Strings sides = Split(words, '|');
        const Outcome run = Cli(Strings{"parente", "f.ged", "@I1@"} + Split(sides[0], ' '));
        run.Ends(2, sides[1]);
        EXPECT_EQ(run.out, "");
    }
}

}  // namespace
}  // namespace swiftroll::test

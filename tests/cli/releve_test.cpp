// The job "releve": the file that the window would write.
#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Releve : CliTest {
    Releve() {
        Put("m", "%GEDCOM_FILENAME%\n<tr><td>%ELEMENT%;</td></tr>\n<tr><td>%ELEMENT%;</td>\n</tr>");
        Put("old.html", "before");
    }
};

TEST_F(Releve, TheModelIsFilledByteForByte) {
    const Outcome run = Cli({"releve", "f.ged", "-o", "x.txt", "--modele", "m"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Bytes("x.txt"),
              "f.ged\nNom;Lieu;Date Min;Date Max;Nbre;\nBo\x81;Brest; ; ;     1;\n"
              "de\tla \\Cour\x9C;Paris, Seine;1850;1880;     2;\n");
    EXPECT_TRUE(run.Says(
        "- Création Relevé-vif : Voulez-vous TOUT sortir, ou uniquement les lignes sélectionnées ?\n"));
    EXPECT_TRUE(run.Says("3 Individu(s)\n"));
    const Outcome out = Cli({"releve", "f.ged", "-o", "-", "--format", "texte", "--modele", "m", "-q"});
    EXPECT_EQ(out.code, 0) << out.err;
    EXPECT_EQ(out.out, Bytes("x.txt"));
    EXPECT_FALSE(Exists("-"));
}

TEST_F(Releve, TheExtensionDecidesTheFormat) {
    const auto begins = [&](const Strings& options, const std::string& file) {
        Strings arguments = {"releve", "f.ged", "-q", "-f", "-o", file};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.code, 0) << run.err;
        return Bytes(file).substr(0, 12);
    };
    const std::string html = "<!DOCTYPE ht", text = "  RELEV\xC9-VIF", xml = "<?xml versio";
    EXPECT_EQ(begins({}, "a.html"), html);
    EXPECT_EQ(begins({}, "a.TXT"), text);
    EXPECT_EQ(begins({}, "a.xml"), xml);
    EXPECT_EQ(begins({}, "a.dat"), html);
    EXPECT_EQ(begins({}, "xml"), html);
    EXPECT_EQ(begins({"--format", "texte"}, "b.html"), text);
    EXPECT_EQ(begins({"--format", "xml"}, "b.txt"), xml);
    EXPECT_EQ(begins({"--set", "txtOutExtension(1)=dat"}, "c.dat"), text);
    EXPECT_FALSE(Exists("a.xsl"));
}

TEST_F(Releve, XmlWithItsStylesheet) {
    const Outcome run = Cli({"releve", "f.ged", "-q", "-o", "home/x.xml", "--xsl", "--colonnes", "LastName"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Bytes("home/x.xml"),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n"
              "<?xml:stylesheet type=\"text/xsl\" href=\"x.xsl\"?>\r\n<SwiftRoll>\r\n"
              " <INDI>\r\n  <tag>SR_B</tag>\r\n  <NOM>Bo\x81</NOM>\r\n  <NBRE>     1</NBRE>\r\n </INDI>\r\n"
              " <INDI>\r\n  <tag>SR_D</tag>\r\n  <NOM>de\tla \\Cour\x9C</NOM>\r\n  <NBRE>     2</NBRE>\r\n "
              "</INDI>\r\n"
              "</SwiftRoll>\r\n");
    EXPECT_NE(Bytes("home/x.xsl").find("translate(NBRE, "), std::string::npos);
}

TEST_F(Releve, OnlyTheGroupsOfMarkedIndividuals) {
    const Strings all = {"releve",   "f.ged", "-q",       "-o", "-",
                         "--format", "texte", "--modele", "m",  "--marques"};
    EXPECT_EQ(Cli(all).out, "f.ged\nNom;Lieu;Date Min;Date Max;Nbre;\n");
    Strings marked = all;
    marked.insert(marked.end(), {"--marquer", "@I3@"});
    EXPECT_EQ(Cli(marked).out,
              "f.ged\nNom;Lieu;Date Min;Date Max;Nbre;\nde\tla \\Cour\x9C;Paris, Seine;1850;1880;     2;\n");
    marked.back() = "@I9@";
    const Outcome unknown = Cli(marked);
    EXPECT_EQ(unknown.code, 1);
    EXPECT_EQ(unknown.out, "");
}

TEST_F(Releve, AnExistingOutputIsLeftAloneUnlessItMayBeOverwritten) {
    const Outcome refused = Cli({"releve", "none.ged", "-o", "old.html"});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.Says("old.html")) << refused.err;
    EXPECT_FALSE(refused.Says("InitGed")) << "refused before anything is read: " << refused.err;
    EXPECT_EQ(Bytes("old.html"), "before");
    EXPECT_EQ(Cli({"releve", "f.ged", "-o", "old.html", "--ecraser"}).code, 0);
    EXPECT_TRUE(Bytes("old.html").starts_with("<!DOCTYPE"));

    Put("x.xsl", "before");
    EXPECT_EQ(Cli({"releve", "f.ged", "-o", "x.xml", "--xsl"}).code, 1);
    EXPECT_EQ(Bytes("x.xsl"), "before");
    EXPECT_FALSE(Exists("x.xml"));
    EXPECT_EQ(Cli({"releve", "f.ged", "-o", "x.xml"}).code, 0);
}

TEST_F(Releve, AListAndItsStylesheetAreTwoFiles) {
    const Outcome run = Cli({"releve", "f.ged", "-q", "-o", "both.xsl", "--format", "xml", "--xsl"});
    EXPECT_NE(run.code, 0) << "the list has taken the place of its stylesheet";
    EXPECT_FALSE(Exists("both.xsl"));
}

TEST_F(Releve, TheInputAndTheModelAreNeverOverwritten) {
    const std::string model = Bytes("m");
    Put("m.xsl", model);
    for (const Strings& files : {Strings{"f.ged"},
                                 {"./f.ged"},
                                 {"home/../f.ged"},
                                 {"m", "--modele", "m"},
                                 {"m.xml", "--modele", "m.xsl", "--xsl"}}) {
        Strings arguments = {"releve", "f.ged", "-f", "-o"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.code, 1) << files[0] << run.err;
        EXPECT_EQ(Bytes("f.ged"), kFamily);
        EXPECT_EQ(Bytes("m"), model);
        EXPECT_EQ(Bytes("m.xsl"), model);
        EXPECT_FALSE(Exists("m.xml"));
    }
}

TEST_F(Releve, WhatCannotBeWrittenFails) {
    Put("bad", "<tr><td>%ELEMENT%</td></tr>");
    const std::pair<Strings, std::string> cases[] = {
        {{"nowhere/x.html"}, "- OpenOutput : Erreur d'écriture dans le fichier nowhere/x.html."},
        {{"nowhere/x.xml"}, "Erreur d'écriture dans le fichier nowhere/x.xml."},
        {{"home"}, "home"},
        {{"/dev/full", "--format", "html"}, "/dev/full"},
        {{"/dev/full", "--format", "texte"}, "/dev/full"},
        {{"/dev/full", "--format", "xml"}, "/dev/full"},
        {{"x.html", "--modele", "none"}, "- NoModel : Le fichier modèle\nnone\nn'existe pas."},
        {{"x.html", "--modele", "home"}, "home"},
        {{"x.html", "--modele", "bad"},
         "- HTML/XSL/TXT : Le fichier modèle HTML/XSL/TXT ne contient pas les Tags"},
        {{"old.html", "--modele", "bad"}, "- HTML/XSL/TXT"},
    };
    for (const auto& [options, message] : cases) {
        Strings arguments = {"releve", "f.ged", "-f", "-o"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.code, 1) << options[0] << run.err;
        EXPECT_TRUE(run.Says(message)) << message << "\n" << run.err;
        EXPECT_FALSE(Exists("x.html"));
    }
    EXPECT_EQ(Bytes("old.html"), "before");
    for (const char* format : {"html", "texte", "xml"}) {
        EXPECT_EQ(Cli({"releve", "f.ged", "-o", "-", "--format", format}, "/dev/full").code, 1) << format;
    }
}

TEST_F(Releve, UsageErrorsWriteNothing) {
    for (const Strings& options : {Strings{"--format", "pdf"},
                                   {"--xsl"},
                                   {"--set", "chkFoo=1"},
                                   {"--colonnes", "Nom"},
                                   {"--cles"},
                                   {"-t", "lvwIn"},
                                   {"--marques=peut-être"}}) {
        Strings arguments = {"releve", "f.ged", "-f", "-o", "old.html"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome run = Cli(arguments);
        EXPECT_EQ(run.code, 2) << options[0] << run.err;
        EXPECT_EQ(Bytes("old.html"), "before");
    }
    EXPECT_EQ(Cli({"releve", "f.ged", "-o", "-", "--format", "xml", "--xsl"}).code, 2);
}

TEST_F(Releve, TheDateOfTheRunCanBeGiven) {
    Put("dates",
        "%DATE_LONG% %DATE_MEDIUM% %DATE_SHORT% "
        "%TIME_LONG%<tr><td>%ELEMENT%</td></tr><tr><td>%ELEMENT%</td></tr>");
    environment = {"SOURCE_DATE_EPOCH=951786245", "TZ=America/New_York"};
    const Outcome run = Cli({"releve", "f.ged", "-q", "-o", "-", "--modele", "dates", "--colonnes", ""});
    EXPECT_TRUE(run.out.starts_with("mardi 29 f\xE9vrier 2000 29-f\xE9vr.-00 29/02/2000 01:04:05"))
        << run.out;
    const std::string example = std::string(SWIFTROLL_EXAMPLES) + "/famille.ged";
    for (const char* format : {"html", "texte", "xml"}) {
        const Strings arguments = {"releve", example, "-q", "-o", "-", "--format", format};
        const Outcome first = Cli(arguments);
        EXPECT_EQ(first.code, 0) << first.err;
        EXPECT_GT(first.out.size(), 2000u);
        EXPECT_EQ(first.out.find("%ELEMENT%"), std::string::npos) << format;
        EXPECT_EQ(Cli(arguments).out, first.out) << format;
    }
}

TEST_F(Releve, AnInterruptedReadWritesNothing) {
    const Outcome run = CliInterrupted("fifo", {"releve", "fifo", "-f", "-o", "old.html"}, Crowd(1, 20000),
                                       Crowd(20001, 40000));
    EXPECT_EQ(run.code, 3) << run.err;
    EXPECT_TRUE(run.Says("Interrompu par l'utilisateur !")) << run.err;
    EXPECT_EQ(Bytes("old.html"), "before");
}

TEST_F(Releve, NamesOutsideTheCodePage) {
    Put("Łódź.ged", kFamily);
    Put("модель", Bytes("m"));
    const Outcome run = Cli({"releve", "Łódź.ged", "-q", "-o", "Ωμέγα.txt", "--modele", "модель"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Bytes("Ωμέγα.txt").substr(Bytes("Ωμέγα.txt").find("Nom")).substr(0, 9), "Nom;Lieu;");
    EXPECT_EQ(Cli({"releve", "Łódź.ged", "-f", "-o", "Łódź.ged"}).code, 1);
    EXPECT_EQ(Bytes("Łódź.ged"), kFamily);
}

}  // namespace
}  // namespace swiftroll::test

// The job "releve": the file that the window would write.
#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Releve : CliTest {
    Releve() {
        Put("m", "%GEDCOM_FILENAME%\n<tr><td>%ELEMENT%;</td></tr>\n<tr><td>%ELEMENT%;</td>\n</tr>");
        Put("old.html", "before");
    }
    const Strings kWrite = {"releve", "f.ged", "-o"}, kReplace = {"releve", "f.ged", "-f", "-o"};
};

TEST_F(Releve, TheExtensionDecidesTheFormat) {
    const std::string html = "<!DOCTYPE ht", text = "  RELEV\xC9-VIF", xml = "<?xml versio";
    const std::pair<Strings, std::string> cases[] = {{{"a.html"}, html},
                                                     {{"a.TXT"}, text},
                                                     {{"a.xml"}, xml},
                                                     {{"a.dat"}, html},
                                                     {{"b.html", "--format", "texte"}, text},
                                                     {{"c.dat", "--set", "txtOutExtension(1)=dat"}, text}};
    for (const auto& [options, beginning] : cases) {
        EXPECT_EQ(Cli(kWrite + options).code, 0) << options[0];
        EXPECT_EQ(Bytes(options[0]).substr(0, 12), beginning) << options[0];
    }
    EXPECT_FALSE(Exists("a.xsl"));
}

TEST_F(Releve, TheStylesheetStandsBesideTheList) {
    const Strings options = {"--format", "xml", "--xsl"};
    EXPECT_EQ(Cli(kWrite + Strings{"home/x.xml"} + options).code, 0);
    EXPECT_NE(Bytes("home/x.xml").find("type=\"text/xsl\" href=\"x.xsl\"?>"), std::string::npos);
    EXPECT_NE(Bytes("home/x.xsl").find("translate(NBRE, "), std::string::npos);
    Put("x.xsl", "before");
    EXPECT_EQ(Cli(kWrite + Strings{"x.xml"} + options).code, 1);
    EXPECT_EQ(Bytes("x.xsl"), "before");
    EXPECT_FALSE(Exists("x.xml"));
    EXPECT_NE(Cli(kWrite + Strings{"both.xsl"} + options).code, 0) << "the list is its own stylesheet";
    EXPECT_FALSE(Exists("both.xsl"));
    EXPECT_EQ(Cli(kWrite + Strings{"-"} + options).code, 2);
}

TEST_F(Releve, TheShippedStylesheetMakesThePageOfTheList) {
    ASSERT_EQ(Cli({"releve", kExample, "-o", "list.xml", "--xsl"}).code, 0);
    const std::string command =
        "cd '" + folder_.string() + "' && xsltproc list.xsl list.xml >page.html 2>log";
    ASSERT_EQ(std::system(command.c_str()), 0) << Bytes("log");
    const std::string list = Bytes("list.xml"), page = Bytes("page.html");
    const std::size_t rows = CountOf("<INDI>", list), entries = CountOf("<tag>", list);
    EXPECT_GT(rows, 0u);
    EXPECT_EQ(CountOf("<tr", page), rows + 1) << "a row for each group, and the header";
    EXPECT_EQ(CountOf("href=\"#SR_", page), entries);
    EXPECT_EQ(CountOf("id=\"SR_", page), entries) << "every link of the index leads to a row";
}

TEST_F(Releve, ConformingXmlIsReadWhateverTheTextsHold) {
    std::string bytes;
    for (int c = 1; c < 256; ++c)
        if (c != '\r' && c != '\n' && c != '/') bytes += static_cast<char>(c);
    const std::string input = "Łó & ]]>.ged", output = "été #1 & <2>.xml";
    Put(input, "0 @I1@ INDI\r\n1 NAME /" + bytes + "/\r\n0 TRLR\r\n");
    const Strings asTheyStand = {"--set", "chkDecodeCharset=0", "--set", "chkStrictXml=1"};
    ASSERT_EQ(Cli(Strings{"releve", input, "-o", output, "--xsl"} + asTheyStand).code, 0);
    // The stylesheet is the one that the list names.
    const std::string command =
        "cd '" + folder_.string() + "' && xsltproc \"" + output + "\" >page.html 2>log";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(Bytes("log"), "");
    EXPECT_NE(Bytes("page.html").find("%&amp;'()"), std::string::npos) << Bytes("page.html");
    EXPECT_NE(Bytes("page.html").find(";&lt;=&gt;?@"), std::string::npos) << Bytes("page.html");
}

TEST_F(Releve, AnExistingOutputIsLeftAloneUnlessItMayBeOverwritten) {
    const Outcome refused = Cli({"releve", "none.ged", "-o", "old.html"});
    refused.Ends(1, "old.html");
    EXPECT_FALSE(refused.Says("InitGed")) << "refused before anything is read: " << refused.err;
    EXPECT_EQ(Bytes("old.html"), "before");
    EXPECT_EQ(Cli(kWrite + Strings{"old.html", "--ecraser"}).code, 0);
    EXPECT_TRUE(Bytes("old.html").starts_with("<!DOCTYPE"));
}

TEST_F(Releve, TheInputAndTheModelAreNeverOverwritten) {
    const std::string model = Bytes("m");
    Put("m.xsl", model);
    for (const Strings& files : {Strings{"f.ged"},
                                 {"home/../f.ged"},
                                 {"m", "--modele", "m"},
                                 {"m.xml", "--modele", "m.xsl", "--xsl"}}) {
        const Outcome run = Cli(kReplace + files);
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
        {{"x.html", "--modele", "none"}, "- NoModel : Le fichier modèle\nnone\nn'existe pas."},
        {{"old.html", "--modele", "bad"}, "- HTML/XSL/TXT : Le fichier modèle"}};
    for (const auto& [options, message] : cases) {
        const Outcome run = Cli(kReplace + options);
        run.Ends(1, message);
        EXPECT_FALSE(Exists("x.html"));
    }
    EXPECT_EQ(Bytes("old.html"), "before");
    for (const char* format : {"html", "texte", "xml"}) {
        Cli(kReplace + Strings{"/dev/full", "--format", format}).Ends(1, "/dev/full");
        EXPECT_EQ(Cli(kWrite + Strings{"-", "--format", format}, "/dev/full").code, 1) << format;
    }
}

TEST_F(Releve, UsageErrorsWriteNothing) {
    for (const Strings& options : {Strings{"--format", "pdf"},
                                   {"--xsl"},
                                   {"--set", "chkFoo=1"},
                                   {"--cles"},
                                   {"-t", "lvwIn"},
                                   {"--marques=peut-être"}}) {
        const Outcome run = Cli(kReplace + Strings{"old.html"} + options);
        EXPECT_EQ(run.code, 2) << options[0] << run.err;
        EXPECT_EQ(Bytes("old.html"), "before");
    }
}

TEST_F(Releve, TheOneGroupOfAListWithoutGroupColumnsCanBeMarked) {
    for (const char* columns : {"", "DateMin"}) {
        const Strings words = {"-", "--format", "texte", "--colonnes", columns};
        const Outcome all = Cli(kWrite + words),
                      marked = Cli(kWrite + words + Strings{"--marques", "--marquer", "@I2@"});
        EXPECT_EQ(all.code, 0);
        EXPECT_EQ(marked.out, all.out);
        EXPECT_NE(Cli(kWrite + words + Strings{"--marques"}).out, all.out);
    }
}

TEST_F(Releve, TheDateOfTheRunCanBeGiven) {
    Put("dates", "%DATE_LONG% %TIME_LONG%<tr><td>%ELEMENT%</td></tr><tr><td>%ELEMENT%</td></tr>");
    environment = {"SOURCE_DATE_EPOCH=951786245", "TZ=America/New_York"};
    const Outcome run = Cli(kWrite + Strings{"-", "--modele", "dates", "--colonnes", ""});
    EXPECT_TRUE(run.out.starts_with("mardi 29 f\xE9vrier 2000 01:04:05")) << run.out;
    for (const char* format : {"html", "texte", "xml"}) {
        const Outcome example = Cli({"releve", kExample, "-o", "-", "--format", format});
        EXPECT_EQ(example.code, 0) << example.err;
        EXPECT_GT(example.out.size(), 2000u);
        EXPECT_EQ(example.out.find("%ELEMENT%"), std::string::npos) << format;
    }
}

TEST_F(Releve, AnInterruptedReadWritesNothing) {
    const Outcome run = CliInterrupted({"releve", "fifo", "-f", "-o", "old.html"});
    run.Ends(3, "Interrompu par l'utilisateur !");
    EXPECT_EQ(Bytes("old.html"), "before");
}

TEST_F(Releve, NamesOutsideTheCodePage) {
    Put("Łódź.ged", kFamily);
    Put("модель", Bytes("m"));
    const Strings words = {"releve", "Łódź.ged", "--modele", "модель", "-f", "-o"};
    EXPECT_EQ(Cli(words + Strings{"Ωμέγα.txt"}).code, 0);
    EXPECT_NE(Bytes("Ωμέγα.txt").find("\nNom;Lieu;"), std::string::npos);
    EXPECT_EQ(Cli(words + Strings{"Łódź.ged"}).code, 1);
    EXPECT_EQ(Bytes("Łódź.ged"), kFamily);
}

}  // namespace
}  // namespace swiftroll::test

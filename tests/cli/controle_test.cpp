// The job "controle": in small files with planted faults, exactly these are found.
#include "cli/run_cli.h"

namespace swiftroll::test {
namespace {

struct Controle : CliTest {
    /// The findings of a file, without the line of the columns, no-break spaces as blanks.
    std::string Findings(const std::string& file, int code) const {
        Put("t.ged", file);
        const Outcome run = Cli({"controle", "t.ged", "-q"});
        EXPECT_EQ(run.code, code) << run.err;
        const std::string columns = "Rule\tSeverity\tLine\tID\tName\tText\n";
        EXPECT_EQ(run.out.substr(0, columns.size()), columns);
        std::string findings = run.out.substr(std::min(columns.size(), run.out.size()));
        for (auto at = findings.find("\u00A0"); at != std::string::npos; at = findings.find("\u00A0", at))
            findings.replace(at, std::string("\u00A0").size(), " ");
        return findings;
    }
};

std::string Event(const std::string& tag, const std::string& date, const std::string& place = {}) {
    return "1 " + tag + "\n2 DATE " + date + "\n" + (place.empty() ? "" : "2 PLAC " + place + "\n");
}

/// Parents and a child without any fault, each with lines of their own, and what follows them.
struct FamilyFile {
    std::string father = {}, mother = {}, child = {}, family = {}, others = {};
    std::string Text() const {
        return "0 HEAD\n1 CHAR ANSI\n0 @P@ INDI\n1 NAME Jean /Roy/\n1 SEX M\n1 FAMS @F@\n" + father +
               "0 @M@ INDI\n1 NAME Anne /Petit/\n1 SEX F\n1 FAMS @F@\n" + mother +
               "0 @E@ INDI\n1 NAME Luc /Roy/\n1 SEX M\n1 FAMC @F@\n" + child +
               "0 @F@ FAM\n1 HUSB @P@\n1 WIFE @M@\n1 CHIL @E@\n" + family + others + "0 TRLR\n";
    }
};

TEST_F(Controle, TellsTheFormOfLines) {
    EXPECT_EQ(
        Findings("1 HEAD\r\n\r\nVoici un texte\r\n0 @P@ INDI\r\n1 NAME Jean /Roy/\r\n3 SEX M\r\n1 SEX M\r\n"
                 "x1 NOTE a\r\n1 \xE9 b\r\n1 NOTE fin",
                 1),
        "1\tinfo\t\t\t\tRien n'est déclaré ; lu comme : ANSI (Windows-1252), le plus plausible.\n"
        "4\tavertissement\t1\t\t\tLe fichier commence au niveau 1 : « 1 HEAD »\n"
        "3\terreur\t3\t\t\t« Voici un texte »\n"
        "4\tavertissement\t6\t@P@\tRoy, Jean\tDu niveau 1 au niveau 3 : « 3 SEX M »\n"
        "6\tavertissement\t8\t@P@\tRoy, Jean\t« x1 NOTE a »\n"
        "3\terreur\t9\t@P@\tRoy, Jean\t« 1 é b »\n"
        "7\tavertissement\t10\t\t\tLa dernière ligne n'est pas lue : ajoutez « 0 TRLR » derrière « 1 NOTE "
        "fin »\n");
}

TEST_F(Controle, TellsLostReferencesAndLinksOfOneSide) {
    const FamilyFile file{.father = "1 FAMS @G@\n1 NOTE @N@\n1 OBJE @VOID@\n1 NOTE @P@ est là\n",
                          .mother = "1 FAMC @F@\n",
                          .child = "1 FAMS\n",
                          .family = "1 CHIL @P@\n1 WIFE @X@\n1 HUSB @G@\n",
                          .others = "0 @G@ FAM\n0 @F@ NOTE a\n0 INDI\n1 NAME A //\n1 SEX F\n1 SOUR @F@\n"};
    EXPECT_EQ(
        Findings(file.Text(), 1),
        "42\tinfo\t\t\t\tÎlot 0004 : 1 personne.\n"
        "1\tinfo\t2\t\t\tDéclaré : « ANSI » ; lu comme : UTF-8, disent les octets.\n"
        "39\terreur\t3\t@P@\tRoy, Jean\tRoy, Jean (@P@), enfant de Roy, Jean (@P@).\n"
        "42\tinfo\t3\t@P@\tRoy, Jean\tÎlot 0001 : 1 personne, la première : Roy, Jean (@P@).\n"
        "14\terreur\t7\t@P@\tRoy, Jean\tFAMS @G@ : la fiche @G@ n'a pas de ligne HUSB ni WIFE vers @P@.\n"
        "12\terreur\t8\t@P@\tRoy, Jean\tNOTE @N@ : cette fiche n'existe pas.\n"
        "13\tinfo\t9\t@P@\tRoy, Jean\tOBJE\n"
        "42\tinfo\t11\t@M@\tPetit, Anne\tÎlot 0002 : 1 personne, la première : Petit, Anne (@M@).\n"
        "16\terreur\t15\t@M@\tPetit, Anne\tFAMC @F@ : la fiche @F@ n'a pas de ligne CHIL vers @M@.\n"
        "42\tinfo\t16\t@E@\tRoy, Luc\tÎlot 0003 : 1 personne, la première : Roy, Luc (@E@).\n"
        "12\terreur\t20\t@E@\tRoy, Luc\tFAMS sans identifiant entre deux @ : «  »\n"
        "17\tavertissement\t25\t@F@\t\tCHIL @P@ : la fiche @P@ n'a pas de ligne FAMC vers @F@.\n"
        "12\terreur\t26\t@F@\t\tWIFE @X@ : cette fiche n'existe pas.\n"
        "12\terreur\t27\t@F@\t\tHUSB @G@ : cette fiche n'est pas un individu.\n"
        "22\tavertissement\t28\t@G@\t\tLa famille n'a ni époux, ni épouse, ni enfant.\n"
        "10\terreur\t29\t@F@\t\tUne fiche a déjà cet identifiant à la ligne 21.\n"
        "11\terreur\t30\t\t\tRien ne peut renvoyer à cette fiche INDI sans identifiant.\n"
        "12\terreur\t33\t\t\tSOUR @F@ : c'est une fiche FAM.\n");
}

TEST_F(Controle, TellsYearsThatContradictEachOther) {
    const FamilyFile file{.father = Event("BIRT", "1800") + Event("DEAT", "1820"),
                          .mother = Event("BIRT", "1740") + Event("DEAT", "1815"),
                          .child = Event("BIRT", "BET 1822 AND 1825") + Event("DEAT", "1790"),
                          .family = Event("MARR", "1811"),
                          .others = "0 @V@ INDI\n1 NAME\n" + Event("BIRT", "ABT 1700") +
                                    Event("DEAT", "1811") + Event("BAPM", "P\xE2ques")};
    EXPECT_EQ(
        Findings(file.Text(), 1),
        "1\tinfo\t2\t\t\tDéclaré : « ANSI » ; lu comme : ANSI (Windows-1252).\n"
        "42\tinfo\t11\t@M@\tPetit, Anne\tÎlot 0001 : 3 personnes, l'aînée : Petit, Anne (@M@), naissance en "
        "1740.\n"
        "31\terreur\t19\t@E@\tRoy, Luc\tNaissance en 1822, décès en 1790.\n"
        "38\terreur\t19\t@E@\tRoy, Luc\tNaissance en 1822 ; le père (@P@) est décédé en 1820.\n"
        "36\tavertissement\t19\t@E@\tRoy, Luc\tNaissance en 1822 ; la mère (@M@) est née en 1740 : 82 ans.\n"
        "37\terreur\t19\t@E@\tRoy, Luc\tNaissance en 1822 ; la mère (@M@) est décédée en 1815.\n"
        "33\tavertissement\t32\t@P@\tRoy, Jean\tNaissance en 1800, mariage en 1811 (@F@) : 11 ans.\n"
        "20\tavertissement\t33\t@V@\t\tL'individu n'a ni nom ni prénom.\n"
        "21\tavertissement\t33\t@V@\t\tLe sexe n'est pas indiqué.\n"
        "32\tavertissement\t33\t@V@\t\tNaissance en 1700, décès en 1811 : 111 ans.\n"
        "42\tinfo\t33\t@V@\t\tÎlot 0002 : 1 personne, l'aînée : @V@, naissance en 1700.\n"
        "30\tavertissement\t40\t@V@\t\t« Pâques » : aucune année n'y est reconnue.\n");
}

TEST_F(Controle, TakesNoYearFromADateThatIsMisread) {
    EXPECT_EQ(
        Findings("0 HEAD\n1 CHAR ANSI\n0 @P@ INDI\n1 NAME Jean /Roy/\n1 SEX M\n" +
                     Event("BIRT", "@#DHEBREW@ 5 TSH 5604") + Event("DEAT", "1900") + "0 TRLR\n",
                 0),
        "1\tinfo\t2\t\t\tDéclaré : « ANSI » ; lu comme : ASCII.\n"
        "30\tavertissement\t7\t@P@\tRoy, Jean\t« @#DHEBREW@ 5 TSH 5604 » : date du calendrier hébraïque "
        "(« Lire les calendriers et toutes les années » la lit).\n");
}

TEST_F(Controle, TellsCirclesSpellingsAndIslandsAndWhatIsCertainAlone) {
    const FamilyFile file{
        .father = Event("BIRT", "AFT 1800", "Le Mans"),
        .mother = Event("BIRT", "1802", "LE  MANS") + Event("DEAT", "BEF 1900", "Le Mans") + "1 FAMC @G@\n",
        .child = Event("BIRT", "1830", "St-Denis") + "1 FAMS @G@\n",
        .family = "1 MARR\n2 PLAC St Denis\n",
        .others = "0 @G@ FAM\n1 HUSB @E@\n1 CHIL @M@\n0 @D@ INDI\n1 NAME \xC8ve /P\xE9tit/\n1 SEX F\n" +
                  Event("BIRT", "1740")};
    EXPECT_EQ(
        Findings(file.Text(), 1),
        "1\tinfo\t2\t\t\tDéclaré : « ANSI » ; lu comme : ANSI (Windows-1252).\n"
        "42\tinfo\t3\t@P@\tRoy, Jean\tÎlot 0001 : 3 personnes, l'aînée : Roy, Jean (@P@), naissance en "
        "1800.\n"
        "39\terreur\t10\t@M@\tPetit, Anne\tPetit, Anne (@M@), enfant de Roy, Luc (@E@), enfant de Petit, "
        "Anne (@M@).\n"
        "35\terreur\t10\t@M@\tPetit, Anne\tNaissance en 1802 ; le père (@E@) est né en 1830 : -28 ans.\n"
        "40\tinfo\t10\t@M@\tPetit, Anne\t« Le Mans » (2), « LE  MANS » (1)\n"
        "40\tinfo\t29\t@F@\tRoy, Jean x Petit, Anne\t« St-Denis » (1), « St Denis » (1)\n"
        "41\tinfo\t38\t@D@\tPétit, Ève\t« Petit » (1), « Pétit » (1)\n"
        "42\tinfo\t38\t@D@\tPétit, Ève\tÎlot 0002 : 1 personne, l'aînée : Pétit, Ève (@D@), naissance en "
        "1740.\n");
}

TEST_F(Controle, TellsWhatIsReadNoFurther) {
    EXPECT_EQ(
        Findings("0 HEAD\n1 CHAR ANSI\n0 @P@ INDI\n1 NAME Jean /Roy/\n1 SEX M\n0 @P@ INDI\n1 FAMS @Z@\n"
                 "0 @F@ FAM\n1 HUSB @P@\n12 NOTE trop\n0 @P@ FAM\n0 TRLR\n",
                 1),
        "1\tinfo\t2\t\t\tDéclaré : « ANSI » ; lu comme : ASCII.\n"
        "10\terreur\t6\t@P@\tRoy, Jean\tUne fiche a déjà cet identifiant à la ligne 3.\n"
        "12\terreur\t7\t@P@\tRoy, Jean\tFAMS @Z@ : cette fiche n'existe pas.\n"
        "15\tavertissement\t9\t@F@\tRoy, Jean x \tHUSB @P@ : la fiche @P@ n'a pas de ligne FAMS vers @F@.\n"
        "5\terreur\t10\t@F@\tRoy, Jean x \tLa lecture s'arrête ici, au niveau 12 : la suite n'est ni lue ni "
        "contrôlée.\n");
}

TEST_F(Controle, WritesAPageAndEndsWellWithoutErrors) {
    Put("t.ged", FamilyFile{.child = "1 NAME <b>&\"/Roy/\n1 BIRT\n2 DATE No\xEBl\n"}.Text());
    EXPECT_EQ(Cli({"controle", "t.ged", "-q", "-o", "t.html"}).code, 0) << "warnings are no errors";
    const std::string page = Bytes("t.html");
    EXPECT_NE(page.find("<td>Roy, &lt;b&gt;&amp;&quot;</td>"), std::string::npos) << page;
    EXPECT_EQ(page.find("<b>"), std::string::npos);
    Cli({"controle", "t.ged", "-o", "t.html"}).Ends(1, "existe déjà");
    Cli({"controle", "t.ged", "--format", "pdf"}).Ends(2, "pdf");
    EXPECT_EQ(Cli({"controle", "t.ged", "-q", "--format", "html"}).out.substr(0, 15), "<!DOCTYPE html>");
}

}  // namespace
}  // namespace swiftroll::test

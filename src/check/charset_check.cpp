#include "check/charset_check.h"

#include "check/quoted.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {
namespace {

/// How the character set was told, behind its name.
TextView WordsOf(charset::ToldBy toldBy, bool isDeclared) {
    switch (toldBy) {
        case charset::ToldBy::Mark:
            return ", dit la marque en tête du fichier"_t;
        case charset::ToldBy::Bytes:
            return ", disent les octets"_t;
        case charset::ToldBy::Guess:
            return isDeclared ? ", le plus plausible, car les octets démentent le nom"_t
                              : ", le plus plausible"_t;
        case charset::ToldBy::Unknown:
            return " faute de mieux : il n'a pas pu être reconnu"_t;
        case charset::ToldBy::Nothing:
        case charset::ToldBy::Name:
            break;
    }
    return {};
}

}  // namespace

void CheckCharset(const std::optional<charset::FoundCharset>& found, const DeclaredCharset& declared,
                  Findings& findings) {
    const Text name =
        declared.line == 0 ? Text("Rien n'est déclaré"_t) : Concat({"Déclaré : "_t, Quoted(declared.name)});
    if (!found) return findings.Add(Rule::Charset, declared.line, {}, Concat({name, " ; lu tel quel."}));
    findings.Add(Rule::Charset, declared.line, {},
                 Concat({name, " ; lu comme : "_t, charset::NameOf(found->charset),
                         WordsOf(found->toldBy, declared.line != 0), "."}));
    if (found->transliterated == 0) return;
    findings.Add(Rule::Transliterated, 0, {},
                 Concat({Decimal(found->transliterated),
                         found->transliterated < 2 ? " caractère est transcrit dans les listes."_t
                                                   : " caractères sont transcrits dans les listes."_t}));
}

}  // namespace swiftroll::modCheck

#pragma once

#include <array>
#include <cstdint>

#include "text/literal.h"

namespace swiftroll::modCheck {

/// How much a finding matters. An error is data that contradict each other or that the program cannot use.
enum class Severity : std::uint8_t { Info, Warning, Error };

/// The word that users read.
constexpr TextView WordOf(Severity severity) {
    constexpr TextView kWords[] = {"info", "avertissement", "erreur"};
    return kWords[static_cast<std::size_t>(severity)];
}

enum class Rule : std::uint8_t {
    Charset,
    Transliterated,
    NoGedcom,
    LevelJump,
    LevelTooDeep,
    JunkBeforeLevel,
    LostEnd,
    DoubleIdentifier,
    NoIdentifier,
    MissingRecord,
    VoidReference,
    SpouseNotInFamily,
    FamilyNotInSpouse,
    ChildNotInFamily,
    FamilyNotInChild,
    NoName,
    NoSex,
    EmptyFamily,
    NoYear,
    DeathBeforeBirth,
    GreatAge,
    YoungMarriage,
    MarriageAfterDeath,
    YoungParent,
    OldMother,
    DeadMother,
    DeadFather,
    OwnAncestor,
    PlaceSpellings,
    SurnameSpellings,
    Island,
    kEnd
};

/// All that is known of a rule. A limit is what is still allowed.
struct RuleFacts {
    Rule rule;
    /// What users know it by: it never changes, and a number that went is not given again.
    int number;
    TextView name;
    Severity severity;
    int limit = 0;
    TextView unit = {};
};

inline constexpr auto kRules = std::to_array<RuleFacts>({
    {Rule::Charset, 1, "Jeu de caractères"_t, Severity::Info},
    {Rule::Transliterated, 2, "Caractères transcrits"_t, Severity::Info},
    {Rule::NoGedcom, 3, "Ligne qui n'est pas du GEDCOM"_t, Severity::Error},
    {Rule::LevelJump, 4, "Niveau sauté"_t, Severity::Warning},
    {Rule::LevelTooDeep, 5, "Niveau de plusieurs chiffres"_t, Severity::Error},
    {Rule::JunkBeforeLevel, 6, "Caractères devant le niveau"_t, Severity::Warning},
    {Rule::LostEnd, 7, "Fin du fichier incomplète"_t, Severity::Warning},
    {Rule::DoubleIdentifier, 10, "Identifiant en double"_t, Severity::Error},
    {Rule::NoIdentifier, 11, "Fiche sans identifiant"_t, Severity::Error},
    {Rule::MissingRecord, 12, "Renvoi à une fiche absente"_t, Severity::Error},
    {Rule::VoidReference, 13, "Renvoi laissé vide"_t, Severity::Info},
    {Rule::SpouseNotInFamily, 14, "FAMS sans HUSB ni WIFE"_t, Severity::Error},
    {Rule::FamilyNotInSpouse, 15, "HUSB ou WIFE sans FAMS"_t, Severity::Warning},
    {Rule::ChildNotInFamily, 16, "FAMC sans CHIL"_t, Severity::Error},
    {Rule::FamilyNotInChild, 17, "CHIL sans FAMC"_t, Severity::Warning},
    {Rule::NoName, 20, "Individu sans nom"_t, Severity::Warning},
    {Rule::NoSex, 21, "Individu sans sexe"_t, Severity::Warning},
    {Rule::EmptyFamily, 22, "Famille de personne"_t, Severity::Warning},
    {Rule::NoYear, 30, "Date sans année comprise"_t, Severity::Warning},
    {Rule::DeathBeforeBirth, 31, "Décès avant la naissance"_t, Severity::Error},
    {Rule::GreatAge, 32, "Âge au décès"_t, Severity::Warning, 110, "ans au plus"_t},
    {Rule::YoungMarriage, 33, "Âge au mariage"_t, Severity::Warning, 12, "ans au moins"_t},
    {Rule::MarriageAfterDeath, 34, "Mariage après le décès"_t, Severity::Error},
    {Rule::YoungParent, 35, "Parent trop jeune"_t, Severity::Error, 12, "ans au moins"_t},
    {Rule::OldMother, 36, "Mère trop âgée"_t, Severity::Warning, 60, "ans au plus"_t},
    {Rule::DeadMother, 37, "Naissance après le décès de la mère"_t, Severity::Error},
    {Rule::DeadFather, 38, "Naissance après le décès du père"_t, Severity::Error, 1, "an au plus"_t},
    {Rule::OwnAncestor, 39, "Son propre ancêtre"_t, Severity::Error},
    {Rule::PlaceSpellings, 40, "Lieux écrits différemment"_t, Severity::Info},
    {Rule::SurnameSpellings, 41, "Noms écrits différemment"_t, Severity::Info},
    {Rule::Island, 42, "Îlot"_t, Severity::Info},
});
static_assert([] {
    for (std::size_t i = 0; i < kRules.size(); ++i) {
        if (static_cast<std::size_t>(kRules[i].rule) != i) return false;
        if (i > 0 && kRules[i].number <= kRules[i - 1].number) return false;
    }
    return kRules.size() == static_cast<std::size_t>(Rule::kEnd);
}());

constexpr const RuleFacts& FactsOf(Rule rule) { return kRules[static_cast<std::size_t>(rule)]; }

}  // namespace swiftroll::modCheck

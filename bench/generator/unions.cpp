#include "unions.h"

#include <algorithm>
#include <cstdint>

namespace bench {
namespace {

constexpr int kFertileYearsOfUnion = 20;
constexpr int kLastAgeOfMother = 45;
constexpr int kLastAgeOfFather = 65;
constexpr int kLastAgeOfSecondWife = 41;
constexpr int kLastAgeOfSecondHusband = 60;
constexpr int kAttemptsToRemarry = 4;
constexpr std::uint32_t kRemarriesPerThousand = 600;
constexpr std::uint32_t kLoneParentPerThousand = 120;

std::int16_t Year(int year) { return static_cast<std::int16_t>(year); }

}  // namespace

void FamilyFounder::Found(VillageIndex village, const std::vector<Couple>& couples,
                          const MarriagePool& leftOver) {
    const auto firstOfVillage = static_cast<FamilyIndex>(population_.families.size());
    for (const Couple couple : couples) {
        MarryFirst(village, couple);
    }
    for (const PersonIndex man : leftOver.men) {
        Settle(man, village, firstOfVillage);
    }
    for (const PersonIndex woman : leftOver.women) {
        Settle(woman, village, firstOfVillage);
    }
}

void FamilyFounder::Settle(PersonIndex single, VillageIndex village, FamilyIndex firstOfVillage) {
    const bool remarries =
        random_.Chance(kRemarriesPerThousand) && MarryWidowed(village, single, firstOfVillage);
    if (!remarries && random_.Chance(kLoneParentPerThousand)) {
        BecomeLoneParent(village, single);
    }
}

void FamilyFounder::MarryFirst(VillageIndex village, Couple couple) {
    const int husbandReady = population_.PersonAt(couple.man).birthYear + random_.Between(20, 29);
    const int wifeReady = population_.PersonAt(couple.woman).birthYear + random_.Between(18, 26);
    Marry(village, couple, std::max(husbandReady, wifeReady));
}

void FamilyFounder::Marry(VillageIndex village, Couple couple, int year) {
    const int lastBirth = std::min({year + kFertileYearsOfUnion,
                                    population_.PersonAt(couple.woman).birthYear + kLastAgeOfMother,
                                    population_.PersonAt(couple.man).birthYear + kLastAgeOfFather});
    Family family;
    family.husband = couple.man;
    family.wife = couple.woman;
    family.startYear = Year(year);
    family.lastBirthYear = Year(std::max(lastBirth, year));
    family.village = village;
    Append(family);
}

// Picks a couple of the village, lets the spouse of the same sex as `single` die, and remarries the other.
bool FamilyFounder::MarryWidowed(VillageIndex village, PersonIndex single, FamilyIndex firstOfVillage) {
    const auto choice =
        static_cast<std::uint32_t>(population_.families.size()) - static_cast<std::uint32_t>(firstOfVillage);
    if (choice == 0) {
        return false;
    }
    const bool widower = population_.PersonAt(single).sex == Sex::Female;
    for (int attempt = 0; attempt < kAttemptsToRemarry; ++attempt) {
        Family& former =
            population_.FamilyAt(firstOfVillage + static_cast<FamilyIndex>(random_.Below(choice)));
        if (!former.IsMarriage() || former.endedByRemarriage) {
            continue;
        }
        const PersonIndex survivor = widower ? former.husband : former.wife;
        const PersonIndex deceased = widower ? former.wife : former.husband;
        const Couple couple = widower ? Couple{survivor, single} : Couple{single, survivor};
        const int deathYear = former.startYear + random_.Between(2, 12);
        const int year = deathYear + random_.Between(1, 3);
        const int husbandAge = year - population_.PersonAt(couple.man).birthYear;
        const int wifeAge = year - population_.PersonAt(couple.woman).birthYear;
        const bool ofAge = husbandAge >= 18 && wifeAge >= 16 && husbandAge <= kLastAgeOfSecondHusband &&
                           wifeAge <= kLastAgeOfSecondWife;
        if (!ofAge || AreSiblings(population_, survivor, single)) {
            continue;
        }
        former.endedByRemarriage = true;
        former.lastBirthYear = std::min(former.lastBirthYear, Year(deathYear - 1));
        population_.PersonAt(deceased).deathYear = Year(deathYear);
        Marry(village, couple, year);
        return true;
    }
    return false;
}

void FamilyFounder::BecomeLoneParent(VillageIndex village, PersonIndex parent) {
    const Person& person = population_.PersonAt(parent);
    const int year = person.birthYear + random_.Between(18, 30);
    Family family;
    (person.sex == Sex::Male ? family.husband : family.wife) = parent;
    family.startYear = Year(year);
    family.lastBirthYear = Year(year + 6);
    family.village = village;
    Append(family);
}

void FamilyFounder::Append(const Family& family) {
    const auto index = static_cast<FamilyIndex>(population_.families.size());
    population_.families.push_back(family);
    for (const PersonIndex spouse : {family.husband, family.wife}) {
        if (spouse != kNone) {
            LinkToSpouse(index, spouse);
        }
    }
}

void FamilyFounder::LinkToSpouse(FamilyIndex family, PersonIndex spouse) {
    Person& person = population_.PersonAt(spouse);
    person.lastEventYear = std::max(person.lastEventYear, population_.FamilyAt(family).startYear);
    FamilyIndex* link = &person.firstFamily;
    while (*link != kNone) {
        Family& earlier = population_.FamilyAt(*link);
        link = person.sex == Sex::Male ? &earlier.nextOfHusband : &earlier.nextOfWife;
    }
    *link = family;
}

}  // namespace bench

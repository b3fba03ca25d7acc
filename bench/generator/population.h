#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "surnames.h"

namespace bench {

using PersonIndex = std::int32_t;
using FamilyIndex = std::int32_t;
using VillageIndex = std::uint16_t;

constexpr std::int32_t kNone = -1;

enum class Sex : std::uint8_t { Male, Female };

struct Person {
    FamilyIndex parents = kNone;
    FamilyIndex firstFamily = kNone;  // then along Family::NextOf
    std::int16_t birthYear = 0;
    std::int16_t deathYear = 0;      // 0 until it is decided
    std::int16_t lastEventYear = 0;  // last marriage or birth of a child: no one dies before; 0 if none
    SurnameIndex surname = 0;
    VillageIndex village = 0;  // where the person was born
    Sex sex = Sex::Male;
};

struct Family {
    PersonIndex husband = kNone;
    PersonIndex wife = kNone;
    FamilyIndex nextOfHusband = kNone;
    FamilyIndex nextOfWife = kNone;
    PersonIndex firstChild = kNone;  // the children of a family follow one another
    std::uint16_t childCount = 0;
    std::int16_t startYear = 0;      // of the marriage, or of a union without one
    std::int16_t lastBirthYear = 0;  // no child can be born later
    VillageIndex village = 0;
    bool endedByRemarriage = false;

    FamilyIndex NextOf(Sex spouse) const { return spouse == Sex::Male ? nextOfHusband : nextOfWife; }
    bool IsMarriage() const { return husband != kNone && wife != kNone; }
};

struct Population {
    std::vector<Person> persons;
    std::vector<Family> families;
    std::size_t villageCount = 0;

    Person& PersonAt(PersonIndex i) { return persons[static_cast<std::size_t>(i)]; }
    const Person& PersonAt(PersonIndex i) const { return persons[static_cast<std::size_t>(i)]; }
    Family& FamilyAt(FamilyIndex i) { return families[static_cast<std::size_t>(i)]; }
    const Family& FamilyAt(FamilyIndex i) const { return families[static_cast<std::size_t>(i)]; }
};

}  // namespace bench

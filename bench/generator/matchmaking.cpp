#include "matchmaking.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace bench {
namespace {

constexpr int kMostYearsWifeOlder = 8;
constexpr int kMostYearsHusbandOlder = 16;
constexpr int kAgeTolerance = 10;
constexpr std::size_t kMostProposals = 12;

// Persons are sorted by a key and court those whose key is near theirs.
struct Suitor {
    int key;
    PersonIndex person;

    bool operator<(const Suitor& other) const {
        return std::tie(key, person) < std::tie(other.key, other.person);
    }
};

bool AreSuitable(const Population& population, PersonIndex man, PersonIndex woman) {
    const int husbandOlderBy = population.PersonAt(woman).birthYear - population.PersonAt(man).birthYear;
    return husbandOlderBy >= -kMostYearsWifeOlder && husbandOlderBy <= kMostYearsHusbandOlder &&
           !AreSiblings(population, man, woman);
}

// The first free woman from `first` on who suits the man, or women.size().
std::size_t FindWife(const Suitor& man, const std::vector<Suitor>& women, const std::vector<bool>& taken,
                     std::size_t first, int tolerance, const Population& population) {
    std::size_t proposals = 0;
    for (std::size_t i = first; i < women.size() && women[i].key <= man.key + tolerance; ++i) {
        if (taken[i]) {
            continue;
        }
        if (AreSuitable(population, man.person, women[i].person)) {
            return i;
        }
        if (++proposals == kMostProposals) {
            break;
        }
    }
    return women.size();
}

// Moves the couples it forms out of the two sides, which must be sorted.
void MatchByKey(std::vector<Suitor>& men, std::vector<Suitor>& women, int tolerance,
                const Population& population, std::vector<Couple>& couples) {
    std::vector<bool> taken(women.size(), false);
    std::vector<Suitor> unmatchedMen;
    std::size_t first = 0;
    for (const Suitor& man : men) {
        while (first < women.size() && (taken[first] || women[first].key < man.key - tolerance)) {
            ++first;
        }
        const std::size_t chosen = FindWife(man, women, taken, first, tolerance, population);
        if (chosen == women.size()) {
            unmatchedMen.push_back(man);
        } else {
            taken[chosen] = true;
            couples.push_back({man.person, women[chosen].person});
        }
    }
    men = std::move(unmatchedMen);
    std::vector<Suitor> unmatchedWomen;
    for (std::size_t i = 0; i < women.size(); ++i) {
        if (!taken[i]) {
            unmatchedWomen.push_back(women[i]);
        }
    }
    women = std::move(unmatchedWomen);
}

void AppendPersons(const std::vector<Suitor>& from, std::vector<PersonIndex>& to) {
    for (const Suitor& suitor : from) {
        to.push_back(suitor.person);
    }
}

// The parents of one's father or mother: first cousins have such a family in common.
FamilyIndex GrandparentsOf(const Population& population, PersonIndex person, Random& random) {
    const FamilyIndex parents = population.PersonAt(person).parents;
    if (parents == kNone) {
        return kNone;
    }
    const Family& family = population.FamilyAt(parents);
    const PersonIndex parent = random.Chance(500) ? family.husband : family.wife;
    return parent == kNone ? kNone : population.PersonAt(parent).parents;
}

void MatchCousins(MarriagePool& pool, const Population& population, const Customs& customs, Random& random,
                  std::vector<Couple>& couples) {
    const auto seekers = [&](std::vector<PersonIndex>& side) {
        std::vector<Suitor> seeking;
        std::vector<PersonIndex> others;
        for (const PersonIndex person : side) {
            const FamilyIndex grandparents = GrandparentsOf(population, person, random);
            if (grandparents != kNone && random.Chance(customs.cousinSeekers)) {
                seeking.push_back({grandparents, person});
            } else {
                others.push_back(person);
            }
        }
        side = std::move(others);
        std::sort(seeking.begin(), seeking.end());
        return seeking;
    };
    std::vector<Suitor> men = seekers(pool.men);
    std::vector<Suitor> women = seekers(pool.women);
    MatchByKey(men, women, 0, population, couples);
    AppendPersons(men, pool.men);
    AppendPersons(women, pool.women);
}

void MatchByAge(MarriagePool& pool, const Population& population, Random& random,
                std::vector<Couple>& couples) {
    const auto byAge = [&](const std::vector<PersonIndex>& side) {
        std::vector<Suitor> suitors;
        suitors.reserve(side.size());
        for (const PersonIndex person : side) {
            const int birthYear = population.PersonAt(person).birthYear;
            suitors.push_back({birthYear + random.Between(0, 8), person});
        }
        std::sort(suitors.begin(), suitors.end());
        return suitors;
    };
    std::vector<Suitor> men = byAge(pool.men);
    std::vector<Suitor> women = byAge(pool.women);
    MatchByKey(men, women, kAgeTolerance, population, couples);
    pool.men.clear();
    pool.women.clear();
    AppendPersons(men, pool.men);
    AppendPersons(women, pool.women);
}

}  // namespace

bool AreSiblings(const Population& population, PersonIndex one, PersonIndex other) {
    const FamilyIndex parentsOfOne = population.PersonAt(one).parents;
    const FamilyIndex parentsOfOther = population.PersonAt(other).parents;
    if (parentsOfOne == kNone || parentsOfOther == kNone) {
        return false;
    }
    const Family& a = population.FamilyAt(parentsOfOne);
    const Family& b = population.FamilyAt(parentsOfOther);
    return (a.husband != kNone && a.husband == b.husband) || (a.wife != kNone && a.wife == b.wife);
}

std::vector<Couple> MatchCouples(MarriagePool& pool, const Population& population, const Customs& customs,
                                 Random& random) {
    std::vector<Couple> couples;
    MatchCousins(pool, population, customs, random, couples);
    MatchByAge(pool, population, random, couples);
    return couples;
}

}  // namespace bench

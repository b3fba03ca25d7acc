#include "simulation.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "matchmaking.h"
#include "random.h"
#include "unions.h"
#include "villages.h"
#include "zipf.h"

namespace bench {
namespace {

constexpr int kFirstYear = 1590;
constexpr int kYearsPerGeneration = 30;
constexpr int kLastKnownYear = 2015;
constexpr int kMostChildren = 14;
constexpr int kMostYearsBetweenBirths = 3;
constexpr int kAttemptsToBeBorn = 8;
constexpr std::size_t kSurnameOffset = 12;
constexpr std::uint32_t kLocalSurnames = 10;
constexpr std::uint32_t kLocalSurnamePerThousand = 600;
constexpr std::uint32_t kMarriagePerThousand = 790;
constexpr std::uint32_t kBornLatePerThousand = 40;
constexpr std::uint32_t kDiesYoungPerThousand = 450;

std::int16_t Year(int year) { return static_cast<std::int16_t>(year); }

class Simulation {
  public:
    Simulation(std::size_t personCount, std::uint64_t seed, const Customs& customs)
        : seed_(seed),
          customs_(customs),
          random_(seed, 'S', 0),
          plan_(personCount, seed),
          surnames_(ComposeSurnames().size(), kSurnameOffset),
          familiesOfVillage_(plan_.Count()) {
        population_.villageCount = plan_.Count();
        population_.persons.reserve(personCount);
        population_.families.reserve(personCount / 2);
    }

    Population Run() {
        for (int generation = 0; generation < kGenerations; ++generation) {
            const auto first = static_cast<PersonIndex>(population_.persons.size());
            AddGeneration(generation);
            MarryGeneration(first);
        }
        DecideDeaths();
        return std::move(population_);
    }

  private:
    // Of the generation before; an empty range where no one married.
    struct FamilyRange {
        FamilyIndex begin = 0;
        FamilyIndex end = 0;
    };

    struct Candidate {
        VillageIndex village;
        PersonIndex person;
    };

    void AddGeneration(int generation) {
        for (std::size_t i = 0; i < plan_.Count(); ++i) {
            const auto village = static_cast<VillageIndex>(i);
            const std::size_t size = plan_.Size(village, generation);
            const std::size_t children = DistributeChildren(village, size);
            for (std::size_t k = children; k < size; ++k) {
                AddNewcomer(village, generation);
            }
            for (FamilyIndex f = familiesOfVillage_[i].begin; f < familiesOfVillage_[i].end; ++f) {
                AddChildren(f);
            }
        }
    }

    // Decides how many children each family of the village has; returns their number, at most `size`.
    std::size_t DistributeChildren(VillageIndex village, std::size_t size) {
        const FamilyRange range = familiesOfVillage_[village];
        if (range.begin == range.end) {
            return 0;
        }
        std::size_t children = 0;
        for (std::size_t k = 0; k < size; ++k) {
            if (!random_.Chance(customs_.newcomers) && GiveChildToSomeFamily(range)) {
                ++children;
            }
        }
        return children;
    }

    bool GiveChildToSomeFamily(FamilyRange range) {
        const auto count = static_cast<std::uint32_t>(range.end - range.begin);
        for (int attempt = 0; attempt < kAttemptsToBeBorn; ++attempt) {
            const FamilyIndex f = range.begin + static_cast<FamilyIndex>(random_.Below(count));
            Family& family = population_.FamilyAt(f);
            const int room = std::min(kMostChildren, family.lastBirthYear - family.startYear);
            const std::uint32_t fertility = Random(seed_, 'F', static_cast<std::uint64_t>(f)).Below(1000);
            if (family.childCount < room && random_.Chance(fertility)) {
                ++family.childCount;
                return true;
            }
        }
        return false;
    }

    void AddNewcomer(VillageIndex village, int generation) {
        const FamilyRange range = familiesOfVillage_[village];
        const auto count = static_cast<std::uint32_t>(range.end - range.begin);
        Person person;
        if (count == 0) {
            person.birthYear = Year(kFirstYear + generation * kYearsPerGeneration + random_.Between(0, 15));
        } else {
            // of the same age as the children of the village
            const FamilyIndex f = range.begin + static_cast<FamilyIndex>(random_.Below(count));
            person.birthYear = Year(population_.FamilyAt(f).startYear + random_.Between(0, 10));
        }
        person.surname = SurnameOfNewcomer(village);
        person.village = village;
        person.sex = DrawSex();
        population_.persons.push_back(person);
    }

    SurnameIndex SurnameOfNewcomer(VillageIndex village) {
        if (!random_.Chance(kLocalSurnamePerThousand)) {
            return static_cast<SurnameIndex>(surnames_.Draw(random_));
        }
        Random local(seed_, 'N', village * kLocalSurnames + random_.Below(kLocalSurnames));
        return static_cast<SurnameIndex>(surnames_.Draw(local));
    }

    Sex DrawSex() { return random_.Chance(510) ? Sex::Male : Sex::Female; }

    void AddChildren(FamilyIndex familyIndex) {
        Family& family = population_.FamilyAt(familyIndex);
        if (family.childCount == 0) {
            return;
        }
        const PersonIndex nameGiver = family.husband != kNone ? family.husband : family.wife;
        const int room = family.lastBirthYear - family.startYear;
        const int step = std::min(room / family.childCount, kMostYearsBetweenBirths);
        family.firstChild = static_cast<PersonIndex>(population_.persons.size());
        Person child;
        child.parents = familyIndex;
        child.surname = population_.PersonAt(nameGiver).surname;
        child.village = family.village;
        for (int k = 0; k < family.childCount; ++k) {
            child.birthYear = Year(family.startYear + 1 + k * step + random_.Between(0, step - 1));
            child.sex = DrawSex();
            population_.persons.push_back(child);
        }
        for (const PersonIndex parent : {family.husband, family.wife}) {
            if (parent != kNone) {
                std::int16_t& lastEventYear = population_.PersonAt(parent).lastEventYear;
                lastEventYear = std::max(lastEventYear, child.birthYear);
            }
        }
    }

    void MarryGeneration(PersonIndex first) {
        std::vector<Candidate> candidates = GatherCandidates(first);
        std::sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
            return std::tie(a.village, a.person) < std::tie(b.village, b.person);
        });
        std::fill(familiesOfVillage_.begin(), familiesOfVillage_.end(), FamilyRange{});
        for (auto at = candidates.begin(); at != candidates.end();) {
            const VillageIndex village = at->village;
            MarriagePool pool;
            for (; at != candidates.end() && at->village == village; ++at) {
                const bool man = population_.PersonAt(at->person).sex == Sex::Male;
                (man ? pool.men : pool.women).push_back(at->person);
            }
            FamilyRange& range = familiesOfVillage_[village];
            range.begin = static_cast<FamilyIndex>(population_.families.size());
            const std::vector<Couple> couples = MatchCouples(pool, population_, customs_, random_);
            FamilyFounder(population_, random_).Found(village, couples, pool);
            range.end = static_cast<FamilyIndex>(population_.families.size());
        }
    }

    // The new generation, and those of the one before who were born late enough to court it.
    std::vector<Candidate> GatherCandidates(PersonIndex first) {
        std::vector<Candidate> candidates;
        for (const PersonIndex person : bornLate_) {
            AddCandidate(candidates, person);
        }
        bornLate_.clear();
        for (PersonIndex person = first; person < static_cast<PersonIndex>(population_.persons.size());
             ++person) {
            if (!random_.Chance(kMarriagePerThousand)) {
                continue;
            }
            if (random_.Chance(kBornLatePerThousand)) {
                bornLate_.push_back(person);
            } else {
                AddCandidate(candidates, person);
            }
        }
        return candidates;
    }

    void AddCandidate(std::vector<Candidate>& candidates, PersonIndex person) {
        const VillageIndex home = population_.PersonAt(person).village;
        const bool leaves = random_.Chance(customs_.leavers);
        candidates.push_back({leaves ? plan_.NeighbourOf(home, random_) : home, person});
    }

    void DecideDeaths() {
        for (Person& person : population_.persons) {
            if (person.deathYear == 0) {
                person.deathYear = Year(DrawDeath(person));
            }
            if (person.deathYear > kLastKnownYear) {
                person.deathYear = 0;
            }
        }
    }

    int DrawDeath(const Person& person) {
        const bool hasFamily = person.lastEventYear != 0;
        if (!hasFamily && random_.Chance(kDiesYoungPerThousand)) {
            return person.birthYear + random_.Between(0, 7);
        }
        return std::max(person.lastEventYear + 1, person.birthYear + random_.Between(35, 90));
    }

    std::uint64_t seed_;
    Customs customs_;
    Random random_;
    VillagePlan plan_;
    ZipfTable surnames_;
    std::vector<FamilyRange> familiesOfVillage_;
    std::vector<PersonIndex> bornLate_;
    Population population_;
};

}  // namespace

Population Simulate(std::size_t personCount, std::uint64_t seed, const Customs& customs) {
    return Simulation(personCount, seed, customs).Run();
}

}  // namespace bench

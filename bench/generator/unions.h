#pragma once

#include <vector>

#include "matchmaking.h"
#include "population.h"
#include "random.h"

namespace bench {

/// Founds the families of a village: marriages, remarriages of the widowed, and lone parents. The new
/// families are appended to the population and linked with their spouses.
class FamilyFounder {
  public:
    FamilyFounder(Population& population, Random& random) : population_(population), random_(random) {}

    /// `leftOver` holds those who are unmarried after the couples of the same village found each other.
    void Found(VillageIndex village, const std::vector<Couple>& couples, const MarriagePool& leftOver);

  private:
    void Marry(VillageIndex village, Couple couple, int year);
    void MarryFirst(VillageIndex village, Couple couple);
    bool MarryWidowed(VillageIndex village, PersonIndex single, FamilyIndex firstOfVillage);
    void BecomeLoneParent(VillageIndex village, PersonIndex parent);
    void Settle(PersonIndex single, VillageIndex village, FamilyIndex firstOfVillage);
    void Append(const Family& family);
    void LinkToSpouse(FamilyIndex family, PersonIndex spouse);

    Population& population_;
    Random& random_;
};

}  // namespace bench

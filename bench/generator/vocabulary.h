#pragma once

#include <string>
#include <vector>

#include "places.h"
#include "random.h"
#include "surnames.h"
#include "word_lists.h"
#include "zipf.h"

namespace bench {

/// The words of the generated files, in Windows-1252, with their frequencies.
class Vocabulary {
  public:
    const std::string& Surname(SurnameIndex index) const { return surnames_[index]; }
    const std::string& MaleGivenName(Random& random) const { return males_[maleRanks_.Draw(random)]; }
    const std::string& FemaleGivenName(Random& random) const { return females_[femaleRanks_.Draw(random)]; }
    const std::string& Occupation(Random& random) const {
        return occupations_[occupationRanks_.Draw(random)];
    }
    const std::string& Sentence(Random& random) const {
        return sentences_[random.Below(static_cast<std::uint32_t>(sentences_.size()))];
    }
    const std::vector<Commune>& Communes() const { return communes_; }
    const std::string& AnyPlace(Random& random) const { return communes_[communeRanks_.Draw(random)].place; }

  private:
    static constexpr std::size_t kNameOffset = 3;
    static constexpr std::size_t kOccupationOffset = 2;
    static constexpr std::size_t kCommuneOffset = 15;

    std::vector<std::string> surnames_ = ComposeSurnames();
    std::vector<std::string> males_ = MaleGivenNames();
    std::vector<std::string> females_ = FemaleGivenNames();
    std::vector<std::string> occupations_ = Occupations();
    std::vector<std::string> sentences_ = NoteSentences();
    std::vector<Commune> communes_ = ComposeCommunes();
    ZipfTable maleRanks_{males_.size(), kNameOffset};
    ZipfTable femaleRanks_{females_.size(), kNameOffset};
    ZipfTable occupationRanks_{occupations_.size(), kOccupationOffset};
    ZipfTable communeRanks_{communes_.size(), kCommuneOffset};
};

}  // namespace bench

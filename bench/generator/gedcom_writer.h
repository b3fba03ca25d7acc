#pragma once

#include <cstdint>

#include "dates.h"
#include "gedcom_lines.h"
#include "numbering.h"
#include "output_buffer.h"
#include "population.h"
#include "vocabulary.h"

namespace bench {

/// Writes a population as a GEDCOM file. What the simulation does not need (given names, days, occupations,
/// notes, citations) is drawn here, from one stream per record.
class GedcomWriter {
  public:
    GedcomWriter(const Population& population, std::uint64_t seed, OutputBuffer& output);

    void Write();

  private:
    void WriteHeader();
    void WritePerson(PersonIndex index);
    void WriteName(const Person& person, Random& random);
    void WriteBirth(const Person& person, EventDay birth, Random& random);
    void WriteDeath(const Person& person, EventDay birth, Random& random);
    void WriteFamilyLinks(const Person& person);
    void WriteRemarks(Random& random);
    void WriteFamily(FamilyIndex index);
    void WriteMarriage(const Family& family, Random& random);
    void WriteCitation(Random& random, std::uint32_t perThousand);
    void WriteSource(int number);
    void WriteSharedNote(int number);
    void WriteEnd();

    const std::string& PlaceOf(VillageIndex village) const;

    const Population& population_;
    std::uint64_t seed_;
    OutputBuffer& output_;
    GedcomLines lines_;
    Vocabulary vocabulary_;
    Numbering numbering_;
    int sourceCount_;
    int sharedNoteCount_;
};

}  // namespace bench

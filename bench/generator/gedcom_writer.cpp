#include "gedcom_writer.h"

#include "note_text.h"
#include "windows_1252.h"

namespace bench {
namespace {

constexpr std::size_t kPersonsPerSource = 250;
constexpr std::size_t kPersonsPerSharedNote = 200;

// Shares per thousand of the records that have a detail, set for about 350 bytes per individual in all.
constexpr std::uint32_t kSecondGivenName = 550;
constexpr std::uint32_t kThirdGivenName = 150;
constexpr std::uint32_t kBirthDate = 950;
constexpr std::uint32_t kBirthPlace = 930;
constexpr std::uint32_t kBirthCitation = 450;
constexpr std::uint32_t kDeath = 850;
constexpr std::uint32_t kDeathDate = 920;
constexpr std::uint32_t kDeathPlace = 850;
constexpr std::uint32_t kDeathElsewhere = 120;
constexpr std::uint32_t kDeathCitation = 300;
constexpr std::uint32_t kOccupation = 400;
constexpr std::uint32_t kNote = 270;
constexpr std::uint32_t kSharedNote = 20;
constexpr std::uint32_t kMarriageDate = 920;
constexpr std::uint32_t kMarriagePlace = 900;
constexpr std::uint32_t kMarriageCitation = 450;
constexpr std::uint32_t kPage = 600;

int CountFor(std::size_t persons, std::size_t perItem) { return static_cast<int>(persons / perItem) + 1; }

}  // namespace

GedcomWriter::GedcomWriter(const Population& population, std::uint64_t seed, OutputBuffer& output)
    : population_(population),
      seed_(seed),
      output_(output),
      lines_(output.Text()),
      numbering_(NumberRecords(population, seed)),
      sourceCount_(CountFor(population.persons.size(), kPersonsPerSource)),
      sharedNoteCount_(CountFor(population.persons.size(), kPersonsPerSharedNote)) {}

void GedcomWriter::Write() {
    WriteHeader();
    for (const PersonIndex index : numbering_.personAt) {
        WritePerson(index);
        output_.EndRecord();
    }
    for (const FamilyIndex index : numbering_.familyAt) {
        WriteFamily(index);
        output_.EndRecord();
    }
    for (int number = 1; number <= sourceCount_; ++number) {
        WriteSource(number);
        output_.EndRecord();
    }
    for (int number = 1; number <= sharedNoteCount_; ++number) {
        WriteSharedNote(number);
        output_.EndRecord();
    }
    WriteEnd();
    output_.Flush();
}

void GedcomWriter::WriteHeader() {
    lines_.Line('0', "HEAD");
    lines_.Line('1', "SOUR", "BENCH");
    lines_.Line('2', "NAME", ToWindows1252("Généalogie de synthèse"));
    lines_.Line('1', "DATE", "1 JAN 2020");
    lines_.Reference('1', "SUBM", 'U', 1);
    lines_.Line('1', "GEDC");
    lines_.Line('2', "VERS", "5.5.1");
    lines_.Line('2', "FORM", "LINEAGE-LINKED");
    lines_.Line('1', "CHAR", "ANSI");
    lines_.Line('1', "LANG", "French");
    lines_.Line('1', "PLAC");
    lines_.Line('2', "FORM", ToWindows1252("Commune, Département, Région, Pays"));
}

void GedcomWriter::WritePerson(PersonIndex index) {
    const Person& person = population_.PersonAt(index);
    const int number = numbering_.numberOfPerson[static_cast<std::size_t>(index)];
    Random random(seed_, 'I', static_cast<std::uint64_t>(index));
    lines_.Record('I', number, "INDI");
    WriteName(person, random);
    lines_.Line('1', "SEX", person.sex == Sex::Male ? "M" : "F");
    const EventDay birth = {person.birthYear, random.Between(0, kDaysPerYear - 1)};
    WriteBirth(person, birth, random);
    WriteDeath(person, birth, random);
    if (random.Chance(kOccupation)) {
        lines_.Line('1', "OCCU", vocabulary_.Occupation(random));
    }
    WriteRemarks(random);
    WriteFamilyLinks(person);
}

void GedcomWriter::WriteName(const Person& person, Random& random) {
    std::string& value = lines_.BeginValue('1', "NAME");
    const auto appendGivenName = [&] {
        value.append(person.sex == Sex::Male ? vocabulary_.MaleGivenName(random)
                                             : vocabulary_.FemaleGivenName(random));
        value.push_back(' ');
    };
    appendGivenName();
    if (random.Chance(kSecondGivenName)) {
        appendGivenName();
        if (random.Chance(kThirdGivenName)) {
            appendGivenName();
        }
    }
    value.append("/").append(vocabulary_.Surname(person.surname)).append("/");
    lines_.EndValue();
}

void GedcomWriter::WriteBirth(const Person& person, EventDay birth, Random& random) {
    const bool hasDate = random.Chance(kBirthDate);
    const bool hasPlace = random.Chance(kBirthPlace);
    if (!hasDate && !hasPlace) {
        return;
    }
    lines_.Line('1', "BIRT");
    if (hasDate) {
        AppendDate(lines_.BeginValue('2', "DATE"), birth, random);
        lines_.EndValue();
    }
    if (hasPlace) {
        lines_.Line('2', "PLAC", PlaceOf(person.village));
    }
    WriteCitation(random, kBirthCitation);
}

void GedcomWriter::WriteDeath(const Person& person, EventDay birth, Random& random) {
    if (person.deathYear == 0 || !random.Chance(kDeath)) {
        return;
    }
    const bool hasDeathDate = random.Chance(kDeathDate);
    const bool hasDeathPlace = random.Chance(kDeathPlace);
    if (!hasDeathDate && !hasDeathPlace) {
        lines_.Line('1', "DEAT", "Y");
        return;
    }
    lines_.Line('1', "DEAT");
    if (hasDeathDate) {
        const int earliestDay = person.deathYear == birth.year ? birth.dayOfYear : 0;
        const EventDay death = {person.deathYear, random.Between(earliestDay, kDaysPerYear - 1)};
        AppendDate(lines_.BeginValue('2', "DATE"), death, random);
        lines_.EndValue();
    }
    if (hasDeathPlace) {
        const bool elsewhere = random.Chance(kDeathElsewhere);
        lines_.Line('2', "PLAC", elsewhere ? vocabulary_.AnyPlace(random) : PlaceOf(person.village));
    }
    WriteCitation(random, kDeathCitation);
}

void GedcomWriter::WriteRemarks(Random& random) {
    if (random.Chance(kNote)) {
        AppendNoteText(lines_.BeginValue('1', "NOTE"), '2', vocabulary_, random);
    }
    if (random.Chance(kSharedNote)) {
        lines_.Reference('1', "NOTE", 'N', random.Between(1, sharedNoteCount_));
    }
}

void GedcomWriter::WriteFamilyLinks(const Person& person) {
    for (FamilyIndex f = person.firstFamily; f != kNone; f = population_.FamilyAt(f).NextOf(person.sex)) {
        lines_.Reference('1', "FAMS", 'F', numbering_.numberOfFamily[static_cast<std::size_t>(f)]);
    }
    if (person.parents != kNone) {
        lines_.Reference('1', "FAMC", 'F',
                         numbering_.numberOfFamily[static_cast<std::size_t>(person.parents)]);
    }
}

void GedcomWriter::WriteFamily(FamilyIndex index) {
    const Family& family = population_.FamilyAt(index);
    Random random(seed_, 'M', static_cast<std::uint64_t>(index));
    lines_.Record('F', numbering_.numberOfFamily[static_cast<std::size_t>(index)], "FAM");
    const auto writePerson = [&](std::string_view tag, PersonIndex person) {
        lines_.Reference('1', tag, 'I', numbering_.numberOfPerson[static_cast<std::size_t>(person)]);
    };
    if (family.husband != kNone) {
        writePerson("HUSB", family.husband);
    }
    if (family.wife != kNone) {
        writePerson("WIFE", family.wife);
    }
    for (int i = 0; i < family.childCount; ++i) {
        writePerson("CHIL", family.firstChild + i);
    }
    if (family.IsMarriage()) {
        WriteMarriage(family, random);
    }
}

void GedcomWriter::WriteMarriage(const Family& family, Random& random) {
    const bool hasDate = random.Chance(kMarriageDate);
    const bool hasPlace = random.Chance(kMarriagePlace);
    if (!hasDate && !hasPlace) {
        return;
    }
    lines_.Line('1', "MARR");
    if (hasDate) {
        const EventDay day = {family.startYear, random.Between(0, kDaysPerYear - 1)};
        AppendDate(lines_.BeginValue('2', "DATE"), day, random);
        lines_.EndValue();
    }
    if (hasPlace) {
        lines_.Line('2', "PLAC", PlaceOf(family.village));
    }
    WriteCitation(random, kMarriageCitation);
}

void GedcomWriter::WriteCitation(Random& random, std::uint32_t perThousand) {
    if (!random.Chance(perThousand)) {
        return;
    }
    lines_.Reference('2', "SOUR", 'S', random.Between(1, sourceCount_));
    if (random.Chance(kPage)) {
        std::string& value = lines_.BeginValue('3', "PAGE");
        value.append("vue ");
        AppendNumber(value, random.Between(1, 400));
        lines_.EndValue();
    }
}

void GedcomWriter::WriteSource(int number) {
    static const std::string kTitle = ToWindows1252("Registres paroissiaux et d’état civil de ");
    static const std::string kAuthor = ToWindows1252("Archives départementales");
    Random random(seed_, 'Q', static_cast<std::uint64_t>(number));
    const std::vector<Commune>& communes = vocabulary_.Communes();
    const Commune& commune = communes[random.Below(static_cast<std::uint32_t>(communes.size()))];
    lines_.Record('S', number, "SOUR");
    lines_.BeginValue('1', "TITL").append(kTitle).append(commune.name);
    lines_.EndValue();
    lines_.Line('1', "AUTH", kAuthor);
}

void GedcomWriter::WriteSharedNote(int number) {
    Random random(seed_, 'T', static_cast<std::uint64_t>(number));
    AppendNoteText(lines_.BeginRecordValue('N', number, "NOTE"), '1', vocabulary_, random);
}

void GedcomWriter::WriteEnd() {
    lines_.Record('U', 1, "SUBM");
    lines_.Line('1', "NAME", ToWindows1252("Générateur /de mesures/"));
    lines_.Line('0', "TRLR");
}

// The villages are spread over all departments.
const std::string& GedcomWriter::PlaceOf(VillageIndex village) const {
    return vocabulary_.Communes()[village * kCommuneCount / population_.villageCount].place;
}

}  // namespace bench

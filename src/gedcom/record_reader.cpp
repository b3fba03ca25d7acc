#include "gedcom/record_reader.h"

#include <algorithm>

#include "gedcom/places.h"
#include "tables/column_numbers.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kYears = 10000;
constexpr std::int32_t kNoFamilyYearMax = 0;

bool IsFamilyEvent(TextView tag) {
    constexpr TextView kTags[] = {"MARR", "MARC", "MARL", "MARS", "ANNU", "DIV", "DIVF"};
    return std::find(std::begin(kTags), std::end(kTags), tag) != std::end(kTags);
}

}  // namespace

PersonNames SplitName(TextView sValue) {
    if (sValue.empty()) return {};
    const std::vector<TextView> parts = Split(sValue, "/");
    const TextView first = Trim(parts[0]);
    switch (parts.size()) {
        case 1:
            return {Text(first), Text()};
        case 2:
            return {Text(Trim(parts[1])), Text(first)};
        case 3: {
            const TextView suffix = Trim(parts[2]);
            return {Text(Trim(parts[1])), suffix.empty() ? Text(first) : Concat({first, "/", suffix})};
        }
        default:
            return {Text(sValue.substr(std::min(first.size() + 1, sValue.size()))), Text(first)};
    }
}

RecordReader::RecordReader(Application& app, LineReader& lines, Links& links)
    : app_(app), lines_(lines), links_(links), store_(app.lvwIn.Store()), yearTexts_(kYears) {}

TextRef RecordReader::UsedXref() const {
    return store_.Intern(GetXrefUsed(lines_.sValue));
}

TextRef RecordReader::Place() const {
    return store_.Intern(CleanInPlace(lines_.sValue));
}

TextRef RecordReader::YearText(std::int32_t year, std::int32_t none) {
    if (year == none) return {};
    TextRef& text = yearTexts_.at(static_cast<std::size_t>(year));
    if (text.IsEmpty()) text = store_.Intern(Decimal(year));
    return text;
}

Text RecordReader::CurrentRange() const {
    return Concat({Decimal(lines_.lPrevPos), " ", Decimal(lines_.lCurPos)});
}

std::int32_t RecordReader::ReadIndividual() {
    sCurId_ = store_.Intern(lines_.sXrefDef);
    Individual individual;
    std::int32_t result = 0;
    while ((result = lines_.Read1Line()) == 0 && lines_.iLevel > lines_.iBaseLevel) ReadIndividualLine(individual);
    ++lNrRows_;
    Row row = app_.lvwIn.Add(lNrRows_, RowKey(sCurId_), sCurId_);
    // The line that ended the record has been read, so these are the starts of this record and of the next one.
    row.SetTag(CurrentRange());
    row.SetCell(In::LastName, individual.lastName);
    row.SetCell(In::FirstName, individual.firstName);
    row.SetCell(In::BirthPlace, individual.birthPlace);
    row.SetCell(In::BirthMin, YearText(individual.birth.lYearMin, kNoYearMin));
    row.SetCell(In::BirthMax, YearText(individual.birth.lYearMax, kNoYearMax));
    row.SetCell(In::DeathPlace, individual.deathPlace);
    row.SetCell(In::DeathMin, YearText(individual.death.lYearMin, kNoYearMin));
    row.SetCell(In::DeathMax, YearText(individual.death.lYearMax, kNoYearMax));
    row.SetCell(In::Sex, individual.sex);
    return result;
}

void RecordReader::ReadIndividualLine(Individual& individual) {
    const TextView tag = lines_.sTag;
    if (lines_.iLevel == lines_.iBaseLevel + 1) {
        individual.event = Event::None;
        if (tag == "NAME") {
            ReadName(individual);
        } else if (tag == "SEX") {
            individual.sex = store_.Intern(Trim(lines_.sValue));
        } else if (tag == "BIRT") {
            individual.event = Event::Birth;
        } else if (tag == "DEAT") {
            individual.event = Event::Death;
        } else if (tag == "FAMS") {
            links_.AddFamilyXRef(UsedXref(), links_.Words().Fams, sCurId_, individual.sex);
        } else if (tag == "FAMC") {
            links_.AddFamilyXRef(UsedXref(), links_.Words().Famc, sCurId_, individual.sex);
        } else if (tag == "ALIA") {
            AddAlias(UsedXref());
        }
    } else if (lines_.iLevel == lines_.iBaseLevel + 2 && individual.event != Event::None) {
        const bool birth = individual.event == Event::Birth;
        if (tag == "DATE") {
            (birth ? individual.birth : individual.death) = GetYears(lines_.sValue);
        } else if (tag == "PLAC") {
            (birth ? individual.birthPlace : individual.deathPlace) = Place();
        }
    }
}

void RecordReader::ReadName(Individual& individual) {
    PersonNames names = SplitName(lines_.sValue);
    if (app_.chkInvertNames.Checked()) std::swap(names.sLastName, names.sFirstName);
    if (app_.chkUpperNames.Checked()) names.sLastName = UpperCase(names.sLastName);
    individual.lastName = store_.Intern(names.sLastName);
    individual.firstName = store_.Put(names.sFirstName);
    ++lines_.lNrNames;
    if (lines_.lNrNames % 100 == 0) app_.pnlIndividuals.Set(Concat({Decimal(lines_.lNrNames), " Individu(s)"_t}));
}

void RecordReader::AddAlias(TextRef other) {
    const TextRef alia = links_.Words().Alia, none;
    links_.AddXrefXRef(sCurId_, alia, other, none, none, none, none);
    links_.AddXrefXRef(other, alia, sCurId_, none, none, none, none);
}

void RecordReader::AddMember(TextRef type, TextRef sex) {
    links_.AddFamilyXRef(sCurId_, type, UsedXref(), sex);
}

std::int32_t RecordReader::ReadFamilyRecord() {
    sCurId_ = store_.Intern(lines_.sXrefDef);
    const LinkWords& words = links_.Words();
    Years years{kNoYearMin, kNoFamilyYearMax};
    TextRef place;
    const std::int16_t base = lines_.iBaseLevel;
    std::int32_t result = lines_.Read1Line();
    while (result == 0 && lines_.iLevel > base) {
        const bool isMemberLevel = lines_.iLevel == base + 1;
        if (isMemberLevel && IsFamilyEvent(lines_.sTag)) {
            // All events of a family widen one range of years and write one place.
            while ((result = lines_.Read1Line()) == 0 && lines_.iLevel > base + 1) {
                if (lines_.iLevel == base + 2) ReadFamilyEvent(place, years);
            }
            continue;
        }
        if (isMemberLevel && lines_.sTag == "HUSB") AddMember(words.Husband, words.Male);
        if (isMemberLevel && lines_.sTag == "WIFE") AddMember(words.Wife, words.Female);
        if (isMemberLevel && lines_.sTag == "CHIL") AddMember(words.Child, TextRef());
        result = lines_.Read1Line();
    }
    Row row = links_.AddFamily(sCurId_, TextRef(), TextRef(), place, years.lYearMin, years.lYearMax);
    row.SetTag(CurrentRange());
    return result;
}

void RecordReader::ReadFamilyEvent(TextRef& place, Years& years) {
    if (lines_.sTag == "DATE") {
        const Years event = GetYears(lines_.sValue);
        years.lYearMin = std::min(years.lYearMin, event.lYearMin);
        years.lYearMax = std::max(years.lYearMax, event.lYearMax);
    } else if (lines_.sTag == "PLAC") {
        place = Place();
    }
}

}  // namespace swiftroll::modReadGedcom

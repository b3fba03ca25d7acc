#include "gedcom/record_reader.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "gedcom/places.h"
#include "gedcom/tag.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::size_t kYears = 10000;
constexpr std::int32_t kNoFamilyYearMax = 0;

bool IsFamilyEvent(std::uint64_t tag) {
    constexpr std::uint64_t kTags[] = {TagCode("MARR"), TagCode("MARC"), TagCode("MARL"), TagCode("MARS"),
                                       TagCode("ANNU"), TagCode("DIV"),  TagCode("DIVF")};
    return std::find(std::begin(kTags), std::end(kTags), tag) != std::end(kTags);
}

bool TellsDeath(std::uint64_t tag) {
    return tag == TagCode("DEAT") || tag == TagCode("BURI") || tag == TagCode("CREM");
}

}  // namespace

PersonNames SplitName(TextView sValue) {
    const auto slash1 = sValue.find('/');
    const TextView first = Trim(sValue.substr(0, slash1));
    if (slash1 == TextView::npos) return {first, {}, {}};
    const TextView behind1 = sValue.substr(slash1 + 1);
    const auto slash2 = behind1.find('/');
    if (slash2 == TextView::npos) return {Trim(behind1), first, {}};
    const TextView behind2 = behind1.substr(slash2 + 1);
    if (behind2.find('/') == TextView::npos) return {Trim(behind1.substr(0, slash2)), first, Trim(behind2)};
    // More slashes: the surname is all that stands behind the given names and one character.
    return {sValue.substr(std::min(first.size() + 1, sValue.size())), first, {}};
}

RecordReader::RecordReader(Application& app, LineReader& lines, Links& links, ReadFindings& findings)
    : app_(app),
      lines_(lines),
      links_(links),
      store_(app.lvwIn.Store()),
      findings_(findings),
      readsCalendars_(app.chkCalendars.Checked()),
      usesStandIns_(app.chkFallbackEvents.Checked()),
      yearTexts_(kYears) {}

TextRef RecordReader::UsedXref() const { return store_.Intern(GetXrefUsed(lines_.sValue)); }

TextRef RecordReader::Sex(TextView sex) const {
    if (sex == "M") return links_.Words().Male;
    if (sex == "F") return links_.Words().Female;
    return store_.Intern(sex);
}

TextRef RecordReader::Place() {
    // One record, and its neighbours in the register, often name one place.
    const TextView place = CleanInPlace(lines_.DecodedValue());
    if (place != store_.Get(lastPlace_)) lastPlace_ = store_.Intern(place);
    return lastPlace_;
}

TextRef RecordReader::YearText(std::int32_t year, std::int32_t none) {
    if (year == none) return {};
    TextRef& text = yearTexts_.at(static_cast<std::size_t>(year));
    if (text.IsEmpty()) text = store_.Intern(Decimal(year));
    return text;
}

void RecordReader::SetRange(Row& row) const {
    constexpr std::size_t kDigits = 20;
    std::array<char, 2 * kDigits + 1> range{};
    char* end = std::to_chars(range.data(), range.data() + kDigits, lines_.lPrevPos).ptr;
    *end = ' ';
    end = std::to_chars(end + 1, range.data() + range.size(), lines_.lCurPos).ptr;
    row.SetTag({range.data(), static_cast<std::size_t>(end - range.data())});
}

std::int32_t RecordReader::ReadIndividual() {
    sCurId_ = store_.Intern(lines_.sXrefDef);
    // A person without identifier has no key, so that nothing refers to it.
    const auto key = sCurId_.IsEmpty() ? std::nullopt : std::optional(RowKey(sCurId_));
    if (key && app_.lvwIn.Find(*key)) return SkipRecord();
    Individual individual;
    std::int32_t result = 0;
    while ((result = lines_.Read1Line()) == 0 && lines_.iLevel > lines_.iBaseLevel)
        ReadIndividualLine(individual);
    ++lNrRows_;
    Row row = app_.lvwIn.Add(lNrRows_, key, sCurId_);
    // The line that ended the record has been read, so these are the starts of this record and of the next
    // one.
    SetRange(row);
    if (individual.hasDied) app_.deaths.Add(lines_.lPrevPos);
    row.SetCell(In::LastName, individual.lastName);
    row.SetCell(In::FirstName, individual.firstName);
    const LifeFacts birth = individual.events.Birth(usesStandIns_, findings_);
    const LifeFacts death = individual.events.Death(usesStandIns_, findings_);
    row.SetCell(In::BirthPlace, birth.place);
    row.SetCell(In::BirthMin, YearText(birth.years.lYearMin, kNoYearMin));
    row.SetCell(In::BirthMax, YearText(birth.years.lYearMax, kNoYearMax));
    row.SetCell(In::DeathPlace, death.place);
    row.SetCell(In::DeathMin, YearText(death.years.lYearMin, kNoYearMin));
    row.SetCell(In::DeathMax, YearText(death.years.lYearMax, kNoYearMax));
    row.SetCell(In::Sex, individual.sex);
    return result;
}

/// The end of the record tells the line reader that its identifier was there before.
std::int32_t RecordReader::SkipRecord() {
    std::int32_t result = 0;
    while ((result = lines_.Read1Line()) == 0 && lines_.iLevel > lines_.iBaseLevel) {
    }
    return result;
}

void RecordReader::ReadIndividualLine(Individual& individual) {
    const std::uint64_t tag = TagCode(lines_.sTag);
    if (lines_.iLevel == lines_.iBaseLevel + 1) {
        individual.event = nullptr;
        individual.hasDied |= TellsDeath(tag);
        switch (tag) {
            case TagCode("NAME"):
                return ReadName(individual);
            case TagCode("SEX"):
                individual.sex = Sex(Trim(lines_.DecodedValue()));
                return;
            case TagCode("FAMS"):
                return links_.AddFamilyXRef(UsedXref(), links_.Words().Fams, sCurId_, individual.sex);
            case TagCode("FAMC"):
                return links_.AddFamilyXRef(UsedXref(), links_.Words().Famc, sCurId_, individual.sex);
            case TagCode("ALIA"):
                return AddAlias(UsedXref());
            default:
                individual.event = individual.events.Of(tag);
                return;
        }
    }
    if (lines_.iLevel == lines_.iBaseLevel + 2 && individual.event != nullptr)
        ReadEventLine(*individual.event);
}

void RecordReader::ReadEventLine(EventFacts& event) {
    if (lines_.sTag == "DATE") {
        event.date = ReadDate(lines_.DecodedValue(), readsCalendars_);
    } else if (lines_.sTag == "PLAC") {
        event.hasPlace = !CleanInPlace(lines_.sValue).empty();
        if (usesStandIns_ || !event.isStandIn) event.place = Place();
    }
}

void RecordReader::ReadName(Individual& individual) {
    const PersonNames names = SplitName(lines_.DecodedValue());
    TextView sLastName = names.sLastName, sFirstName = names.sFirstName;
    if (!names.sSuffix.empty()) {
        sWithSuffix_ = Concat({names.sFirstName, "/", names.sSuffix});
        sFirstName = sWithSuffix_;
    }
    if (app_.chkInvertNames.Checked()) std::swap(sLastName, sFirstName);
    individual.lastName = store_.Intern(app_.chkUpperNames.Checked() ? UpperCase(sLastName) : sLastName);
    individual.firstName = store_.Put(sFirstName);
    ++lines_.lNrNames;
    if (lines_.lNrNames % 100 == 0)
        app_.pnlIndividuals.Set(Concat({Decimal(lines_.lNrNames), " Individu(s)"_t}));
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
        const std::uint64_t tag = lines_.iLevel == base + 1 ? TagCode(lines_.sTag) : 0;
        if (IsFamilyEvent(tag)) {
            // All events of a family widen one range of years and write one place.
            while ((result = lines_.Read1Line()) == 0 && lines_.iLevel > base + 1) {
                if (lines_.iLevel == base + 2) ReadFamilyEvent(place, years);
            }
            continue;
        }
        if (tag == TagCode("HUSB")) AddMember(words.Husband, words.Male);
        if (tag == TagCode("WIFE")) AddMember(words.Wife, words.Female);
        if (tag == TagCode("CHIL")) AddMember(words.Child, TextRef());
        result = lines_.Read1Line();
    }
    Row row = links_.AddFamily(sCurId_, TextRef(), TextRef(), place, years.lYearMin, years.lYearMax);
    SetRange(row);
    return result;
}

void RecordReader::ReadFamilyEvent(TextRef& place, Years& years) {
    if (lines_.sTag == "DATE") {
        const DateReading event = ReadDate(lines_.DecodedValue(), readsCalendars_);
        findings_.Note(event);
        years.Widen(event.years);
    } else if (lines_.sTag == "PLAC") {
        place = Place();
    }
}

}  // namespace swiftroll::modReadGedcom

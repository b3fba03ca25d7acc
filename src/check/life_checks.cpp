#include "check/life_checks.h"

#include "check/spouses.h"
#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {
namespace {

std::int16_t YearOf(TextView text, std::int16_t unknown) {
    const auto year = ParseDecimal(text);
    if (!year || *year > YearSpan::kEver || *year < -YearSpan::kEver) return unknown;
    return static_cast<std::int16_t>(*year);
}

/// The years of two cells, of which an end that the date leaves open is any year.
YearSpan SpanOf(TextView first, TextView last, OpenEnds ends) {
    YearSpan span;
    if (!ends.before) span.first = YearOf(first, span.first);
    if (!ends.after) span.last = YearOf(last, span.last);
    return span;
}

Text Age(int years) { return Concat({Decimal(years), years < 2 && years > -2 ? " an" : " ans"}); }

/// Looks at the people of one family.
class FamilyChecker {
  public:
    FamilyChecker(const FileRecords& records, const std::vector<Life>& lives, Findings& findings)
        : records_(records), lives_(lives), findings_(findings) {}

    void Check(std::size_t family) {
        ListSpouses(records_, family, spouses_);
        for (const Spouse& spouse : spouses_) CheckMarriage(records_.families[family], spouse.person);
        records_.VisitMemberLinks(family, [this](const Link& link) {
            const std::uint32_t child = records_.PersonOf(link.target);
            if (child == kNone || link.kind != LinkKind::Child) return;
            for (const Spouse& spouse : spouses_) {
                if (spouse.person != child) CheckBirth(child, spouse.person, spouse.kind);
            }
        });
    }

  private:
    void CheckMarriage(const FamilyRecord& family, std::uint32_t person) {
        if (family.marriageLine == 0) return;
        const Life& life = lives_[person];
        const TextView id = records_.ids.Get(records_.persons[person].id);
        const Text where = Concat({" (", records_.ids.Get(family.id), ")"});
        if (const int age = family.marriage.last - life.birth.first;
            age < FactsOf(Rule::YoungMarriage).limit) {
            findings_.Add(Rule::YoungMarriage, family.marriageLine, id,
                          Concat({"Naissance en "_t, Decimal(life.birth.first), ", mariage en ",
                                  Decimal(family.marriage.last), where, " : ", Age(age), "."}));
        }
        if (family.marriage.first > life.death.last) {
            findings_.Add(Rule::MarriageAfterDeath, family.marriageLine, id,
                          Concat({"Décès en "_t, Decimal(life.death.last), ", mariage en ",
                                  Decimal(family.marriage.first), where, "."}));
        }
    }

    void CheckBirth(std::uint32_t child, std::uint32_t parent, LinkKind kind) {
        const YearSpan &birth = lives_[child].birth, &parentBirth = lives_[parent].birth;
        const bool isMother = kind == LinkKind::Wife;
        const TextView born = isMother ? "née en "_t : "né en "_t;
        if (const int age = birth.last - parentBirth.first; age < FactsOf(Rule::YoungParent).limit) {
            TellBirth(Rule::YoungParent, child, birth.last, parent, isMother,
                      {born, Decimal(parentBirth.first), " : ", Age(age)});
        }
        if (const int age = birth.first - parentBirth.last;
            isMother && age > FactsOf(Rule::OldMother).limit) {
            TellBirth(Rule::OldMother, child, birth.first, parent, isMother,
                      {born, Decimal(parentBirth.last), " : ", Age(age)});
        }
        const int death = lives_[parent].death.last;
        const Rule rule = isMother ? Rule::DeadMother : Rule::DeadFather;
        if (birth.first > death + FactsOf(rule).limit) {
            TellBirth(rule, child, birth.first, parent, isMother,
                      {isMother ? "décédée en "_t : "décédé en "_t, Decimal(death)});
        }
    }

    void TellBirth(Rule rule, std::uint32_t child, int year, std::uint32_t parent, bool isMother,
                   std::initializer_list<TextView> whatIsWrong) {
        const PersonRecord& record = records_.persons[child];
        findings_.Add(
            rule, record.line, records_.ids.Get(record.id),
            Concat({"Naissance en "_t, Decimal(year), " ; ", isMother ? "la mère ("_t : "le père ("_t,
                    records_.ids.Get(records_.persons[parent].id), ") est ", Concat(whatIsWrong), "."}));
    }

    const FileRecords& records_;
    const std::vector<Life>& lives_;
    Findings& findings_;
    std::vector<Spouse> spouses_;
};

}  // namespace

std::vector<Life> CheckPersons(const TableSet& tables, const FileRecords& records, Findings& findings) {
    std::vector<Life> lives(records.persons.size());
    for (std::int32_t i = 1; i <= tables.lvwIn.Count(); ++i) {
        LookAhead(tables.lvwIn, i);
        const RowView row = tables.lvwIn.Item(i);
        const std::uint32_t person = records.PersonOf(row.Cell(In::ID));
        if (person == kNone) continue;
        const PersonRecord& record = records.persons[person];
        const auto tell = [&](Rule rule, TextView text) {
            findings.Add(rule, record.line, records.ids.Get(record.id), text);
        };
        if (row.Ref(In::LastName).IsEmpty() && row.Ref(In::FirstName).IsEmpty())
            tell(Rule::NoName, "L'individu n'a ni nom ni prénom."_t);
        if (row.Ref(In::Sex).IsEmpty()) tell(Rule::NoSex, "Le sexe n'est pas indiqué."_t);
        Life& life = lives[person];
        life.birth = SpanOf(row.Cell(In::BirthMin), row.Cell(In::BirthMax), record.birth);
        life.death = SpanOf(row.Cell(In::DeathMin), row.Cell(In::DeathMax), record.death);
        if (life.death.last < life.birth.first) {
            tell(Rule::DeathBeforeBirth, Concat({"Naissance en "_t, Decimal(life.birth.first),
                                                 ", décès en "_t, Decimal(life.death.last), "."}));
        } else if (const int age = life.death.first - life.birth.last; age > FactsOf(Rule::GreatAge).limit) {
            tell(Rule::GreatAge, Concat({"Naissance en "_t, Decimal(life.birth.last), ", décès en "_t,
                                         Decimal(life.death.first), " : ", Age(age), "."}));
        }
    }
    return lives;
}

void CheckFamilies(const FileRecords& records, const std::vector<Life>& lives, Findings& findings) {
    FamilyChecker checker(records, lives, findings);
    for (std::size_t family = 0; family < records.families.size(); ++family) checker.Check(family);
}

}  // namespace swiftroll::modCheck

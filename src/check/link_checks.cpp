#include "check/link_checks.h"

#include <array>

#include "check/member_lists.h"
#include "text/edit.h"

namespace swiftroll::modCheck {
namespace {

Rule OneSidedRule(LinkKind kind) {
    switch (kind) {
        case LinkKind::Fams:
            return Rule::SpouseNotInFamily;
        case LinkKind::Famc:
            return Rule::ChildNotInFamily;
        case LinkKind::Child:
            return Rule::FamilyNotInChild;
        case LinkKind::Husband:
        case LinkKind::Wife:
            break;
    }
    return Rule::FamilyNotInSpouse;
}

bool IsOfChild(LinkKind kind) { return kind == LinkKind::Child || kind == LinkKind::Famc; }

/// Which families a person was told of last, as spouse and as child; begun anew for each person at no cost.
class ToldFamilies {
  public:
    explicit ToldFamilies(std::size_t families) {
        for (auto& tellers : tellers_) tellers.resize(families, kNone);
    }
    void Add(std::uint32_t family, LinkKind kind, std::uint32_t person) { Of(family, kind) = person; }
    bool Has(std::uint32_t family, LinkKind kind, std::uint32_t person) { return Of(family, kind) == person; }

  private:
    std::uint32_t& Of(std::uint32_t family, LinkKind kind) {
        return tellers_[IsOfChild(kind) ? 1 : 0][family];
    }
    std::array<std::vector<std::uint32_t>, 2> tellers_;  // of spouses and of children, by family
};

struct LinkChecker {
    const FileRecords& records;
    Findings& findings;

    void TellOneSided(const Link& link, TextRef owner, TextView other) const {
        findings.Add(OneSidedRule(link.kind), link.line, records.ids.Get(owner),
                     Concat({TagOf(link.kind), " ", records.ids.Get(link.target), " : la fiche "_t,
                             records.ids.Get(link.target), " n'a pas de ligne "_t, other, " vers "_t,
                             records.ids.Get(owner), "."}));
    }
    void CheckPerson(std::uint32_t person, const MemberLists& members, ToldFamilies& byFamily,
                     ToldFamilies& byPerson) const {
        const TextRef id = records.persons[person].id;
        members.Visit(person, [&](const Link& link) {
            byFamily.Add(records.CanonicalFamily(link.owner), link.kind, person);
        });
        records.VisitPersonLinks(person, [&](const Link& link) {
            const std::uint32_t family = records.FamilyOf(link.target);
            if (family == kNone) return;
            byPerson.Add(family, link.kind, person);
            if (byFamily.Has(family, link.kind, person)) return;
            TellOneSided(link, id, link.kind == LinkKind::Famc ? "CHIL"_t : "HUSB ni WIFE"_t);
        });
        members.Visit(person, [&](const Link& link) {
            if (byPerson.Has(records.CanonicalFamily(link.owner), link.kind, person)) return;
            TellOneSided(link, records.families[link.owner].id,
                         link.kind == LinkKind::Child ? "FAMC"_t : "FAMS"_t);
        });
    }
};

void CheckTargets(const FileRecords& records, const BlockVector<Link>& links, bool toPersons,
                  Findings& findings) {
    for (std::size_t i = 0; i < links.size(); ++i) {
        const Link& link = links[i];
        const bool isThere =
            (toPersons ? records.PersonOf(link.target) : records.FamilyOf(link.target)) != kNone;
        if (isThere) continue;
        const TextRef owner = toPersons ? records.families[link.owner].id : records.persons[link.owner].id;
        const TextView why = records.LineOf(link.target) == 0 ? "cette fiche n'existe pas."_t
                             : toPersons                      ? "cette fiche n'est pas un individu."_t
                                                              : "cette fiche n'est pas une famille."_t;
        findings.Add(Rule::MissingRecord, link.line, records.ids.Get(owner),
                     Concat({TagOf(link.kind), " ", records.ids.Get(link.target), " : ", why}));
    }
}

}  // namespace

void CheckReferences(const FileRecords& records, Findings& findings) {
    CheckTargets(records, records.personLinks, false, findings);
    CheckTargets(records, records.memberLinks, true, findings);
    for (std::size_t i = 0; i < records.openReferences.size(); ++i) {
        const Reference& reference = records.openReferences[i];
        if (records.Has(reference.target, reference.needed)) continue;
        const TextView there = records.ids.Get(records.TagOf(reference.target));
        const Text why =
            there.empty() ? Text("cette fiche n'existe pas."_t) : Concat({"c'est une fiche "_t, there, "."});
        findings.Add(
            Rule::MissingRecord, reference.line, records.ids.Get(reference.owner),
            Concat({records.ids.Get(reference.tag), " ", records.ids.Get(reference.target), " : ", why}));
    }
}

void CheckLinks(const FileRecords& records, Findings& findings) {
    const MemberLists members(records);
    const LinkChecker checker{records, findings};
    ToldFamilies byFamily(records.families.size()), byPerson(records.families.size());
    for (std::uint32_t person = 0; person < records.persons.size(); ++person)
        checker.CheckPerson(person, members, byFamily, byPerson);
    for (std::size_t family = 0; family < records.families.size(); ++family) {
        bool isEmpty = true;
        records.VisitMemberLinks(family, [&](const Link&) { isEmpty = false; });
        if (!isEmpty) continue;
        const FamilyRecord& record = records.families[family];
        findings.Add(Rule::EmptyFamily, record.line, records.ids.Get(record.id),
                     "La famille n'a ni époux, ni épouse, ni enfant."_t);
    }
}

}  // namespace swiftroll::modCheck

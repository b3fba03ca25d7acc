#include "kinship/path_names.h"

#include "kinship/out_link.h"
#include "kinship/relations.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

using Way = KinStep::Way;

/// The word of a link says what the individual is to the next; the step is what the next one is to him.
Way ReadWay(TextView sType) {
    switch (RelationOf(sType)) {
        case Relation::Parent:
            return Way::Child;
        case Relation::Child:
            return Way::Parent;
        case Relation::Spouse:
            return Way::Spouse;
        case Relation::Other:
            break;
    }
    return Way::Same;
}

/// The first line of the path of a number; nothing for a path that stands nowhere.
std::optional<Row> FirstLine(Table& lvwKinship, TextView number) {
    if (lvwKinship.Count() == 0) return std::nullopt;
    const TextStore& store = lvwKinship.Store();
    const TextRef path = store.FindInterned(Concat({number, kPathEnd}));
    if (path.IsEmpty()) return std::nullopt;
    return lvwKinship.Find(RowKey(path, store.FindInterned(Decimal(1, kPathDigits))));
}

OtherParent CompareOthers(TextView one, TextView two) {
    if (one.empty() || two.empty()) return OtherParent::Unknown;
    return one == two ? OtherParent::Same : OtherParent::Different;
}

}  // namespace

TextView PathNames::Spouses::BesideOf(TextView id) const {
    return id == husband ? wife : id == wife ? husband : TextView();
}

void PathNames::ForgetWhatIsGone() {
    const std::uint32_t clearings = tables_.lvwKinship.Clearings();
    if (std::exchange(clearings_, clearings) == clearings) return;
    wayOf_.clear();
    personOf_.clear();
    familyOf_.clear();
    people_.clear();
    families_.clear();
}

Way PathNames::WayOf(TextRef sType) {
    const auto known = wayOf_.find(sType);
    if (known != wayOf_.end()) return known->second;
    return wayOf_[sType] = ReadWay(tables_.lvwKinship.Store().Get(sType));
}

const PathNames::Person& PathNames::PersonOf(TextRef sIndi) {
    const Person*& known = personOf_[sIndi];
    if (known == nullptr) {
        const TextView id = tables_.lvwKinship.Store().Get(sIndi);
        const auto row = tables_.lvwIn.Find(id);
        known = &people_.emplace_back(Person{id, row ? SexOf(row->Cell(In::Sex)) : Sex::Unknown});
    }
    return *known;
}

const PathNames::Spouses& PathNames::FamilyOf(TextRef sFam) {
    const Spouses*& known = familyOf_[sFam];
    if (known == nullptr) {
        const auto row = tables_.lvwFamily.Find(tables_.lvwKinship.Store().Get(sFam));
        known = &families_.emplace_back(row ? Spouses{row->Cell(Family::IDHusb), row->Cell(Family::IDWife)}
                                            : Spouses());
    }
    return *known;
}

/// False for a path that stands nowhere.
bool PathNames::ReadPath(const Row& row) {
    ForgetWhatIsGone();
    links_.clear();
    auto line = FirstLine(tables_.lvwKinship, row.Text());
    if (!line) return false;
    from_ = &PersonOf(line->Ref(Kinship::IDIndi));
    while (!line->Ref(Kinship::Type).IsEmpty()) {
        const auto next = tables_.lvwKinship.AddedAfter(*line);
        if (!next) return false;
        Append(WayOf(line->Ref(Kinship::Type)), PersonOf(next->Ref(Kinship::IDIndi)),
               line->Ref(Kinship::IDFamily));
        line = next;
    }
    steps_.clear();
    for (const Link& link : links_) steps_.push_back(link.step);
    return true;
}

/// Of a couple with two families, the link of the marriage and those of the children may name different ones,
/// so that the path has a marriage which a name need not tell.
void PathNames::Append(Way way, const Person& to, TextRef sFam) {
    const auto follows = [&](Way before) { return !links_.empty() && links_.back().step.way == before; };
    if (way == Way::Spouse && follows(Way::Parent)) {
        Link& last = links_.back();
        if (FamilyOf(last.family).BesideOf(last.to->id) == to.id) {
            last = {{Way::Parent, to.sex}, &to, last.family};
            return;
        }
    }
    if (way == Way::Child && follows(Way::Spouse)) {
        const TextView present = links_.back().to->id, before = PersonAfter(links_.size() - 1).id;
        if (FamilyOf(sFam).BesideOf(present) == before) links_.pop_back();
    }
    KinStep step{way, to.sex};
    if (way == Way::Child && follows(Way::Parent)) {
        const Link& up = links_.back();
        step.other = up.family == sFam ? OtherParent::Same
                                       : CompareOthers(FamilyOf(up.family).BesideOf(up.to->id),
                                                       FamilyOf(sFam).BesideOf(up.to->id));
    }
    links_.push_back({step, &to, sFam});
}

/// The identifiers of the individual whom both descend from, and of the other one of the couple.
Text PathNames::CommonAncestors(std::size_t stepsToAncestor) {
    const TextView ancestor = PersonAfter(stepsToAncestor).id;
    if (stepsToAncestor == 0 || stepsToAncestor == links_.size()) return Text(ancestor);
    const Link& down = links_[stepsToAncestor];
    const Spouses& couple = FamilyOf(down.family);
    const TextView other = couple.BesideOf(ancestor);
    if (down.step.other != OtherParent::Same || other.empty() || !tables_.lvwIn.Find(other)) {
        return Text(ancestor);
    }
    return Concat({couple.husband, " ", couple.wife});
}

void PathNames::Complete(Row& row) {
    if (!row.Ref(Paths::Relation).IsEmpty() || row.Cell(Paths::Visible) != kVisible || !ReadPath(row)) return;
    TextStore& store = tables_.lvwPaths.Store();
    const KinName name = namer_.NameOf(steps_);
    row.SetCell(Paths::Relation, store.Intern(name.name));
    if (!name.degrees) return;
    row.SetCell(Paths::CivilDegree, store.Intern(Decimal(name.degrees->civil)));
    row.SetCell(Paths::CanonDegree, store.Intern(Decimal(name.degrees->canonical)));
    row.SetCell(Paths::Ancestors, store.Intern(CommonAncestors(name.stepsToAncestor)));
}

Text PathNames::NameBackwards(const Row& row) {
    if (row.Cell(Paths::Visible) != kVisible || !ReadPath(row)) return {};
    return namer_.NameOf(Reversed(steps_, from_->sex)).name;
}

}  // namespace swiftroll::modKinship

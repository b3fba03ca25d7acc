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
Way WayOf(TextView sType) {
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

/// The lines of a path one after the other. They stand so unless the user has sorted the table otherwise.
class PathLines {
  public:
    PathLines(Table& lvwKinship, TextView number)
        : table_(lvwKinship),
          prefix_(Concat({number, kPathEnd})),
          path_(table_.Count() > 0 ? table_.Store().FindInterned(prefix_) : TextRef()) {}

    std::optional<Row> Next() {
        if (path_.IsEmpty()) return std::nullopt;
        ++line_;
        if (place_ > 0 && place_ < table_.Count()) {
            const Row row = table_.Item(place_ + 1);
            if (IsPresentLine(row.Text())) {
                ++place_;
                return row;
            }
        }
        const auto number = table_.Store().FindInterned(Decimal(line_, kPathDigits));
        const auto row = table_.Find(RowKey(path_, number));
        place_ = row ? row->Index() : 0;
        return row;
    }

  private:
    /// Whether a text is the number of the path and of the line. Paths have hundreds of lines, and of each
    /// this is asked.
    bool IsPresentLine(TextView sSeqNr) const {
        if (sSeqNr.size() < prefix_.size() + kPathDigits || !sSeqNr.starts_with(prefix_)) return false;
        std::int32_t line = 0;
        for (const char c : sSeqNr.substr(prefix_.size())) line = line * 10 + (c - '0');
        return line == line_;
    }

    Table& table_;
    Text prefix_;
    TextRef path_;
    std::int32_t place_ = 0, line_ = 0;
};

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
    personOf_.clear();
    familyOf_.clear();
    people_.clear();
    families_.clear();
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
    PathLines lines(tables_.lvwKinship, row.Text());
    auto line = lines.Next();
    if (!line) return false;
    from_ = &PersonOf(line->Ref(Kinship::IDIndi));
    while (!line->Cell(Kinship::Type).empty()) {
        const auto next = lines.Next();
        if (!next) return false;
        Append(WayOf(line->Cell(Kinship::Type)), PersonOf(next->Ref(Kinship::IDIndi)),
               FamilyOf(line->Ref(Kinship::IDFamily)));
        line = next;
    }
    steps_.clear();
    for (const Link& link : links_) steps_.push_back(link.step);
    return true;
}

/// Of a couple with two families, the link of the marriage and those of the children may name different ones,
/// so that the path has a marriage which a name need not tell.
void PathNames::Append(Way way, const Person& to, const Spouses& family) {
    KinStep step{way, to.sex};
    if (!links_.empty()) {
        Link& last = links_.back();
        if (last.step.way == Way::Parent && way == Way::Spouse &&
            last.family->BesideOf(last.to->id) == to.id) {
            last = {{Way::Parent, to.sex}, &to, last.family};
            return;
        }
        if (last.step.way == Way::Spouse && way == Way::Child &&
            family.BesideOf(last.to->id) == PersonAfter(links_.size() - 1).id) {
            links_.pop_back();
        }
    }
    if (!links_.empty() && links_.back().step.way == Way::Parent && way == Way::Child) {
        const Link& up = links_.back();
        step.other = up.family == &family
                         ? OtherParent::Same
                         : CompareOthers(up.family->BesideOf(up.to->id), family.BesideOf(up.to->id));
    }
    links_.push_back({step, &to, &family});
}

/// The identifiers of the individual whom both descend from, and of the other one of the couple.
Text PathNames::CommonAncestors(std::size_t stepsToAncestor) {
    const TextView ancestor = PersonAfter(stepsToAncestor).id;
    if (stepsToAncestor == 0 || stepsToAncestor == links_.size()) return Text(ancestor);
    const Link& down = links_[stepsToAncestor];
    const TextView other = down.family->BesideOf(ancestor);
    if (down.step.other != OtherParent::Same || other.empty() || !tables_.lvwIn.Find(other)) {
        return Text(ancestor);
    }
    return Concat({down.family->husband, " ", down.family->wife});
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

#include "privacy/living.h"

#include <algorithm>

#include "tables/look_ahead.h"
#include "text/numbers.h"

namespace swiftroll::modPrivacy {

std::int32_t BornAfter(const OptionRecord& options, Clock& clock) {
    if (!options.chkPrivate.Checked()) return kNobodyBornAfter;
    constexpr std::int64_t kLongest = 10000;
    const std::int64_t years = ParseDecimal(options.txtPrivateYears.Get())
                                   .value_or(*ParseDecimal(OptionRecord::kDefaultPrivateYears));
    return clock.Now().year - static_cast<std::int32_t>(std::clamp<std::int64_t>(years, 0, kLongest));
}

Living::Living(const TableSet& tables, const OptionRecord& options, Clock& clock)
    : tables_(tables), bornAfter_(modPrivacy::BornAfter(options, clock)) {
    if (bornAfter_ == kNobodyBornAfter || tables_.lvwIn.Count() == 0) return;
    states_.resize(tables_.lvwIn.Store().InternedCount());
    JudgeByDates();
    JudgeByRelatives();
}

Living::State Living::StateByDates(const RowView& person) const {
    if (tables_.deaths.Has(person.Tag())) return State::NotHidden;
    const auto year = ParseDecimal(person.Cell(In::BirthMax));
    if (!year) return State::Undated;
    return *year > bornAfter_ ? State::Living : State::NotHidden;
}

void Living::JudgeByDates() {
    for (std::int32_t i = 1; i <= tables_.lvwIn.Count(); ++i) {
        LookAhead(tables_.lvwIn, i);
        const RowView person = tables_.lvwIn.Item(i);
        const TextRef id = person.Ref(In::ID);
        if (!id.IsEmpty()) states_[id.Symbol()] = StateByDates(person);
    }
}

/// The members of a family are parents, children, siblings and spouses of each other.
void Living::JudgeByRelatives() {
    const Table& members = tables_.lvwFamilyXref;
    const auto visitMembers = [&](const auto& visit) {
        for (std::int32_t i = 1; i <= members.Count(); ++i) {
            LookAhead(members, i);
            const RowView member = members.Item(i);
            const TextRef family = member.Ref(FamilyXref::IDFam), id = member.Ref(FamilyXref::IDIndi);
            if (!family.IsEmpty() && !id.IsEmpty()) visit(family.Symbol(), states_[id.Symbol()]);
        }
    };
    std::vector<bool> hasLiving(states_.size());
    visitMembers([&](std::uint32_t family, State state) {
        if (state == State::Living) hasLiving[family] = true;
    });
    visitMembers([&](std::uint32_t family, State& state) {
        if (state == State::Undated && hasLiving[family]) state = State::Living;
    });
}

bool Living::IsLiving(TextRef id) const {
    // A text that came since is nobody's identifier.
    return !id.IsEmpty() && id.Symbol() < states_.size() && states_[id.Symbol()] == State::Living;
}

bool Living::IsLiving(const RowView& person) const {
    const TextRef id = person.Ref(In::ID);
    // Without an identifier nobody has relatives.
    if (id.IsEmpty()) return bornAfter_ != kNobodyBornAfter && StateByDates(person) == State::Living;
    return IsLiving(id);
}

bool Living::IsLiving(TextView sId) const {
    return tables_.lvwIn.Count() > 0 && IsLiving(tables_.lvwIn.Store().FindInterned(sId));
}

bool Living::HidesFamily(const RowView& family) const {
    bool hasSpouse = false;
    for (const ColumnId column :
         {ColumnId(Family::IDHusb), ColumnId(Family::IDWife), ColumnId(Family::IDFams)}) {
        const TextRef spouse = family.Ref(column);
        if (spouse.IsEmpty()) continue;
        if (!IsLiving(spouse)) return false;
        hasSpouse = true;
    }
    return hasSpouse;
}

}  // namespace swiftroll::modPrivacy

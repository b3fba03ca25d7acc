#pragma once

#include <vector>

#include "app/arranged_tables.h"
#include "app/option_record.h"
#include "app/ports.h"
#include "tables/columns.h"
#include "tables/schema.h"

namespace swiftroll::modPrivacy {

/// What an output writes in place of the name of somebody who lives.
inline constexpr TextView kLivingName = "Vivant";

/// The year after which those are born who live, as the options tell it at this time; the greatest number
/// while nobody is hidden.
std::int32_t BornAfter(const OptionRecord& options, Clock& clock);

/// Who is hidden from outputs as living, while `chkPrivate` is checked: who has no death and no burial and
/// was born less than `txtPrivateYears` years ago, or has no year of birth, and a parent, child, sibling or
/// spouse who is living by the years alone. A relative of such a relative is not hidden for that.
///
/// It is made for one output and holds for it, as long as the tables do.
class Living {
  public:
    Living(const TableSet& tables, const OptionRecord& options, Clock& clock);
    /// Hides nobody: for what only the user's own window shows.
    explicit Living(const TableSet& tables) : tables_(tables), bornAfter_(kNobodyBornAfter) {}

    /// Whether a person of lvwIn is hidden.
    bool IsLiving(const RowView& person) const;
    /// The same by the identifier; nobody has the empty one, or one that no record has.
    bool IsLiving(TextView sId) const;
    /// Whether all spouses that a family of lvwFamily has are hidden: then only its links may be told.
    bool HidesFamily(const RowView& family) const;

    /// Those born after this year count as living; the greatest number while nobody is hidden.
    std::int32_t BornAfter() const { return bornAfter_; }

  private:
    enum class State : std::uint8_t { NotHidden, Undated, Living };
    State StateByDates(const RowView& person) const;
    bool IsLiving(TextRef id) const;
    void JudgeByDates();
    void JudgeByRelatives();

    const TableSet& tables_;
    std::int32_t bornAfter_;
    std::vector<State> states_;  // by the number of the identifier; empty while nobody is hidden
};

}  // namespace swiftroll::modPrivacy

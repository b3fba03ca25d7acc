#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "text/text.h"

namespace swiftroll {

/// What the message bar says, and what the user can do about it there.
struct Notice {
    struct Button {
        Text caption;
        std::function<void()> operation;
    };
    Text text;
    std::vector<Button> buttons = {};
};

/// How long a notice of what was done stays: until its time is over, or until the user does something else.
enum class Stay { AWhile, UntilNext };

/// The message bar above the lists: one notice at a time, which stays until its owner removes it or the user
/// closes it. A notice of another owner covers it and gives it back when it goes. What the last work has made
/// is told beside it, and covers none. The window shows the bar, the headless program does not.
class MessageBar {
  public:
    /// Tells the owners apart: the address of the object that shows the notice.
    using Owner = const void*;

    /// Shows a notice, or puts it at the place of the one that this owner has.
    void Show(Owner owner, Notice notice);
    /// Removes the notice of an owner, if there is one; those of others stay.
    void Remove(Owner owner);
    /// Whether the owner has a notice that the user has not closed.
    bool Has(Owner owner) const;

    /// The notice that is seen, or nullptr; valid until the next change.
    const Notice* Seen() const { return entries_.empty() ? nullptr : &entries_.back().notice; }
    /// Changes with each notice that is shown or goes, so that a presentation knows when to look.
    std::uint64_t Changes() const { return changes_; }
    /// What the user does with the notice that is seen: presses a button of it, by its index, which leaves
    /// the notice to its owner, or closes it.
    void Press(std::size_t button);
    void Close();

    /// Tells what a work has made, or that it did not come to its end, in place of what was told before.
    void Tell(Notice notice, Stay stay = Stay::AWhile);
    /// What is told, or nullptr; valid until the next change. A presentation ends it when it was long enough
    /// there, if it stays a while.
    const Notice* Told() const { return told_ ? &*told_ : nullptr; }
    Stay StayOfTold() const { return stay_; }
    void PressTold(std::size_t button);
    void ForgetTold();

  private:
    struct Entry {
        Owner owner;
        Notice notice;
    };
    static void PressIn(const Notice* notice, std::size_t button);

    std::vector<Entry> entries_;  // the last one is seen
    std::optional<Notice> told_;
    Stay stay_ = Stay::AWhile;
    std::uint64_t changes_ = 0;
};

}  // namespace swiftroll

#include "app/message_bar.h"

#include <algorithm>

namespace swiftroll {

void MessageBar::Show(Owner owner, Notice notice) {
    const auto present = std::ranges::find(entries_, owner, &Entry::owner);
    if (present == entries_.end()) {
        entries_.push_back({owner, std::move(notice)});
    } else {
        present->notice = std::move(notice);
    }
    ++changes_;
}

void MessageBar::Remove(Owner owner) {
    if (std::erase_if(entries_, [owner](const Entry& entry) { return entry.owner == owner; }) > 0) ++changes_;
}

bool MessageBar::Has(Owner owner) const {
    return std::ranges::find(entries_, owner, &Entry::owner) != entries_.end();
}

void MessageBar::Press(std::size_t button) { PressIn(Seen(), button); }

void MessageBar::PressTold(std::size_t button) { PressIn(Told(), button); }

void MessageBar::PressIn(const Notice* notice, std::size_t button) {
    if (notice == nullptr || button >= notice->buttons.size()) return;
    // The operation may remove the notice that holds it.
    const auto operation = notice->buttons[button].operation;
    operation();
}

void MessageBar::Close() {
    if (entries_.empty()) return;
    entries_.pop_back();
    ++changes_;
}

void MessageBar::Tell(Notice notice, Stay stay) {
    told_ = std::move(notice);
    stay_ = stay;
    ++changes_;
}

void MessageBar::ForgetTold() {
    if (!told_) return;
    told_.reset();
    ++changes_;
}

}  // namespace swiftroll

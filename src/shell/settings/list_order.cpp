#include "shell/settings/list_order.h"

#include <algorithm>

#include "shell/settings/sorted_settings.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCommon {
namespace {

// A key is the number of the item, a blank and its text.
constexpr std::size_t kDigits = 3, kTextStart = 4;

TextView TextOf(TextView key) { return key.substr(std::min(kTextStart, key.size())); }

}  // namespace

std::vector<SettingEntry> ListOrderEntries(const OrderedList& list, TextView sSection) {
    std::vector<SettingEntry> entries;
    for (const OrderedList::Item& item : list.Items()) {
        const Text key = Concat({Decimal(item.value, kDigits), " ", item.text});
        entries.push_back({Text(sSection), key, Decimal(static_cast<std::int64_t>(entries.size()) + 1)});
    }
    return entries;
}

ListOrder SetListOrder(Application& app, OrderedList& list, const SettingsStore::Pairs& pairs) {
    const std::vector<OrderedList::Item>& items = list.Items();
    if (pairs.size() != items.size()) return ListOrder::OfOtherItems;
    const std::vector<Text> keys = SortMySettings(app, pairs);
    if (keys.empty()) return ListOrder::Unreadable;
    std::vector<OrderedList::Item> ordered;
    for (const Text& key : keys) {
        // Numbers that no item has would choose places that there are not.
        const auto number = ParseDecimal(TextView(key).substr(0, kDigits));
        const bool isKnown =
            std::any_of(items.begin(), items.end(), [&](const auto& item) { return item.value == number; });
        if (isKnown) ordered.push_back({Text(TextOf(key)), static_cast<int>(*number)});
    }
    const bool isComplete =
        ordered.size() == items.size() && std::all_of(items.begin(), items.end(), [&](const auto& item) {
            return std::any_of(ordered.begin(), ordered.end(),
                               [&](const auto& other) { return other.text == item.text; });
        });
    if (!isComplete) return ListOrder::OfOtherItems;
    list.SetItems(std::move(ordered));
    return ListOrder::ItsOwn;
}

}  // namespace swiftroll::modCommon

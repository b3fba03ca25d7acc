#include "shell/list_order.h"

#include <algorithm>

#include "shell/sorted_settings.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCommon {
namespace {

// A key is the number of the item, a blank and its text.
constexpr std::size_t kDigits = 3, kTextStart = 4;

TextView TextOf(TextView key) { return key.substr(std::min(kTextStart, key.size())); }

}  // namespace

void SaveListOrder(SettingsStore& store, const OrderedList& list, TextView sSection) {
    std::int64_t place = 0;
    for (const OrderedList::Item& item : list.Items()) {
        store.SaveSetting(sSection, Concat({Decimal(item.value, kDigits), " ", item.text}), Decimal(++place));
    }
}

bool SetListOrder(Application& app, OrderedList& list, const SettingsStore::Pairs& pairs) {
    const std::vector<OrderedList::Item>& items = list.Items();
    if (pairs.size() != items.size()) return false;
    const std::vector<Text> keys = SortMySettings(app, pairs);
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
    if (isComplete) list.SetItems(std::move(ordered));
    return isComplete;
}

}  // namespace swiftroll::modCommon

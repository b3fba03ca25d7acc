#include "shell/settings/sorted_settings.h"

#include <algorithm>

#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCommon {
namespace {

using Pairs = SettingsStore::Pairs;

/// Fills `sorted` for the pairs one by one; a failure is reported with the pair at which it happened.
template <class Fill>
std::vector<Text> Sorted(Application& app, const char* sProc, const Pairs& a, Fill fill) {
    std::size_t i = 0;
    return app.trail.Guard(
        sProc,
        [&] {
            std::vector<Text> sorted(a.size());
            for (; i < a.size(); ++i) fill(sorted, a[i]);
            return sorted;
        },
        [&] {
            return Concat({Decimal(static_cast<std::int64_t>(a.size()) - 1), "/",
                           Decimal(static_cast<std::int64_t>(i)), "/", a[i].first});
        });
}

Text& At(std::vector<Text>& elements, std::int64_t index) {
    if (index < 0 || index >= static_cast<std::int64_t>(elements.size())) ThrowIndexOutOfRange();
    return elements[static_cast<std::size_t>(index)];
}

}  // namespace

std::vector<Text> SortMySettings(Application& app, const Pairs& a) {
    return Sorted(app, "SortMySettings", a, [](std::vector<Text>& sorted, const auto& pair) {
        At(sorted, std::int64_t{ToLong(pair.second)} - 1) = pair.first;
    });
}

std::vector<Text> SortMySettings0(Application& app, const Pairs& a) {
    std::size_t count = 0;
    auto sorted = Sorted(app, "SortMySettings0", a, [&](std::vector<Text>& elements, const auto& pair) {
        const auto number = ParseDecimal(pair.first);
        if (!number) return;
        ++count;
        if (*number < static_cast<std::int64_t>(elements.size())) At(elements, *number) = pair.second;
    });
    // Never more than there are pairs; none at all after a failure, which leaves one empty element too.
    sorted.resize(std::max<std::size_t>(sorted.empty() ? 0 : count, 1));
    return sorted;
}

}  // namespace swiftroll::modCommon

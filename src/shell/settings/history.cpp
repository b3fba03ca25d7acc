#include "shell/settings/history.h"

#include <algorithm>

#include "text/edit.h"

namespace swiftroll::modCommon {

void cboAdd(ComboBox& cbo) {
    const Text text(Trim(cbo.Get()));
    if (text.empty()) return;
    std::vector<Text> items = cbo.Items();
    const auto same = cbo.ListIndex() >= 0 ? items.begin() + cbo.ListIndex()
                                           : std::find_if(items.begin(), items.end(), [&](const Text& item) {
                                                 return SameButCase(item, text);
                                             });
    if (same != items.end()) items.erase(same);
    items.insert(items.begin(), text);
    if (items.size() > kLongestHistory) items.resize(kLongestHistory);
    cbo.SetItems(std::move(items));
    cbo.SetListIndex(0);
}

}  // namespace swiftroll::modCommon

#pragma once

#include <QTabWidget>

namespace swiftroll::ui {

/// Tabs of which those from one on are set apart by a gap.
class GroupedTabs : public QTabWidget {
  public:
    /// `secondGroup` is the number of the first tab behind the gap.
    explicit GroupedTabs(int secondGroup);
};

}  // namespace swiftroll::ui

#pragma once

#include <QAccessibleWidget>
#include <unordered_map>

#include "kinship_view.h"

namespace swiftroll::ui {

/// The drawing of a path for assistive programs: a list whose items are the boxes.
class KinshipViewAccess : public QAccessibleWidget {
  public:
    explicit KinshipViewAccess(KinshipView& view);
    ~KinshipViewAccess() override;

    /// For the toolkit: the interface of a view, nullptr for every other object.
    static QAccessibleInterface* Make(const QString& key, QObject* object);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    KinshipView& view_;
    mutable std::unordered_map<int, QAccessible::Id> boxes_;  // those that were asked for
};

}  // namespace swiftroll::ui

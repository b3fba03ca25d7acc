#include "kinship_view_access.h"

#include "qt_text.h"

namespace swiftroll::ui {
namespace {

/// A box of the drawing. The drawing may change at any time: what is asked of a box that has gone is empty.
class BoxAccess : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    BoxAccess(KinshipView& view, int box) : view_(view), box_(box) {}

    int Box() const { return box_; }
    bool isValid() const override { return box_ < view_.Picture().BoxCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid()) return {};
        return ToQt(view_.Picture().NameOf(box_));
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect place = view_.PlaceOf(box_);
        return {view_.mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = state.selectable = true;
        state.selected = view_.CurrentBox() == box_;
        state.focused = state.selected && view_.hasFocus();
        state.invalid = !isValid();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction()) view_.GoTo(box_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    KinshipView& view_;
    int box_;
};

}  // namespace

KinshipViewAccess::KinshipViewAccess(KinshipView& view)
    : QAccessibleWidget(&view, QAccessible::List), view_(view) {}

KinshipViewAccess::~KinshipViewAccess() {
    for (const auto& [box, id] : boxes_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* KinshipViewAccess::Make(const QString&, QObject* object) {
    auto* view = dynamic_cast<KinshipView*>(object);
    return view == nullptr ? nullptr : new KinshipViewAccess(*view);
}

int KinshipViewAccess::childCount() const { return view_.Picture().BoxCount(); }

QAccessibleInterface* KinshipViewAccess::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto [place, isNew] = boxes_.try_emplace(index);
    if (isNew) place->second = QAccessible::registerAccessibleInterface(new BoxAccess(view_, index));
    return QAccessible::accessibleInterface(place->second);
}

int KinshipViewAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* box = dynamic_cast<const BoxAccess*>(child);
    return box == nullptr ? -1 : box->Box();
}

QAccessibleInterface* KinshipViewAccess::childAt(int x, int y) const {
    const QPoint point = view_.mapFromGlobal(QPoint(x, y));
    for (int box = 0; box < childCount(); ++box) {
        if (view_.PlaceOf(box).contains(point)) return child(box);
    }
    return nullptr;
}

QAccessibleInterface* KinshipViewAccess::focusChild() const { return child(view_.CurrentBox()); }

}  // namespace swiftroll::ui

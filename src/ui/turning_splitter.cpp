#include "turning_splitter.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"

namespace swiftroll::ui {
namespace {

/// How much wider than high it is when there is room.
constexpr qreal kWide = 1.5;
constexpr int kWhole = 1000;

}  // namespace

TurningSplitter::TurningSplitter(Presenter& presenter, TextBox& share)
    : QSplitter(Qt::Horizontal), presenter_(presenter), share_(share) {
    connect(this, &QSplitter::splitterMoved, this, [this] { NoteShare(); });
    presenter_.OnRefresh([this] {
        if (followed_ != share_.Get()) FollowShare();
    });
}

void TurningSplitter::resizeEvent(QResizeEvent* event) {
    QSplitter::resizeEvent(event);
    const Qt::Orientation wanted = width() > kWide * height() ? Qt::Horizontal : Qt::Vertical;
    if (orientation() != wanted) setOrientation(wanted);
    FollowShare();
}

void TurningSplitter::FollowShare() {
    followed_ = share_.Get();
    const int share = static_cast<int>(std::clamp<std::int64_t>(ToLong(followed_), 0, kWhole));
    const int length = orientation() == Qt::Horizontal ? width() : height();
    const int second = length * share / kWhole;
    setSizes({length - second, second});
}

void TurningSplitter::NoteShare() {
    const int whole = std::max(1, sizes()[0] + sizes()[1]);
    followed_ = Decimal(std::lround(qreal{kWhole} * sizes()[1] / whole));
    presenter_.Act([this] { share_.SetText(followed_); });
}

}  // namespace swiftroll::ui

#include "kinship_view.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "kinship_view_access.h"
#include "qt_text.h"
#include "shell/jump.h"
#include "tables/columns.h"

namespace swiftroll::ui {
namespace {

using modKinshipOutput::PictureDetail;

constexpr int kMargin = 12;
constexpr qreal kTwipsPerPixel = 15;
constexpr qreal kSmallestScale = 0.02, kLargestScale = 4, kZoomStep = 1.2;
/// Below this scale texts are too small to be read: a path that would be shown smaller is shown in parts, and
/// a picture that is smaller still has none, and at last no lines.
constexpr qreal kReadableScale = 0.5, kTextScale = 0.3, kLineScale = 0.03;
constexpr int kWheelStep = 120;

QRectF RectangleOf(const modKinshipOutput::CellRectangle& place) {
    return QRectF(static_cast<qreal>(place.left), static_cast<qreal>(place.top),
                  static_cast<qreal>(place.width), static_cast<qreal>(place.height));
}

}  // namespace

KinshipView::KinshipView(Presenter& presenter)
    : presenter_(presenter),
      nobodyHidden_(presenter.Main()),
      picture_({presenter.Main(), presenter.Main(), presenter.Main(), nobodyHidden_}) {
    QAccessible::installFactory(KinshipViewAccess::Make);
    setObjectName(QStringLiteral("kinshipView"));
    setAccessibleName(QStringLiteral("Dessin du chemin"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    click_.setSingleShot(true);
    connect(&click_, &QTimer::timeout, this, [this] { GoTo(current_); });
    presenter_.OnRefresh([this] { Refresh(); });
}

QSize KinshipView::sizeHint() const { return {360, 240}; }
QSize KinshipView::minimumSizeHint() const { return {120, 90}; }

/// Follows the current row, the options and the tables.
void KinshipView::Refresh() {
    frmMain& main = presenter_.Main();
    if (!isVisible() || main.bTablesLocked) return;
    const auto row = main.lvwKinship.Current();
    const Text seqNr(row ? row->Text() : TextView());
    const bool bSpouses = main.cboDrawKinship.ListIndex() % 2 != 0;
    const bool isNew = picture_.Follow(TextView(seqNr).substr(0, seqNr.find('-')), bSpouses);
    if (isNew) {
        click_.stop();
        current_ = -1;
        isPlaced_ = false;
    }
    if (isNew || followed_ != seqNr) {
        followed_ = seqNr;
        const int box = row ? picture_.BoxOf(row->Cell(Kinship::IDIndi)) : -1;
        if (box >= 0) current_ = box;
        if (isPlaced_) Reveal(current_);
        TellCurrent();
    }
    if (!isPlaced_) ShowReadable();
    update();
}

qreal KinshipView::WholeScale() const {
    const qreal width = static_cast<qreal>(std::max<std::int64_t>(1, picture_.Width()));
    const qreal height = static_cast<qreal>(std::max<std::int64_t>(1, picture_.Height()));
    const qreal whole =
        std::min((this->width() - 2 * kMargin) / width, (this->height() - 2 * kMargin) / height);
    return std::clamp<qreal>(whole, 1e-6, 1);
}

void KinshipView::CentreOn(const QPointF& point) {
    corner_ = QPointF(width(), height()) / 2 - point * scale_;
}

void KinshipView::ShowWhole() {
    isZoomed_ = false;
    scale_ = WholeScale();
    CentreOn(QPointF(static_cast<qreal>(picture_.Width()), static_cast<qreal>(picture_.Height())) / 2);
    update();
}

/// The whole path, or around the current box what can be read.
void KinshipView::ShowReadable() {
    isPlaced_ = true;
    if (!isZoomed_) {
        ShowWhole();
        if (scale_ >= kReadableScale) return;
        scale_ = kReadableScale;
    }
    if (picture_.BoxCount() > 0) CentreOn(RectangleOf(picture_.PlaceOf(std::max(current_, 0))).center());
}

void KinshipView::Reveal(int box) {
    if (box < 0) return;
    const QRectF place = PlaceOf(box), room = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const auto shift = [](qreal begin, qreal end, qreal first, qreal last) {
        if (begin < first) return first - begin;
        return end > last ? std::max(last - end, first - begin) : 0.0;
    };
    corner_ += QPointF(shift(place.left(), place.right(), room.left(), room.right()),
                       shift(place.top(), place.bottom(), room.top(), room.bottom()));
    update();
}

void KinshipView::ZoomAt(const QPointF& point, qreal factor) {
    const qreal least = std::min(kSmallestScale, WholeScale());
    const qreal scale = std::clamp(scale_ * factor, least, kLargestScale);
    corner_ = point - (point - corner_) * (scale / scale_);
    scale_ = scale;
    isZoomed_ = true;
    update();
}

QRect KinshipView::PlaceOf(int box) const {
    const QRectF place = RectangleOf(picture_.PlaceOf(box));
    return QRectF(corner_ + place.topLeft() * scale_, place.size() * scale_).toAlignedRect();
}

int KinshipView::BoxAt(const QPointF& point) const {
    const QPointF place = (point - corner_) / scale_;
    return picture_.BoxAt(place.x(), place.y());
}

void KinshipView::SetCurrent(int box) {
    if (box == current_ || box < 0) return;
    current_ = box;
    TellCurrent();
    update();
}

/// Tells assistive programs of the box that has the focus.
void KinshipView::TellCurrent() {
    if (current_ < 0 || !hasFocus()) return;
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(current_);
    QAccessible::updateAccessibility(&focus);
}

void KinshipView::GoTo(int box) {
    if (box < 0 || box >= picture_.BoxCount()) return;
    const Text id = picture_.IndividualIn(box);
    frmMain& main = presenter_.Main();
    if (!id.empty()) presenter_.Act([&] { JumpTo(main, main.lvwIn, id); });
}

void KinshipView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (picture_.IsEmpty()) return PaintHint(painter);
    painter.setRenderHint(QPainter::Antialiasing, scale_ < 1);
    painter.save();
    painter.translate(corner_);
    painter.scale(scale_ / kTwipsPerPixel, scale_ / kTwipsPerPixel);
    QtSurface surface(painter, shapes_, palette().color(QPalette::Text));
    const QPointF corner = -corner_ / scale_;
    picture_.Draw(
        surface,
        {static_cast<std::int64_t>(std::floor(corner.y())), static_cast<std::int64_t>(std::floor(corner.x())),
         static_cast<std::int64_t>(height() / scale_) + 1, static_cast<std::int64_t>(width() / scale_) + 1},
        scale_ >= kTextScale   ? PictureDetail::Texts
        : scale_ >= kLineScale ? PictureDetail::Lines
                               : PictureDetail::Grounds);
    painter.restore();
    PaintFocus(painter);
}

void KinshipView::PaintHint(QPainter& painter) const {
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.65F);
    painter.setPen(faint);
    painter.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                     QStringLiteral("Le chemin de la ligne courante est dessiné ici."));
}

/// A frame around the current box, and around the whole for the keyboard.
void KinshipView::PaintFocus(QPainter& painter) const {
    const QColor colour =
        palette().color(hasFocus() ? QPalette::Active : QPalette::Inactive, QPalette::Highlight);
    if (current_ >= 0) {
        painter.setPen(QPen(colour, 3));
        painter.drawRect(PlaceOf(current_).adjusted(-3, -3, 2, 2));
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(colour, 1));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void KinshipView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!isZoomed_) ShowReadable();
}

void KinshipView::wheelEvent(QWheelEvent* event) {
    if (picture_.IsEmpty() || event->angleDelta().y() == 0) return event->ignore();
    ZoomAt(event->position(), std::pow(kZoomStep, event->angleDelta().y() / double{kWheelStep}));
    event->accept();
}

void KinshipView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    click_.stop();
    isPressed_ = true;
    isDragged_ = false;
    pressedAt_ = event->position();
    cornerAtPress_ = corner_;
}

void KinshipView::mouseMoveEvent(QMouseEvent* event) {
    if (!isPressed_) {
        setCursor(BoxAt(event->position()) >= 0 ? Qt::PointingHandCursor : Qt::OpenHandCursor);
        return;
    }
    const QPointF way = event->position() - pressedAt_;
    if (way.manhattanLength() >= QApplication::startDragDistance()) isDragged_ = true;
    if (!isDragged_) return;
    setCursor(Qt::ClosedHandCursor);
    corner_ = cornerAtPress_ + way;
    update();
}

void KinshipView::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(isPressed_, false) || event->button() != Qt::LeftButton) return;
    setCursor(Qt::OpenHandCursor);
    const int box = BoxAt(event->position());
    if (isDragged_ || box < 0) return;
    SetCurrent(box);
    // The list of the individual comes to the front, where a second click would fall on another row.
    click_.start(QApplication::doubleClickInterval());
}

void KinshipView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    click_.stop();
    ShowWhole();
}

bool KinshipView::OnArrow(int key) {
    if (current_ < 0) return false;
    const int dx = key == Qt::Key_Left ? -1 : key == Qt::Key_Right ? 1 : 0;
    const int dy = key == Qt::Key_Up ? -1 : key == Qt::Key_Down ? 1 : 0;
    if (dx == 0 && dy == 0) return false;
    const int box = picture_.Neighbour(current_, dx, dy);
    SetCurrent(box);
    Reveal(box);
    return true;
}

void KinshipView::keyPressEvent(QKeyEvent* event) {
    if (OnArrow(event->key())) return;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return GoTo(current_);
        case Qt::Key_Plus:
            return ZoomAt(rect().center(), kZoomStep);
        case Qt::Key_Minus:
            return ZoomAt(rect().center(), 1 / kZoomStep);
        case Qt::Key_Home:
            return ShowWhole();
        default:
            event->ignore();  // Escape and F1 belong to the window
    }
}

void KinshipView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    TellCurrent();
    update();
}

void KinshipView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

bool KinshipView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int box = BoxAt(help->pos());
    QToolTip::showText(help->globalPos(), box >= 0 ? ToQt(picture_.NameOf(box)).toHtmlEscaped() : QString(),
                       this);
    return true;
}

}  // namespace swiftroll::ui

#include "preview_canvas.h"

#include <QPainter>
#include <QWheelEvent>

#include "qt_surface.h"

namespace swiftroll::ui {
namespace {

constexpr qreal kTwipsPerPixel = 15;
constexpr int kGround = 16;  // around the sheet

QSizeF SizeOf(const modPreview::DrawingSheets& sheets) {
    return QSizeF(sheets.Sheet().width, sheets.Sheet().height);
}

}  // namespace

class PreviewCanvas::Paper : public QWidget {
  public:
    void Show(const modPreview::DrawingSheets& sheets, int index, qreal scale) {
        sheets_ = &sheets;
        index_ = index;
        scale_ = scale;
        const QSizeF size = SizeOf(sheets) * scale;
        setFixedSize(size.toSize() + QSize(2 * kGround, 2 * kGround));
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (sheets_ == nullptr || index_ >= sheets_->Count()) return;
        const QRectF sheet(QPointF(kGround, kGround), SizeOf(*sheets_) * scale_);
        painter.fillRect(sheet.translated(4, 4), QColor(0, 0, 0, 70));
        painter.fillRect(sheet, Qt::white);
        painter.setRenderHint(QPainter::Antialiasing, scale_ * kTwipsPerPixel < 1);
        painter.translate(sheet.topLeft());
        painter.scale(scale_, scale_);
        QtSurface surface(painter, shapes_);
        sheets_->Draw(surface, index_);
    }

  private:
    const modPreview::DrawingSheets* sheets_ = nullptr;
    QtFontShapes shapes_;
    int index_ = 0;
    qreal scale_ = 1;
};

PreviewCanvas::PreviewCanvas() : paper_(new Paper) {
    setWidget(paper_);
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Mid);
    setAccessibleName(QStringLiteral("Feuille"));
    paper_->setAccessibleName(QStringLiteral("Dessin"));
}

void PreviewCanvas::Show(const modPreview::DrawingSheets& sheets, int index, int zoom) {
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(2 * kGround, 2 * kGround);
    const qreal width = room.width() / sheets.Sheet().width;
    const qreal height = room.height() / sheets.Sheet().height;
    qreal scale = zoom / 100.0 / kTwipsPerPixel;
    if (zoom == 0) scale = std::min(width, height);
    if (zoom < 0) scale = (room.width() - 20) / sheets.Sheet().width;
    paper_->Show(sheets, index, std::max(scale, 0.002));
}

void PreviewCanvas::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier) || !OnZoom) return QScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) OnZoom(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

}  // namespace swiftroll::ui

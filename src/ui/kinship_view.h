#pragma once

#include <QTimer>
#include <QWidget>

#include "drawing/path_picture.h"
#include "presenter.h"
#include "qt_surface.h"

namespace swiftroll::ui {

/// The drawing of the path of the current row of `lvwKinship`: the wheel zooms, dragging moves it, a double
/// click shows it whole, a click on a box goes to the individual, and the arrow keys walk from box to box.
/// Only what is seen is drawn.
class KinshipView : public QWidget {
  public:
    explicit KinshipView(Presenter& presenter);

    const modKinshipOutput::PathPicture& Picture() const { return picture_; }
    /// The box that the keyboard works with, or -1.
    int CurrentBox() const { return current_; }
    /// Where a box stands in the widget at present.
    QRect PlaceOf(int box) const;
    /// Goes to the individual in a box, if there is one.
    void GoTo(int box);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void Refresh();
    void SetCurrent(int box);
    void TellCurrent();
    qreal WholeScale() const;
    void ShowWhole();
    void ShowReadable();
    void ZoomAt(const QPointF& point, qreal factor);
    void CentreOn(const QPointF& point);
    void Reveal(int box);
    bool OnArrow(int key);
    int BoxAt(const QPointF& point) const;
    void PaintHint(QPainter& painter) const;
    void PaintFocus(QPainter& painter) const;

    Presenter& presenter_;
    modPrivacy::Living nobodyHidden_;
    modKinshipOutput::PathPicture picture_;
    QtFontShapes shapes_;
    Text followed_;  // the row that was followed last
    int current_ = -1;
    /// Pixels of the screen for one of the drawing, and where the corner of the drawing stands.
    qreal scale_ = 1;
    QPointF corner_;
    bool isZoomed_ = false;  // by the user, so that the next path keeps it
    bool isPlaced_ = false;  // the present path was shown in a size that counts
    QPointF pressedAt_, cornerAtPress_;
    bool isPressed_ = false, isDragged_ = false;
    QTimer click_;  // runs until a click cannot become a double click any more
};

}  // namespace swiftroll::ui

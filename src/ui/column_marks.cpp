#include "column_marks.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

#include "qt_text.h"
#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

QPixmap Draw(const QString& icon, const QColor& colour) {
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap marks(QSizeF(kMarksWidth * ratio, kMarksHeight * ratio).toSize());
    marks.setDevicePixelRatio(ratio);
    marks.fill(Qt::transparent);
    QPainter painter(&marks);
    const QSize half(kMarksHeight, kMarksHeight);
    const bool isOn = icon.startsWith(QStringLiteral("On"));
    painter.drawPixmap(
        0, 0,
        ThemedPixmap(isOn ? QStringLiteral("column-on") : QStringLiteral("column-off"), half, colour, ratio));
    // An ascending order is "Dw": the values grow downwards.
    if (icon.endsWith(QStringLiteral("Dw")) || icon.endsWith(QStringLiteral("Up"))) {
        const bool ascending = icon.endsWith(QStringLiteral("Dw"));
        painter.drawPixmap(kMarksWidth - kMarksHeight + 2, 0,
                           ThemedPixmap(ascending ? QStringLiteral("sort-down") : QStringLiteral("sort-up"),
                                        half, colour, ratio));
    }
    return marks;
}

}  // namespace

QIcon ColumnMarks(TextView icon) {
    return QIcon(Draw(ToQt(icon), QApplication::palette().color(QPalette::ButtonText)));
}

}  // namespace swiftroll::ui

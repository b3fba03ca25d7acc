#include "themed_icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace swiftroll::ui {
namespace {

/// Draws the picture anew in the colours of the moment, so that an icon follows a change of theme.
class Engine : public QIconEngine {
  public:
    explicit Engine(const QString& name) : name_(name) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = QApplication::palette().color(group, QPalette::ButtonText);
        if (mode == QIcon::Disabled) painter->setOpacity(0.45);
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, ThemedPixmap(name_, rect.size(), colour, ratio));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new Engine(name_); }

  private:
    QString name_;
};

}  // namespace

QIcon ThemedIcon(const QString& name) { return QIcon(new Engine(name)); }

QPixmap ThemedPixmap(const QString& name, QSize size, const QColor& colour, qreal ratio) {
    const QColor accent = QApplication::palette().color(QPalette::Link);
    const QString key = QStringLiteral("%1/%2/%3/%4/%5/%6")
                            .arg(name, colour.name(), accent.name())
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QSvgRenderer renderer(file.readAll()
                              .replace("currentColor", colour.name().toLatin1())
                              .replace("accentColor", accent.name().toLatin1()));
    picture = QPixmap(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

}  // namespace swiftroll::ui

#include "UI/Style/Symbols.h"

#include "UI/Style/Painting.h"

#include <QDir>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <optional>

namespace Symbols {
namespace {

QString file(const QString& name) {
    return QStringLiteral(":/symbols/%1.svg").arg(name);
}

QString fileOrFallback(const QString& name) {
    const QString wanted = file(name);
    const bool isPlainName = !name.isEmpty() && !name.contains(u'/');
    return isPlainName && QFile::exists(wanted) ? wanted : file(QStringLiteral("unknown"));
}

QPixmap render(const QString& name, const QColor& tint, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(fileOrFallback(name)).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    painter.end();
    return QPixmap::fromImage(image);
}

class SymbolEngine : public QIconEngine {
public:
    explicit SymbolEngine(QString name)
        : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode, QIcon::State) override {
        if (!m_name.isEmpty())
            draw(*painter, m_name, painter->pen().color(), area, std::min(area.width(), area.height()));
    }
    QIconEngine* clone() const override { return new SymbolEngine(*this); }

private:
    QString m_name;
};

} // namespace

QStringList names() {
    QStringList result =
        QDir(QStringLiteral(":/symbols")).entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    for (QString& name : result)
        name.chop(4);
    return result;
}

QPixmap pixmap(const QString& name, const QColor& tint, int size, double devicePixelRatio) {
    const int pixels = qRound(size * devicePixelRatio);
    const QString key = QStringLiteral("symbol %1 %2 %3").arg(name).arg(tint.rgba()).arg(pixels);
    QPixmap result;
    if (!QPixmapCache::find(key, &result)) {
        result = render(name, tint, pixels);
        QPixmapCache::insert(key, result);
    }
    result.setDevicePixelRatio(devicePixelRatio);
    return result;
}

QIcon icon(const QString& name) {
    return QIcon(new SymbolEngine(name));
}

void draw(QPainter& painter, const QString& name, const QColor& tint, const QRectF& area, int size) {
    std::optional<Painting::Upright> upright;
    if (!name.startsWith(QStringLiteral("chevron"))) // which points to where the layout goes on
        upright.emplace(painter, area);
    const double ratio = painter.device()->devicePixelRatioF();
    const QPointF corner = area.center() - QPointF(size / 2.0, size / 2.0);
    painter.drawPixmap(QPointF(qRound(corner.x()), qRound(corner.y())), pixmap(name, tint, size, ratio));
}

} // namespace Symbols

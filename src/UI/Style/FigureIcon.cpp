#include "UI/Style/FigureIcon.h"

#include "UI/Style/Symbols.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr QRgb badgeFill = 0xff23262c;
constexpr std::array<QRgb, 2> inks = {0xffffffff, 0xff8fd3ff};
constexpr std::array sizes = {16, 22, 24, 32, 44, 48, 64};

/// Draws a figure of 1 to 3 digits, bold, as large as the room allows.
void drawFigure(QPainter& painter, const QRectF& room, QRgb ink, const QString& figure) {
    QFont font = QApplication::font();
    font.setWeight(QFont::Bold);
    font.setPixelSize(qMax(6, qRound(room.height() * 1.12)));
    double width = QFontMetricsF(font).horizontalAdvance(figure);
    if (width > room.width()) {
        font.setPixelSize(qMax(6, qFloor(font.pixelSize() * room.width() / width)));
        width = QFontMetricsF(font).horizontalAdvance(figure);
    }
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(QColor(ink));
    // Digits have no descenders: centre their own height.
    const double baseline = room.center().y() + metrics.capHeight() / 2;
    painter.drawText(QPointF(qRound(room.center().x() - width / 2), qRound(baseline)), figure);
}

/// Draws into the square at the origin.
void draw(QPainter& painter, const QStringList& figures, int size) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(badgeFill));
    const double radius = size * 0.2;
    painter.drawRoundedRect(QRectF(0, 0, size, size), radius, radius);

    if (figures.isEmpty()) {
        const int inner = qRound(size * 0.8);
        Symbols::draw(painter, QStringLiteral("waveform.path.ecg"), QColor(inks[0]), QRectF(0, 0, size, size),
                      inner);
        return;
    }
    const double inset = size * 0.06;
    const double row = (size - 2 * inset) / static_cast<double>(figures.size());
    for (qsizetype i = 0; i < figures.size(); ++i) {
        const QRectF room(inset, inset + row * static_cast<double>(i), size - 2 * inset, row);
        drawFigure(painter, room, inks[static_cast<std::size_t>(i) % inks.size()], figures[i]);
    }
}

/// Draws the size that is asked for. An icon of pixmaps would draw all sizes, and Qt would cache every icon
/// that was shown: megabytes of old figures.
class FigureIconEngine : public QIconEngine {
public:
    explicit FigureIconEngine(QStringList figures)
        : m_figures(std::move(figures)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int size = std::min(rect.width(), rect.height());
        painter->save();
        painter->translate(rect.center() - QPoint((size - 1) / 2, (size - 1) / 2));
        draw(*painter, m_figures, size);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> result;
        for (const int size : sizes)
            result.append(QSize(size, size));
        return result;
    }
    QIconEngine* clone() const override { return new FigureIconEngine(*this); }

private:
    QStringList m_figures;
};

} // namespace

QIcon FigureIcon::make(const QStringList& figures) {
    return QIcon(new FigureIconEngine(figures));
}

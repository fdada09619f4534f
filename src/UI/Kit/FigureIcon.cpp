#include "UI/Kit/FigureIcon.h"

#include "UI/Kit/Symbols.h"

#include <QApplication>
#include <QPainter>

#include <array>

namespace {

constexpr QRgb badgeFill = 0xff23262c;
constexpr std::array<QRgb, 2> inks = {0xffffffff, 0xff8fd3ff};
constexpr std::array sizes = {16, 22, 24, 32, 44, 48, 64};

/// Bold, as large as the room allows; figures are 1 to 3 digits.
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

QPixmap draw(const QStringList& figures, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(badgeFill));
    const double radius = size * 0.2;
    painter.drawRoundedRect(QRectF(0, 0, size, size), radius, radius);

    if (figures.isEmpty()) {
        const int inner = qRound(size * 0.8);
        Symbols::draw(painter, QStringLiteral("waveform.path.ecg"), QColor(inks[0]), QRectF(0, 0, size, size),
                      inner);
        return pixmap;
    }
    const double inset = size * 0.06;
    const double row = (size - 2 * inset) / static_cast<double>(figures.size());
    for (qsizetype i = 0; i < figures.size(); ++i) {
        const QRectF room(inset, inset + row * static_cast<double>(i), size - 2 * inset, row);
        drawFigure(painter, room, inks[static_cast<std::size_t>(i) % inks.size()], figures[i]);
    }
    return pixmap;
}

} // namespace

QIcon FigureIcon::make(const QStringList& figures) {
    QIcon icon;
    for (const int size : sizes)
        icon.addPixmap(draw(figures, size));
    return icon;
}

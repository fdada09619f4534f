#include "UI/Style/FigureIcon.h"

#include "UI/Style/Levels.h"
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
constexpr std::array<QRgb, 3> markInks = {0xff4da3ff, 0xffffb02e, 0xffff5a52};
constexpr double markRoom = 0.25; // of the badge's width
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

/// Draws a point, a triangle or a disc with a bar, by severity.
void drawMark(QPainter& painter, const QRectF& area, Alert::Severity severity) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::tileColor(Levels::alert(severity)));
    const double unit = area.width();
    if (severity == Alert::Severity::info) {
        painter.drawEllipse(area.center(), unit * 0.32, unit * 0.32);
    } else if (severity == Alert::Severity::warn) {
        painter.drawPolygon(QPolygonF({QPointF(area.center().x(), area.top()),
                                       QPointF(area.right(), area.bottom()), area.bottomLeft()}));
    } else {
        painter.drawEllipse(area);
        painter.setBrush(Qt::white);
        painter.drawRect(
            QRectF(area.center().x() - unit * 0.1, area.top() + unit * 0.18, unit * 0.2, unit * 0.4));
        painter.drawRect(
            QRectF(area.center().x() - unit * 0.1, area.top() + unit * 0.66, unit * 0.2, unit * 0.18));
    }
}

/// Draws an exclamation mark, a bar or a point at the right edge, by severity.
void drawEdgeMark(QPainter& painter, const QRectF& area, Alert::Severity severity) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(markInks[static_cast<std::size_t>(severity)]));
    const double width = area.width();
    const auto part = [&](double top, double height) {
        painter.drawRoundedRect(QRectF(area.left(), top, width, height), width / 4, width / 4);
    };
    if (severity == Alert::Severity::info) {
        part(area.center().y() - width / 2, width);
    } else if (severity == Alert::Severity::warn) {
        part(area.center().y() - area.height() * 0.3, area.height() * 0.6);
    } else {
        part(area.top(), area.height() - 1.5 * width);
        part(area.bottom() - width, width);
    }
}

/// Draws into the square at the origin.
void draw(QPainter& painter, const QStringList& figures, std::optional<Alert::Severity> worst, int size) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(badgeFill));
    const double radius = size * 0.2;
    painter.drawRoundedRect(QRectF(0, 0, size, size), radius, radius);

    const double inset = size * 0.06;
    const double width = worst ? size * (1 - markRoom) : size;
    if (worst)
        drawEdgeMark(painter, QRectF(width, 2 * inset, qRound(size * markRoom * 0.7), size - 4 * inset),
                     *worst);
    if (figures.isEmpty()) {
        Symbols::draw(painter, QStringLiteral("waveform.path.ecg"), QColor(inks[0]),
                      QRectF(0, 0, width, size), qRound(width * 0.8));
        return;
    }
    const double row = (size - 2 * inset) / static_cast<double>(figures.size());
    for (qsizetype i = 0; i < figures.size(); ++i) {
        const QRectF room(inset, inset + row * static_cast<double>(i), width - 2 * inset, row);
        drawFigure(painter, room, inks[static_cast<std::size_t>(i) % inks.size()], figures[i]);
    }
}

/// Draws the size that is asked for. An icon of pixmaps would draw all sizes, and Qt would cache every icon
/// that was shown: megabytes of old figures.
class FigureIconEngine : public QIconEngine {
public:
    FigureIconEngine(QStringList figures, std::optional<Alert::Severity> worst)
        : m_figures(std::move(figures))
        , m_worst(worst) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int size = std::min(rect.width(), rect.height());
        painter->save();
        painter->translate(rect.center() - QPoint((size - 1) / 2, (size - 1) / 2));
        draw(*painter, m_figures, m_worst, size);
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
    std::optional<Alert::Severity> m_worst;
};

} // namespace

QIcon FigureIcon::make(const QStringList& figures, std::optional<Alert::Severity> worst) {
    return QIcon(new FigureIconEngine(figures, worst));
}

QIcon FigureIcon::mark(Alert::Severity severity) {
    constexpr int side = 48;
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    drawMark(painter, pixmap.rect(), severity);
    return pixmap;
}

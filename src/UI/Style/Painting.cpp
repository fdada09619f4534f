#include "UI/Style/Painting.h"

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QStyleOption>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <cmath>

namespace Painting {
namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

double digitWidth(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

/// Calls `visit(piece, width)` for each digit and for each run of other characters. A digit that is joined
/// with what follows it, as in a keycap emoji, belongs to the run.
template <typename Visit> void forEachPiece(const QFontMetricsF& metrics, const QString& text, Visit visit) {
    const double digit = digitWidth(metrics);
    QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, text);
    const auto standsAlone = [&](qsizetype i) {
        if (!isDigit(text[i]))
            return false;
        if (i + 1 == text.size() || text[i + 1].unicode() < 0x80)
            return true;
        clusters.setPosition(i);
        return clusters.toNextBoundary() == i + 1;
    };
    for (qsizetype begin = 0; begin < text.size();) {
        const bool isOne = standsAlone(begin);
        qsizetype end = begin + 1;
        while (!isOne && end < text.size() && !standsAlone(end))
            ++end;
        const QString piece = text.mid(begin, end - begin);
        visit(piece, isOne ? digit : metrics.horizontalAdvance(piece));
        begin = end;
    }
}

double baseline(const QFontMetricsF& metrics, const QRectF& area) {
    return qRound(area.center().y() + (metrics.ascent() - metrics.descent()) / 2);
}

/// Lets the text run as its own letters do: a path keeps its order in every language.
void setDirection(QPainter& painter, const QString& text) {
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
}

void reflect(QPainter& painter, const QRectF& area) {
    painter.translate(qRound(area.left() + area.right()), 0); // whole points keep lines sharp
    painter.scale(-1, 1);
}

/// The fill and the border of a card.
struct CardColors {
    QColor fill;
    QColor border;
};

void drawRounded(QPainter& painter, const QRectF& area, double radius, const CardColors& colors) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors.border, 1));
    painter.setBrush(colors.fill);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    painter.restore();
}

constexpr double cornerSide = 16; ///< of a card's picture; whole pixels at a scale in quarters
constexpr double middleSide = 4;  ///< of what is stretched between two corners
constexpr double pictureSide = 2 * cornerSide + middleSide;

/// Returns a card of `pictureSide`, for screens of this scale.
QPixmap cardPicture(double radius, const CardColors& colors, double scale) {
    const QString key = QStringLiteral("card %1 %2 %3 %4")
                            .arg(radius)
                            .arg(colors.fill.rgba())
                            .arg(colors.border.rgba())
                            .arg(scale);
    QPixmap result;
    if (QPixmapCache::find(key, &result))
        return result;
    const QSizeF size(pictureSide, pictureSide);
    result = QPixmap((size * scale).toSize());
    result.setDevicePixelRatio(scale);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    drawRounded(painter, QRectF({}, size), radius, colors);
    QPixmapCache::insert(key, result);
    return result;
}

/// Returns whether a card can be drawn from its picture: it is large enough, and its edges are on whole
/// pixels.
bool isPictured(const QPainter& painter, const QRectF& area, double radius, const CardColors& colors) {
    if (colors.fill.alpha() < 255 || radius > cornerSide || area.width() < pictureSide ||
        area.height() < pictureSide || painter.worldTransform().type() > QTransform::TxTranslate)
        return false;
    const double scale = painter.device()->devicePixelRatioF();
    const QRectF placed = painter.worldTransform().mapRect(area);
    const double sides[] = {placed.left(), placed.top(), placed.right(), placed.bottom(), middleSide};
    return std::ranges::all_of(sides,
                               [scale](double side) { return side * scale == std::round(side * scale); });
}

/// Draws the corners as they are, and stretches what is between them. The toolkit fills a long path on
/// several threads, whose waking costs more than all the rest.
void drawPicture(QPainter& painter, const QRectF& area, double radius, const CardColors& colors) {
    const double scale = painter.device()->devicePixelRatioF();
    const QPixmap picture = cardPicture(radius, colors, scale);
    const auto parts = [](double begin, double length) {
        return std::array{begin, begin + cornerSide, begin + length - cornerSide, begin + length};
    };
    const auto x = parts(area.left(), area.width());
    const auto y = parts(area.top(), area.height());
    const auto from = parts(0, pictureSide);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const QRectF part({x[column], y[row]}, QPointF(x[column + 1], y[row + 1]));
            const QRectF source(QPointF(from[column], from[row]) * scale,
                                QPointF(from[column + 1], from[row + 1]) * scale);
            if (row == 1 && column == 1)
                painter.fillRect(part, colors.fill);
            else
                painter.drawPixmap(part, picture, source);
        }
    }
}

} // namespace

void mirror(QPainter& painter, const QRectF& area, Qt::LayoutDirection direction) {
    if (direction == Qt::RightToLeft)
        reflect(painter, area);
}

void mirror(QPainter& painter, const QWidget& widget) {
    mirror(painter, widget.rect(), widget.layoutDirection());
}

QPointF mirrored(const QPointF& point, const QRectF& area, Qt::LayoutDirection direction) {
    return direction == Qt::RightToLeft ? QPointF(area.left() + area.right() - point.x(), point.y()) : point;
}

Mirrored::Mirrored(QPainter& painter, const QRectF& area, Qt::LayoutDirection direction)
    : m_painter(painter) {
    painter.save();
    mirror(painter, area, direction);
}

Mirrored::~Mirrored() {
    m_painter.restore();
}

Upright::Upright(QPainter& painter, const QRectF& area)
    : m_painter(painter)
    , m_isMirrored(painter.transform().determinant() < 0) {
    if (!m_isMirrored)
        return;
    painter.save();
    reflect(painter, area);
}

Upright::~Upright() {
    if (m_isMirrored)
        m_painter.restore();
}

void drawCard(QPainter& painter, const QRectF& area, double radius, const QColor& fill,
              const QColor& border) {
    const CardColors colors{.fill = fill, .border = border};
    if (isPictured(painter, area, radius, colors))
        drawPicture(painter, area, radius, colors);
    else
        drawRounded(painter, area, radius, colors);
}

void drawCard(QPainter& painter, const QRectF& area, double radius) {
    drawCard(painter, area, radius, Theme::color(Theme::Role::cardFill),
             Theme::color(Theme::Role::cardBorder));
}

void drawControl(QPainter& painter, const QRectF& area, double radius) {
    drawCard(painter, area, radius, Theme::color(Theme::Role::cardFill),
             Theme::color(Theme::Role::controlBorder));
}

void drawFocusRing(QPainter& painter, const QRectF& area, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::color(Theme::Role::accent), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    painter.restore();
}

void drawFeedback(QPainter& painter, const QRectF& area, QStyle::State state, double radius, double hovered,
                  double pressed) {
    if (state & QStyle::State_Enabled && state & (QStyle::State_MouseOver | QStyle::State_Sunken))
        drawCard(painter, area, radius,
                 Theme::color(Theme::Role::hoverFill, state & QStyle::State_Sunken ? pressed : hovered));
    if (state & QStyle::State_HasFocus)
        drawFocusRing(painter, area, radius);
}

void drawFeedback(QPainter& painter, const QAbstractButton& button, double radius, double hovered,
                  double pressed) {
    QStyleOption option;
    option.initFrom(&button);
    option.state.setFlag(QStyle::State_Sunken, button.isDown());
    drawFeedback(painter, option.rect, option.state, radius, hovered, pressed);
}

void drawBadge(QPainter& painter, const QRectF& area, Theme::Role role, const QFont& font,
               const QString& text) {
    drawCard(painter, area, area.height() / 2, Theme::tileColor(role, 0.85));
    painter.setFont(font);
    painter.setPen(Qt::white);
    drawTabular(painter, area, Qt::AlignHCenter, text);
}

void setTextStyle(QPainter& painter, Theme::TextStyle style, Theme::Role role,
                  std::optional<QFont::Weight> weight) {
    painter.setFont(Theme::font(style, weight));
    painter.setPen(Theme::color(role));
}

double lineHeight(const QFont& font) {
    return std::ceil(QFontMetricsF(font).height());
}

double tabularWidth(const QFont& font, const QString& text) {
    double total = 0;
    forEachPiece(QFontMetricsF(font), text, [&total](const QString&, double width) { total += width; });
    return total;
}

void drawTabular(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text) {
    const Upright upright(painter, area);
    const QFontMetricsF metrics(painter.font());
    setDirection(painter, text);
    const bool isTabular = !text.isRightToLeft();
    const double width = isTabular ? tabularWidth(painter.font(), text) : metrics.horizontalAdvance(text);
    double x = area.left();
    if (alignment & Qt::AlignHCenter)
        x = area.center().x() - width / 2;
    else if (bool(alignment & Qt::AlignRight) != upright.isMirrored())
        x = area.right() - width;
    const double y = baseline(metrics, area);
    if (!isTabular)
        return painter.drawText(QPointF(x, y), text);
    forEachPiece(metrics, text, [&](const QString& piece, double room) {
        const double inset = (room - metrics.horizontalAdvance(piece)) / 2;
        painter.drawText(QPointF(x + inset, y), piece);
        x += room;
    });
}

void drawElided(QPainter& painter, const QRectF& area, Qt::TextElideMode mode, const QString& text) {
    const Upright upright(painter, area);
    const QFontMetricsF metrics(painter.font());
    setDirection(painter, text);
    const QString fitting = metrics.elidedText(text, mode, area.width());
    const double x = upright.isMirrored() ? area.right() - metrics.horizontalAdvance(fitting) : area.left();
    painter.drawText(QPointF(x, baseline(metrics, area)), fitting);
}

QRectF takeRight(QRectF& line, double width, double gap) {
    QRectF cell = line;
    cell.setLeft(line.right() - width);
    line.setRight(cell.left() - gap);
    return cell;
}

void drawTickBox(QPainter& painter, const QRectF& area, Qt::CheckState state) {
    constexpr double tickRadius = 4;
    if (state == Qt::Unchecked) {
        drawCard(painter, area, tickRadius, Theme::color(Theme::Role::cardFill),
                 Theme::color(Theme::Role::gray));
        return;
    }
    drawCard(painter, area, tickRadius, Theme::tileColor(Theme::Role::accent));
    const Upright upright(painter, area);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(area.topLeft());
    painter.scale(area.width() / 16, area.height() / 16);
    if (state == Qt::PartiallyChecked) {
        painter.drawLine(QPointF(4.5, 8), QPointF(11.5, 8));
    } else {
        const QPointF mark[] = {{4, 8.5}, {7, 11.5}, {12, 5}};
        painter.drawPolyline(mark, 3);
    }
    painter.restore();
}

void drawProgress(QPainter& painter, const QRectF& area, double share, const QColor& tint) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double radius = area.height() / 2;
    QPainterPath track;
    track.addRoundedRect(area, radius, radius);
    painter.fillPath(track, Theme::color(Theme::Role::trackFill));
    painter.setClipPath(track);
    QRectF done = area;
    done.setWidth(area.width() * std::clamp(share, 0.0, 1.0));
    painter.fillRect(done, tint);
    painter.restore();
}

} // namespace Painting

#include "UI/Style/Painting.h"

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>
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

/// Calls `visit(piece, width)` for each digit and for each run of other characters.
template <typename Visit> void forEachPiece(const QFontMetricsF& metrics, const QString& text, Visit visit) {
    const double digit = digitWidth(metrics);
    for (qsizetype begin = 0; begin < text.size();) {
        qsizetype end = begin + 1;
        if (!isDigit(text[begin])) {
            while (end < text.size() && !isDigit(text[end]))
                ++end;
        }
        const QString piece = text.mid(begin, end - begin);
        visit(piece, isDigit(text[begin]) ? digit : metrics.horizontalAdvance(piece));
        begin = end;
    }
}

double baseline(const QFontMetricsF& metrics, const QRectF& area) {
    return qRound(area.center().y() + (metrics.ascent() - metrics.descent()) / 2);
}

} // namespace

void drawCard(QPainter& painter, const QRectF& area, double radius, const QColor& fill,
              const QColor& border) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(border, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    painter.restore();
}

void drawCard(QPainter& painter, const QRectF& area, double radius) {
    drawCard(painter, area, radius, Theme::color(Theme::Role::cardFill),
             Theme::color(Theme::Role::cardBorder));
}

void drawFocusRing(QPainter& painter, const QRectF& area, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::color(Theme::Role::accent, 0.7), 2));
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
    const QFontMetricsF metrics(painter.font());
    double x = area.left();
    if (alignment & Qt::AlignRight)
        x = area.right() - tabularWidth(painter.font(), text);
    else if (alignment & Qt::AlignHCenter)
        x = area.center().x() - tabularWidth(painter.font(), text) / 2;
    const double y = baseline(metrics, area);
    forEachPiece(metrics, text, [&](const QString& piece, double width) {
        const double inset = (width - metrics.horizontalAdvance(piece)) / 2;
        painter.drawText(QPointF(x + inset, y), piece);
        x += width;
    });
}

void drawElided(QPainter& painter, const QRectF& area, Qt::TextElideMode mode, const QString& text) {
    const QFontMetricsF metrics(painter.font());
    const QString fitting = metrics.elidedText(text, mode, area.width());
    painter.drawText(QPointF(area.left(), baseline(metrics, area)), fitting);
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

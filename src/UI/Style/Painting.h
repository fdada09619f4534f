#pragma once

#include "UI/Style/Theme.h"

#include <QRectF>
#include <QString>
#include <QStyle>

class QAbstractButton;
class QPainter;

/// Drawing that several screens share.
namespace Painting {

/// Mirrors what is drawn from now on within `area`, where the layout runs from right to left. Whoever draws
/// thinks from left to right; the texts, symbols and ticks below stay readable.
void mirror(QPainter& painter, const QRectF& area, Qt::LayoutDirection direction);
void mirror(QPainter& painter, const QWidget& widget);

/// Returns where a point of the screen is for whoever draws mirrored within `area`.
QPointF mirrored(const QPointF& point, const QRectF& area, Qt::LayoutDirection direction);

/// Mirrors for as long as it lives.
class Mirrored {
public:
    Mirrored(QPainter& painter, const QRectF& area, Qt::LayoutDirection direction);
    ~Mirrored();
    Mirrored(const Mirrored&) = delete;
    Mirrored& operator=(const Mirrored&) = delete;

private:
    QPainter& m_painter;
};

/// Draws within `area` as it is for as long as it lives, also with a mirrored painter.
class Upright {
public:
    Upright(QPainter& painter, const QRectF& area);
    ~Upright();
    Upright(const Upright&) = delete;
    Upright& operator=(const Upright&) = delete;

    /// Returns whether the painter is mirrored elsewhere, so that left and right change places.
    bool isMirrored() const { return m_isMirrored; }

private:
    QPainter& m_painter;
    bool m_isMirrored;
};

/// Draws a rounded rectangle with a border of one point inside its edge.
void drawCard(QPainter& painter, const QRectF& area, double radius, const QColor& fill,
              const QColor& border = Qt::transparent);

/// Draws the theme's card.
void drawCard(QPainter& painter, const QRectF& area, double radius = Theme::cardRadius);

/// Draws the ground of a control that can be clicked or typed into.
void drawControl(QPainter& painter, const QRectF& area, double radius = Theme::controlRadius);

/// Draws the ring round a control that has the focus.
void drawFocusRing(QPainter& painter, const QRectF& area, double radius);

/// Draws the light of a button that is hovered or pressed, in the strengths given, and the focus ring.
void drawFeedback(QPainter& painter, const QRectF& area, QStyle::State state, double radius,
                  double hovered = 1, double pressed = 1);
void drawFeedback(QPainter& painter, const QAbstractButton& button, double radius, double hovered = 1,
                  double pressed = 1);

/// Draws a short text in white on a capsule.
void drawBadge(QPainter& painter, const QRectF& area, Theme::Role role, const QFont& font,
               const QString& text);

/// Sets the font and the pen for text.
void setTextStyle(QPainter& painter, Theme::TextStyle style, Theme::Role role,
                  std::optional<QFont::Weight> weight = std::nullopt);

/// Returns the height of a line of that font, rounded up.
double lineHeight(const QFont& font);

/// Returns the width of `text` with digits of equal width, which keeps changing figures still.
double tabularWidth(const QFont& font, const QString& text);

/// Draws one line of text with digits of equal width, left, right or centred, in the middle of `area`.
/// Letters that run from right to left keep their order, without that width.
void drawTabular(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text);

/// Draws one line of text, with an ellipsis where it does not fit.
void drawElided(QPainter& painter, const QRectF& area, Qt::TextElideMode mode, const QString& text);

/// Cuts a cell of `width` off the right of `line`, and `gap` beside it. Returns the cell.
QRectF takeRight(QRectF& line, double width, double gap = Theme::rowSpacing);

/// Draws a box that is ticked, not ticked, or ticked in part.
void drawTickBox(QPainter& painter, const QRectF& area, Qt::CheckState state);

/// Draws a bar of `share` (0 to 1) of its track.
void drawProgress(QPainter& painter, const QRectF& area, double share, const QColor& tint);

} // namespace Painting

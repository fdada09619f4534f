#pragma once

#include "UI/Style/Theme.h"

#include <QRectF>
#include <QString>
#include <QStyle>

class QAbstractButton;
class QPainter;

/// Drawing that several screens share.
namespace Painting {

/// Draws a rounded rectangle with a border of one point inside its edge.
void drawCard(QPainter& painter, const QRectF& area, double radius, const QColor& fill,
              const QColor& border = Qt::transparent);

/// Draws the theme's card.
void drawCard(QPainter& painter, const QRectF& area, double radius = Theme::cardRadius);

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

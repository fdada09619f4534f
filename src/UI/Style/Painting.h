#pragma once

#include "UI/Style/Theme.h"

#include <QRectF>
#include <QString>

class QAbstractButton;
class QPainter;

/// Drawing that several screens share.
namespace Painting {

/// A rounded rectangle with a border of one point inside its edge.
void drawCard(QPainter& painter, const QRectF& area, double radius, const QColor& fill,
              const QColor& border = Qt::transparent);

/// The theme's card.
void drawCard(QPainter& painter, const QRectF& area, double radius = Theme::cardRadius);

/// The ring round a control that has the keyboard.
void drawFocusRing(QPainter& painter, const QRectF& area, double radius);

/// What the pointer and the keyboard do to a button: a light while it is pointed at or held down, as strong
/// as given, and the focus ring.
void drawFeedback(QPainter& painter, const QAbstractButton& button, double radius, double pointed = 1,
                  double held = 1);

/// A short text in white on a capsule.
void drawBadge(QPainter& painter, const QRectF& area, Theme::Role role, const QFont& font,
               const QString& text);

/// What the next text is written in.
void setTextStyle(QPainter& painter, Theme::TextStyle style, Theme::Role role,
                  std::optional<QFont::Weight> weight = std::nullopt);

/// Width of `text` when every digit takes the room of the widest, so that figures stand still when they
/// change.
double tabularWidth(const QFont& font, const QString& text);

/// One line of text with digits of equal width, aligned left, right or centred, in the middle of `area`.
void drawTabular(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text);

/// One line of text, shortened with an ellipsis where it does not fit.
void drawElided(QPainter& painter, const QRectF& area, Qt::TextElideMode mode, const QString& text);

/// Cuts a cell of `width` off the right of `line`, and `gap` beside it.
QRectF takeRight(QRectF& line, double width, double gap = Theme::rowSpacing);

/// A bar of `share` (0 to 1) of its track.
void drawProgress(QPainter& painter, const QRectF& area, double share, const QColor& tint);

} // namespace Painting

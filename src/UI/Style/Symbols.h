#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QRectF>
#include <QStringList>

class QPainter;

/// The program's own drawings, tinted by role. An unknown name gives a neutral dot.
namespace Symbols {

/// Returns the names of all symbols, sorted.
QStringList names();

/// Returns a square drawing of `size` device-independent pixels, sharp at `devicePixelRatio`.
QPixmap pixmap(const QString& name, const QColor& tint, int size, double devicePixelRatio);

/// Returns the symbol in the colour of the painter's pen, for the style. An empty name gives a blank.
QIcon icon(const QString& name);

/// Draws the symbol centred in `area`.
void draw(QPainter& painter, const QString& name, const QColor& tint, const QRectF& area, int size);

} // namespace Symbols

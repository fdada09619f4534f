#pragma once

#include <QColor>
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

/// Draws the symbol centred in `area`.
void draw(QPainter& painter, const QString& name, const QColor& tint, const QRectF& area, int size);

} // namespace Symbols

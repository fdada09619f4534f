#pragma once

#include <QSize>

class QPainter;
class QStyleOptionMenuItem;

/// The rows of menus and of drop-down lists.
namespace MenuDrawing {

void drawItem(QPainter& painter, const QStyleOptionMenuItem& item);

/// Returns the size of a row whose text has the size `contents`.
QSize itemSize(const QStyleOptionMenuItem& item, const QSize& contents);

} // namespace MenuDrawing

#pragma once

#include <Qt>

class QAbstractScrollArea;
class QMargins;
class QScrollArea;
class QLayout;
class QVBoxLayout;
class QWidget;

/// Makes the area a page that scrolls up and down. Returns the column of its content.
QVBoxLayout* makeScrollingPage(QScrollArea* area, const QMargins& margins, int spacing);

/// Gives the area a vertical scroll bar alone. The bar keeps its room when there is nothing to scroll, so
/// that a page does not move sideways when its content grows.
void useSlimScrollBar(QAbstractScrollArea* area);

/// Returns a line that ends where the rows of a scrolling page end. The scroll bar stands beyond, in the
/// right padding of a sheet with the theme's page margins.
QLayout* beforeScrollBar(QLayout* line);
QLayout* beforeScrollBar(QWidget* part, Qt::Alignment alignment = {});

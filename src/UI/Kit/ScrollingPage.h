#pragma once

class QAbstractScrollArea;
class QMargins;
class QScrollArea;
class QVBoxLayout;

/// Makes the area a page that scrolls up and down. Returns the column of its content.
QVBoxLayout* makeScrollingPage(QScrollArea* area, const QMargins& margins, int spacing);

/// Gives the area a vertical scroll bar alone. The bar keeps its room when there is nothing to scroll, so
/// that a page does not move sideways when its content grows.
void useSlimScrollBar(QAbstractScrollArea* area);

#pragma once

#include <QAbstractScrollArea>

namespace SlimScrollBar {

/// Gives the area a vertical bar alone. It keeps its room when there is nothing to scroll, so that a page
/// does not move sideways when its content grows.
inline void install(QAbstractScrollArea* area) {
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

} // namespace SlimScrollBar

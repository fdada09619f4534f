#include "UI/Kit/LinePoints.h"

#include <algorithm>
#include <cmath>

QPolygonF thinnedLine(const QPolygonF& line) {
    const auto isLower = [](QPointF a, QPointF b) { return a.y() < b.y(); };
    QPolygonF result;
    for (auto column = line.begin(); column != line.end();) {
        const auto end = std::find_if(column, line.end(), [x = std::floor(column->x())](QPointF point) {
            return std::floor(point.x()) != x;
        });
        const auto [lowest, highest] = std::minmax_element(column, end, isLower);
        result.append(*std::min(lowest, highest));
        if (lowest != highest)
            result.append(*std::max(lowest, highest));
        column = end;
    }
    return result;
}

#include "Core/Sampling/FigureHistory.h"

#include <limits>

void FigureHistory::append(double time, const QList<double>& figures, qsizetype limit) {
    const bool isUnknown = figures.isEmpty();
    const bool isEarlier = !times.isEmpty() && time < times.last();
    if (isEarlier || (!isUnknown && figures.size() != values.size())) {
        times.clear();
        values.clear();
        values.resize(figures.size());
    }
    if (values.isEmpty() || (!times.isEmpty() && time == times.last()))
        return;
    times.append(time);
    const qsizetype surplus = times.size() - limit;
    if (surplus > 0)
        times.remove(0, surplus);
    for (qsizetype i = 0; i < values.size(); ++i) {
        values[i].append(isUnknown ? std::numeric_limits<double>::quiet_NaN() : figures[i]);
        if (surplus > 0)
            values[i].remove(0, surplus);
    }
}

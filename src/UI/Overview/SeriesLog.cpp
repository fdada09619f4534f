#include "UI/Overview/SeriesLog.h"

#include <chrono>

double secondsOf(Instant instant) {
    return std::chrono::duration<double>(instant.time_since_epoch()).count();
}

void SeriesLog::append(Instant at, const QStringList& shownNames, const QList<double>& figures,
                       qsizetype limit) {
    const double time = secondsOf(at);
    const bool isEarlier = !times.isEmpty() && time < times.last(); // the clock was set back
    if (shownNames != names || isEarlier) {
        *this = {.times = {}, .names = shownNames, .values = {}};
        values.resize(shownNames.size());
    }
    if (!times.isEmpty() && time == times.last())
        return;
    times.append(time);
    const qsizetype surplus = times.size() - limit;
    if (surplus > 0)
        times.remove(0, surplus);
    for (qsizetype i = 0; i < names.size(); ++i) {
        values[i].append(figures.value(i));
        if (surplus > 0)
            values[i].remove(0, surplus);
    }
}

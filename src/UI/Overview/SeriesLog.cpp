#include "UI/Overview/SeriesLog.h"

void SeriesLog::append(Instant at, const QStringList& shownNames, const QList<double>& figures,
                       qsizetype limit) {
    if (shownNames != names)
        *this = {.names = shownNames, .history = {}};
    history.append(secondsOf(at), figures, limit);
}

void SeriesLog::interrupt(Instant before, qsizetype limit) {
    if (!history.times.isEmpty())
        history.append((history.times.last() + secondsOf(before)) / 2, {}, limit);
}

#pragma once

#include "Core/Instant.h"

#include <QList>
#include <QString>

/// Named figures over time that a page keeps while it is open. It forgets them when the names change.
struct SeriesLog {
    QList<double> times; ///< seconds since the epoch
    QStringList names;
    QList<QList<double>> values; ///< for each name, one for each time

    /// Adds the figures of a moment, and drops the oldest beyond `limit`.
    void append(Instant at, const QStringList& shownNames, const QList<double>& figures, qsizetype limit);
};

/// Returns the instant in seconds since the epoch.
double secondsOf(Instant instant);

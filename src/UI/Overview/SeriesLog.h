#pragma once

#include "Core/Instant.h"
#include "Core/Sampling/FigureHistory.h"

#include <QStringList>

/// Named figures over time that a page keeps, of the moments when it was open.
struct SeriesLog {
    QStringList names;
    FigureHistory history;

    /// Adds the figures of a moment. Forgets the others when the names change.
    void append(Instant at, const QStringList& shownNames, const QList<double>& figures, qsizetype limit);
    /// Says that the figures before this moment are unknown, back to the last ones.
    void interrupt(Instant before, qsizetype limit);
};

#pragma once

#include <QList>

/// Several figures over time, all of the same moments.
struct FigureHistory {
    QList<double> times;         ///< seconds since the epoch, in order
    QList<QList<double>> values; ///< for each figure, one for each time; NaN where unknown

    bool operator==(const FigureHistory&) const = default;

    /// Adds the figures of a moment, unknown ones for an empty list, and drops the oldest beyond `limit`.
    /// Forgets all for another number of figures, and when the clock was set back.
    void append(double time, const QList<double>& figures, qsizetype limit);
};

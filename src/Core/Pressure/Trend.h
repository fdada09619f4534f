#pragma once

#include <cstddef>
#include <optional>
#include <span>

/// Straight lines through figures that were taken over time. `seconds` ascend; both lists have the same
/// length.
namespace Trend {

using Figures = std::span<const double>;

/// A figure that falls in a straight line.
struct Fall {
    double perSecond = 0;   ///< above 0
    double now = 0;         ///< the line's value at the last time
    std::size_t points = 0; ///< the last ones that the line goes through
    double secondsLeft() const { return now / perSecond; }
};

/// Returns the median of the slopes between all pairs (Theil and Sen), which single steps and noise do not
/// move. 0 for fewer than two figures.
double medianSlope(Figures seconds, Figures values);

/// Returns the fall of the longest of several windows, 15 minutes at most, in which the figure fell steadily
/// and by 50 MB at least: a straight line explains more than 0.8 of its variance (R²), and each third of the
/// window falls. Returns an empty optional while the figures span less than four minutes, and where they
/// have come back by a third of the fall, as those of a build or of a garbage collector do.
std::optional<Fall> steadyFall(Figures seconds, Figures values);

} // namespace Trend

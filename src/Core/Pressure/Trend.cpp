#include "Core/Pressure/Trend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

using Trend::Figures;

constexpr double windowMinutes[] = {15, 10, 7, 5, 4};
constexpr double leastWindowShare = 0.95; // of a window that the figures have to span
constexpr double leastFallBytes = 50e6;
constexpr double leastFit = 0.8;
constexpr double leastShareOfThird = 0.4; // of the window's slope
constexpr double mostRecovery = 1 / 3.0;  // of the fall
constexpr std::size_t leastPoints = 9;

/// A least-squares line: its slope, and the share of the variance that it explains.
struct Line {
    double slope = 0;
    double fit = 0;
};

Line lineThrough(Figures x, Figures y) {
    const auto n = static_cast<double>(x.size());
    double sumX = 0;
    double sumY = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        sumX += x[i];
        sumY += y[i];
    }
    double xx = 0;
    double xy = 0;
    double yy = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double dx = x[i] - sumX / n;
        const double dy = y[i] - sumY / n;
        xx += dx * dx;
        xy += dx * dy;
        yy += dy * dy;
    }
    return xx > 0 && yy > 0 ? Line{.slope = xy / xx, .fit = xy * xy / (xx * yy)} : Line{};
}

double medianOf(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// Returns how far the figure has come back from a low, without single outliers.
double largestRecovery(Figures values) {
    double lowest = std::numeric_limits<double>::infinity();
    double recovery = 0;
    for (std::size_t i = 1; i + 1 < values.size(); ++i) {
        std::array three{values[i - 1], values[i], values[i + 1]};
        std::ranges::sort(three);
        lowest = std::min(lowest, three[1]);
        recovery = std::max(recovery, three[1] - lowest);
    }
    return recovery;
}

bool everyThirdFalls(Figures seconds, Figures values, double slope) {
    const std::size_t third = values.size() / 3;
    for (const std::size_t begin : {std::size_t(0), third, values.size() - third}) {
        if (lineThrough(seconds.subspan(begin, third), values.subspan(begin, third)).slope >
            leastShareOfThird * slope)
            return false;
    }
    return true;
}

/// Returns how many of the last figures lie within a time, 0 when they do not span it.
std::size_t pointsWithin(Figures seconds, double span) {
    if (seconds.back() - seconds.front() < span * leastWindowShare)
        return 0;
    const auto first = std::ranges::lower_bound(seconds, seconds.back() - span);
    return static_cast<std::size_t>(seconds.end() - first);
}

} // namespace

double Trend::medianSlope(Figures seconds, Figures values) {
    std::vector<double> slopes;
    slopes.reserve(values.size() * values.size() / 2);
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (std::size_t j = i + 1; j < values.size(); ++j)
            slopes.push_back((values[j] - values[i]) / (seconds[j] - seconds[i]));
    }
    return slopes.empty() ? 0 : medianOf(slopes);
}

std::optional<Trend::Fall> Trend::steadyFall(Figures seconds, Figures values) {
    if (values.size() < leastPoints)
        return std::nullopt;
    const double recovery = largestRecovery(values);
    for (const double minutes : windowMinutes) {
        const std::size_t points = pointsWithin(seconds, minutes * 60);
        if (points < leastPoints)
            continue;
        const Figures x = seconds.last(points);
        const Figures y = values.last(points);
        const Line line = lineThrough(x, y);
        const double fall = -line.slope * (x.back() - x.front());
        if (fall < leastFallBytes || line.fit <= leastFit || recovery >= mostRecovery * fall ||
            !everyThirdFalls(x, y, line.slope))
            continue;
        const double slope = medianSlope(x, y);
        std::vector<double> ends;
        for (std::size_t i = 0; i < points; ++i)
            ends.push_back(y[i] + slope * (x.back() - x[i]));
        return Fall{.perSecond = -slope, .now = std::max(0.0, medianOf(ends)), .points = points};
    }
    return std::nullopt;
}

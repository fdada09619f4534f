#include "UI/Inspector/InspectedHistory.h"

#include <algorithm>

void InspectedHistory::note(const ProcSample& process, Instant at) {
    const ProcessIdentity identity = process.identity();
    auto track = std::ranges::find(m_tracks, identity, &Track::process);
    if (track == m_tracks.end()) {
        m_tracks.prepend({.process = identity, .points = {}});
        m_tracks.resize(std::min(m_tracks.size(), mostProcesses));
    } else {
        std::rotate(m_tracks.begin(), track, track + 1);
    }
    auto& points = m_tracks.first().points;
    if (points.empty() || points.back().at < at)
        points.push_back({at, process.cpuPercent, process.rssBytes});
    std::erase_if(points, [at](const Point& point) { return point.at < at - span || point.at > at; });
}

std::vector<InspectedHistory::Point> InspectedHistory::of(const ProcessIdentity& process) const {
    const auto track = std::ranges::find(m_tracks, process, &Track::process);
    return track == m_tracks.cend() ? std::vector<Point>() : track->points;
}

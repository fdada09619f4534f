#pragma once

#include "Core/Memory/MemoryFigures.h"
#include "Core/Sessions/Session.h"
#include "Core/Sessions/SessionEnding.h"
#include "support/Bytes.h"

#include <cmath>

/// Records of sessions as the model reports them.
namespace SampleSessions {

inline const Instant start{std::chrono::seconds(1'700'000'000)};

inline Instant before(int seconds) {
    return start - std::chrono::seconds(seconds);
}

/// Returns a process whose own memory is known, with that much of it in swap.
inline SessionProcess process(qint32 pid, const QString& name, SessionPart part, int depth, quint64 bytes,
                              const QList<quint16>& ports = {}, quint64 swapBytes = 0) {
    MemoryFigures figures;
    figures.use = {.proportionalBytes = bytes - swapBytes,
                   .anonymousBytes = bytes - swapBytes,
                   .swapBytes = swapBytes,
                   .proportionalSwapBytes = swapBytes};
    return {.process = {.pid = pid,
                        .name = name,
                        .arguments = name + QStringLiteral(" --example"),
                        .rssBytes = bytes * 5 / 4,
                        .startTime = before(3600 + pid),
                        .memory = std::make_shared<const MemoryFigures>(figures)},
            .part = part,
            .depth = depth,
            .ports = ports};
}

/// Returns a session with these processes; the first is the host.
inline Session session(const QString& agent, const QString& folder, SessionState state,
                       const QList<SessionProcess>& processes) {
    Session result{.host = processes.first().process.identity(),
                   .agent = agent,
                   .folder = folder,
                   .started = processes.first().process.startTime,
                   .state = state,
                   .processes = processes,
                   .resumeCommand = QStringLiteral("cd %1 && %2 --continue").arg(folder, agent)};
    for (const SessionProcess& member : processes)
        result.memory.add(member.process);
    for (int i = 0; i < 60; ++i)
        result.trend.append(static_cast<double>(result.memory.bytes) *
                            (0.6 + 0.4 * std::abs(std::sin(i / 9.0 + processes.first().process.pid))));
    return result;
}

/// Returns a session that works, with a server, a dev server, a browser and a command.
inline Session large(qint32 pid, const QString& folder) {
    using enum SessionPart;
    Session result =
        session(QStringLiteral("claude"), folder, SessionState::working,
                {process(pid, QStringLiteral("claude"), agent, 0, 640 * MiB),
                 process(pid + 1, QStringLiteral("context7"), server, 1, 96 * MiB),
                 process(pid + 2, QStringLiteral("npm"), devServer, 1, 70 * MiB),
                 process(pid + 3, QStringLiteral("vite"), devServer, 2, 310 * MiB, {5173, 24678}),
                 process(pid + 4, QStringLiteral("esbuild"), command, 3, 44 * MiB),
                 process(pid + 5, QStringLiteral("chromium"), browser, 1, 410 * MiB, {9222}),
                 process(pid + 6, QStringLiteral("chromium"), browser, 2, 380 * MiB, {}, 90 * MiB),
                 process(pid + 7, QStringLiteral("bash"), command, 1, 4 * MiB)});
    result.version = QStringLiteral("2.1.4");
    result.name = QStringLiteral("Checkout redesign");
    result.lastActive = before(4);
    result.cpuPercent = 143;
    return result;
}

inline Session idle(qint32 pid, const QString& folder, quint64 bytes = 420 * MiB) {
    Session result =
        session(QStringLiteral("codex"), folder, SessionState::idle,
                {process(pid, QStringLiteral("codex"), SessionPart::agent, 0, bytes),
                 process(pid + 1, QStringLiteral("mcp-server-git"), SessionPart::server, 1, 58 * MiB)});
    result.lastActive = before(12 * 60 + 5);
    result.cpuPercent = 0.2;
    return result;
}

inline LeftOver leftOver(qint32 pid) {
    using enum SessionPart;
    LeftOver result{.agent = QStringLiteral("claude"),
                    .folder = QStringLiteral("/srv/app"),
                    .ended = before(1800),
                    .processes = {process(pid, QStringLiteral("context7"), server, 0, 96 * MiB),
                                  process(pid + 1, QStringLiteral("playwright"), server, 0, 120 * MiB),
                                  process(pid + 2, QStringLiteral("chromium"), browser, 1, 160 * MiB),
                                  process(pid + 3, QStringLiteral("chromium"), browser, 2, 36 * MiB)}};
    for (const SessionProcess& member : result.processes)
        result.memory.add(member.process);
    return result;
}

inline DuplicateServers duplicates(qint32 pid, const Session& host) {
    DuplicateServers result{
        .label = QStringLiteral("context7"), .host = host.host, .agent = host.agent, .folder = host.folder};
    for (int i = 0; i < 3; ++i, pid += 2) {
        result.older.append(process(pid, QStringLiteral("npx"), SessionPart::server, 1, 22 * MiB));
        result.older.append(process(pid + 1, QStringLiteral("context7"), SessionPart::server, 2, 48 * MiB));
        result.older.last().process.parentPid = pid;
    }
    for (const SessionProcess& member : result.older)
        result.memory.add(member.process);
    return result;
}

inline SessionEnding endingOf(const Session& session) {
    SessionEnding ending{.title = session.title(),
                         .host = session.host,
                         .givesBack = {.memoryBytes = session.memory.bytes * 7 / 8 - session.memory.swapBytes,
                                       .swapBytes = session.memory.swapBytes},
                         .resumeCommand = session.resumeCommand};
    for (const SessionProcess& member : session.processes)
        ending.processes.append(member.process);
    return ending;
}

} // namespace SampleSessions

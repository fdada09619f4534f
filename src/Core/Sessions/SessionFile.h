#pragma once

#include "Core/FileVersion.h"
#include "Core/Sessions/Session.h"

#include <QByteArray>

#include <optional>

/// What an agent writes about itself while it runs: `claude` keeps "sessions/PID.json" in its folder.
class SessionFile {
public:
    struct Content {
        QString id;
        QString folder;
        QString name;
        QString version;
        std::optional<SessionState> state; ///< empty when the file does not say
        QString waitingFor;
        std::optional<Instant> changed; ///< when it got into that state

        bool operator==(const Content&) const = default;
    };

    /// Parses the document. Returns an empty optional unless it is of the process with this PID and start
    /// (in clock ticks since boot). A time after `now` counts as missing.
    static std::optional<Content> parse(const QByteArray& text, qint32 pid, quint64 startTicks, Instant now);

    /// Reads the file when it has changed. Only a regular file of at most 64 KiB counts.
    const std::optional<Content>& refresh(const QByteArray& path, qint32 pid, quint64 startTicks,
                                          Instant now);

private:
    FileVersion m_version;
    std::optional<Content> m_content;
};

#pragma once

#include "Core/FileVersion.h"
#include "Core/Mcp/ServerDocument.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QFuture>

#include <chrono>
#include <functional>

class QThreadPool;

/// A configuration file that is checked on every tick and read when it has changed. Up to 64 KiB are read at
/// once, in about a millisecond, a larger file on another thread.
class ServerFile {
public:
    using Servers = ServerDocument::Servers;
    using Read = std::function<Servers(std::streambuf& text)>;

    /// `path` is in the encoding of file names.
    ServerFile(QByteArray path, Read read);
    /// Cancels a running read, which ends within some milliseconds.
    ~ServerFile();
    ServerFile(const ServerFile&) = delete;
    ServerFile& operator=(const ServerFile&) = delete;

    /// Takes the result of a finished read, starts one of a changed file, and returns whether the servers
    /// changed. They stay during a read, and after one during which the file changed. A file that is missing
    /// or not regular has no servers; those of one that cannot be opened are unknown.
    bool refresh(QThreadPool& pool);
    const Servers& servers() const { return m_servers; }
    /// Returns whether the file has not been read yet, or cannot be opened.
    bool isUnknown() const { return m_isUnknown; }

private:
    struct Reading {
        FileVersion version;
        Servers servers;
        bool isTorn = false;       ///< the file changed during the read
        bool isUnreadable = false; ///< the file is there and cannot be opened
        std::chrono::milliseconds duration{};
    };

    static Reading readFile(const QByteArray& path, const Read& read,
                            const std::function<bool()>& isUnwanted = {});
    bool takeOver(Reading reading);
    bool forget();
    void stopReading();
    void startReading(QThreadPool& pool);

    QByteArray m_path;
    Read m_read;
    FileVersion m_version;
    Servers m_servers;
    bool m_isUnknown = true;
    QFuture<Reading> m_reading; ///< valid while one runs or waits to be taken over
    QDeadlineTimer m_rest;      ///< runs until the next read may start
};

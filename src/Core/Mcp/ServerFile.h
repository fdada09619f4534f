#pragma once

#include "Core/Mcp/FileStream.h"
#include "Core/Mcp/ServerDocument.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QFuture>

#include <chrono>
#include <functional>

class QThreadPool;

/// A configuration file that is looked at on every tick and read when it changed: up to 64 KiB at once, which
/// takes about a millisecond, and what is larger on another thread.
class ServerFile {
public:
    using Servers = ServerDocument::Servers;
    using Read = std::function<Servers(std::streambuf& text)>;

    /// `path` in the encoding of file names.
    ServerFile(QByteArray path, Read read);
    /// Stops a reading that is under way within some milliseconds.
    ~ServerFile();
    ServerFile(const ServerFile&) = delete;
    ServerFile& operator=(const ServerFile&) = delete;

    /// Takes over what was read and begins to read what is new; whether that changed the servers. While a
    /// reading is under way, and after one that the file changed under, the last answer stands. A file that
    /// is missing, no regular file or unreadable has no servers.
    bool look(QThreadPool& pool);
    const Servers& servers() const { return m_servers; }
    /// There is no answer yet: before the first look, or while a file is read for the first time.
    bool isUnknown() const { return m_isUnknown; }

private:
    /// What tells one content of a file from another without reading it.
    struct Version {
        quint64 device = 0;
        quint64 inode = 0;
        qint64 sizeBytes = -1;
        qint64 modifiedSeconds = 0;
        qint64 modifiedNanoseconds = 0;

        bool operator==(const Version&) const = default;
    };
    struct Reading {
        Version version;
        Servers servers;
        bool isTorn = false; ///< the file changed meanwhile
        std::chrono::milliseconds duration{};
    };

    static Version versionOf(const struct stat& status);
    static Reading readFile(const QByteArray& path, const Read& read,
                            const FileStream::IsUnwanted& isUnwanted = {});
    bool takeOver(Reading reading);
    bool forget();
    void stopReading();
    void startReading(QThreadPool& pool);

    QByteArray m_path;
    Read m_read;
    Version m_version;
    Servers m_servers;
    bool m_isUnknown = true;
    QFuture<Reading> m_reading; ///< valid while one is under way or has not been taken over
    QDeadlineTimer m_rest;
};

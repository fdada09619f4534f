#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <optional>

/// What a process has had read from disks and written to them, since it started. The file cache answers what
/// is not counted here.
struct DiskCounters {
    quint64 readBytes = 0;
    quint64 writtenBytes = 0;

    bool operator==(const DiskCounters&) const = default;
};

/// The files that a process has open, and what it opens like files.
struct OpenFiles {
    int count = 0;
    QByteArrayList first; ///< their paths or what the system calls them, at most as many as asked for

    bool operator==(const OpenFiles&) const = default;
};

/// Details of single processes that are read when a person looks at them. An empty answer is unknown: the
/// process is gone, of another user, or the system does not tell. Called on any thread.
class ProcessDetails {
public:
    virtual ~ProcessDetails() = default;

    virtual std::optional<DiskCounters> disk(qint32) { return {}; }
    /// Returns the arguments as they are now, with the program's own name first.
    virtual QByteArrayList commandLine(qint32) { return {}; }
    virtual QByteArray workingDirectory(qint32) { return {}; }
    virtual QByteArray controlGroup(qint32) { return {}; }
    virtual std::optional<OpenFiles> openFiles(qint32, int /*most*/) { return {}; }
    /// Returns the entries "NAME=value" that it was started with; it may have overwritten them.
    virtual std::optional<QByteArrayList> environment(qint32) { return {}; }
    virtual QString userName(quint32 /*uid*/) { return {}; }
};

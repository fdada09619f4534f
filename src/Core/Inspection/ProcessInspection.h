#pragma once

#include "Platform/ListeningPorts.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class ProcessDetails;

/// What the system tells of one process. A text is empty and a count absent where it does not tell, as of
/// another user's process.
struct ProcessInspection {
    static constexpr int mostFiles = 100;

    QString command; ///< as a shell would take it
    QString folder;
    QString controlGroup;
    std::optional<int> fileCount;
    QStringList files;    ///< the first of them
    QList<quint16> ports; ///< that it listens on, ascending

    bool operator==(const ProcessInspection&) const = default;

    /// Reads it, on any thread. `listening` has all sockets that wait for connections.
    static ProcessInspection read(ProcessDetails& details, ListeningPorts& ports,
                                  const QList<ListeningSocket>& listening, qint32 pid);
    /// Returns a command line in which a shell finds the same arguments.
    static QString shellLine(const QList<QByteArray>& arguments);
};

/// A variable of a process's environment.
struct EnvironmentVariable {
    QString name;
    QString value; ///< empty for a secret
    bool isSecret = false;

    bool operator==(const EnvironmentVariable&) const = default;

    /// Reads an entry "NAME=value". By its name or its form the value may be a secret; then it is dropped.
    static EnvironmentVariable of(const QByteArray& entry);
};

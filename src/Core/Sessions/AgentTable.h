#pragma once

#include <QByteArrayList>
#include <QHash>
#include <QString>

#include <optional>

/// What is known of single coding agents: the command that takes a conversation up again, and the variables
/// that everything they start inherits.
namespace AgentTable {

/// What the environment of a process says of the session that started it.
struct Mark {
    QString agent;
    QString id;     ///< of the session
    QString folder; ///< of the project, empty when it is not said

    bool operator==(const Mark&) const = default;
};

/// Returns the name that a person types: "claude" for the package "claude-code".
QString typedName(const QString& agent);

/// Returns the command, to be run in the project's folder; an empty text for an unknown agent.
QString resumeCommand(const QString& agent);

/// Returns the names of the variables that `markIn` reads.
const QByteArrayList& variables();

/// Returns the session named in the environment. An id of more than 128 characters is none.
std::optional<Mark> markIn(const QHash<QByteArray, QByteArray>& environment);

/// Returns the folder of the agent's settings, which a variable of its own process may move; empty without a
/// home folder.
QString claudeFolder(const QHash<QByteArray, QByteArray>& environment);

} // namespace AgentTable

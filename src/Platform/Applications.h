#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

#include <optional>

/// A program as the desktop's menu has it.
struct Application {
    QString id;   ///< of its desktop entry, without ".desktop"; without an entry, the sandbox's name for it
    QString name; ///< as in the menu, in the user's language
    QString icon = {}; ///< its name in the theme, or the path of a file; empty when unknown

    bool operator==(const Application&) const = default;
};

/// Finds the application behind a program or a process.
class Applications {
public:
    virtual ~Applications() = default;

    /// Returns the application whose menu entry starts the program at `executable` (an absolute path), or
    /// whose helper that program is. Returns an empty optional when none or several match.
    virtual std::optional<Application> ofProgram(const QString& executable) = 0;
    /// Returns the application that a running process belongs to and ends with. Returns an empty optional
    /// when the process belongs to none, is unreadable or gone, and in doubt, as for what runs in a terminal.
    /// Where several applications have the same name in the menu, the name is the id.
    virtual std::optional<Application> ofProcess(qint32 pid) = 0;
    /// Returns the processes that run in the terminals of `pids` and end with them: shells and what was
    /// started there, except what ignores SIGHUP.
    virtual QList<qint32> inTerminalsOf(const QList<qint32>& pids) = 0;
};

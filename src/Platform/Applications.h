#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

#include <optional>

/// A program as the desktop's menu has it.
struct Application {
    QString id; ///< of its desktop entry, without ".desktop"; where there is none, what its sandbox calls it
    QString name; ///< as in the menu, in the user's language

    bool operator==(const Application&) const = default;
};

/// Which application is behind a program or a process.
class Applications {
public:
    virtual ~Applications() = default;

    /// The application whose menu entry starts the program at `executable` (an absolute path), or one that it
    /// is a helper of. Empty when there is none, or several could be meant.
    virtual std::optional<Application> ofProgram(const QString& executable) = 0;
    /// The application that a running process belongs to, so that it ends when the application is quit. Empty
    /// when it belongs to none, may not be read or is gone; also in doubt, as for what runs in a terminal.
    /// Its name is the id where programs of several applications have the name in the menu.
    virtual std::optional<Application> ofProcess(qint32 pid) = 0;
    /// What runs in the terminals of those processes, without being of their application, and ends with them:
    /// shells and what was started there, but for what ignores the hang-up.
    virtual QList<qint32> inTerminalsOf(const QList<qint32>& pids) = 0;
};

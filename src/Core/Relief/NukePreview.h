#pragma once

#include "Core/Memory/MemoryReturn.h"

#include <QList>
#include <QUuid>

/// A sweep over all processes of a name, with the texts of its dialog and its outcome.
struct NukePreview {
    QUuid id;
    QString name;
    QList<qint32> pids;        ///< in the order of the process list
    QList<Instant> startTimes; ///< of each, which tells it from a process that reuses its PID
    quint64 totalRSS = 0;      ///< of all, shared pages once
    MemoryReturn givesBack;    ///< when all of them end, or the application
    quint64 cacheBytes = 0;    ///< of the application's files, which stays; 0 when it is not counted apart
    std::optional<QString> parentAppName; ///< the one application that owns all of them
    QList<ProcSample> inTerminals;        ///< run in the application's terminals and end with it

    /// The application of each process of a list. A missing one at the end is none.
    using Applications = QList<std::optional<QString>>;

    /// Makes a preview. A process in a bundle belongs to that, any other to its entry of `applications`.
    static NukePreview make(const QString& name, const QList<ProcSample>& processes,
                            const Applications& applications = {});
    /// Returns the outermost bundle (NAME.app) that contains the executable.
    static std::optional<QString> bundleOf(const QString& executablePath);
    /// Returns the application that all entries name, or an empty optional.
    static std::optional<QString> common(const Applications& applications);

    QString dialogTitle() const;
    QString dialogMessage() const;
    /// Return the texts of the dialog's buttons: the first two with an owning application, the third without.
    QString quitButton() const;
    QString forceQuitButton() const;
    QString killButton() const;

    QString quitOutcome(const QString& appName, bool succeeded) const;
    QString killOutcome(int killed) const;

private:
    QString cacheMessage() const;
    QString terminalsMessage() const;
};

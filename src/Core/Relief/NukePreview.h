#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>
#include <QUuid>

/// What one sweep over all processes of a name would touch, and the words it is asked and reported in.
struct NukePreview {
    QUuid id;
    QString name;
    QList<qint32> pids;        ///< in the order of the process list
    QList<Instant> startTimes; ///< of each, which tells it from a later process under its id
    quint64 totalRSS = 0;
    std::optional<QString> parentAppName; ///< the application that owns all of them, when there is just one
    QList<ProcSample> inTerminals; ///< of others, which run in the application's terminals and end with it

    /// The application that a process belongs to, for each of a list; what is missing at its end is none.
    using Applications = QList<std::optional<QString>>;

    /// A process that runs from a bundle belongs to that; of any other `applications` is asked.
    static NukePreview make(const QString& name, const QList<ProcSample>& processes,
                            const Applications& applications = {});
    /// The outermost bundle (NAME.app) that the executable lies in.
    static std::optional<QString> bundleOf(const QString& executablePath);
    /// What all of them name; empty when one differs, or there is none.
    static std::optional<QString> common(const Applications& applications);

    QString dialogTitle() const;
    QString dialogMessage() const;
    /// Buttons of the dialog; the first two only with an owning application, the third only without.
    QString quitButton() const;
    QString forceQuitButton() const;
    QString killButton() const;

    /// Outcome lines.
    QString quitOutcome(const QString& appName, bool succeeded) const;
    QString killOutcome(int killed) const;

private:
    QString terminalsMessage() const;
};

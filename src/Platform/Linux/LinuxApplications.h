#pragma once

#include "Platform/Applications.h"
#include "Platform/Freedesktop/DesktopEntries.h"

/// Applications by the desktop's entries and by what procfs says of a process.
///
/// The program that a process runs is the evidence: one that a shell, a terminal or an editor was told to run
/// stays a process of its own, although it lives in the same control group. Only a sandbox speaks for all
/// that is inside. Where the evidence does not do, there is no application: a wrong one would be quit.
class LinuxApplications : public Applications {
public:
    /// `root` is where procfs is mounted.
    explicit LinuxApplications(DesktopEntries entries = DesktopEntries(),
                               QString root = QStringLiteral("/proc"));

    std::optional<Application> ofProgram(const QString& executable) override;
    /// In this order: the sandbox (flatpak, snap), the program, the script that an interpreter was told to
    /// run, the entry that the process's unit names where that starts a program of the same file name.
    std::optional<Application> ofProcess(qint32 pid) override;
    QList<qint32> inTerminalsOf(const QList<qint32>& pids) override;
    /// See DesktopEntries::idsOf.
    QStringList idsOf(const QString& text) { return m_entries.idsOf(text); }

private:
    std::optional<Application> ofSandbox(const QString& folder, const QString& executable);
    std::optional<Application> ofScript(const QString& folder);
    std::optional<Application> ofUnit(const QString& id, const QString& executable);
    std::optional<Application> ofSnap(const QString& name, const QString& executable);
    Application named(const QString& id);
    Application toldApart(DesktopEntry entry);

    DesktopEntries m_entries;
    QString m_root;
};

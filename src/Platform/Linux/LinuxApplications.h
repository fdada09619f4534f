#pragma once

#include "Platform/Applications.h"
#include "Platform/Freedesktop/DesktopEntries.h"

/// Finds applications by desktop entries and procfs.
///
/// The executable decides: a program that a shell, terminal or editor was told to run does not belong to it,
/// although it is in the same control group. A sandbox decides for all its processes. In doubt there is no
/// application, because a wrong one would be quit.
class LinuxApplications : public Applications {
public:
    /// `root` is the mount point of procfs.
    explicit LinuxApplications(DesktopEntries entries = DesktopEntries(),
                               QString root = QStringLiteral("/proc"));

    std::optional<Application> ofProgram(const QString& executable) override;
    /// Tries in this order: the sandbox (flatpak, snap), the executable, the script of an interpreter, and
    /// the entry that the process's unit names, if its program has the same file name.
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

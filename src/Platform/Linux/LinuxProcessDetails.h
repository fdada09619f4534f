#pragma once

#include "Platform/ProcessDetails.h"

#include <string>

/// Details in procfs (proc(5)), for the user's own processes, and the names of users in the system's
/// database.
class LinuxProcessDetails : public ProcessDetails {
public:
    /// `root` is the mount point of procfs.
    explicit LinuxProcessDetails(std::string root = "/proc");

    /// Reads read_bytes and write_bytes in `/proc/N/io`.
    std::optional<DiskCounters> disk(qint32 pid) override;
    QByteArrayList commandLine(qint32 pid) override;
    QByteArray workingDirectory(qint32 pid) override;
    /// Reads the path of the unified hierarchy in `/proc/N/cgroup`.
    QByteArray controlGroup(qint32 pid) override;
    /// Reads the links of `/proc/N/fd`.
    std::optional<OpenFiles> openFiles(qint32 pid, int most) override;
    std::optional<QByteArrayList> environment(qint32 pid) override;
    QString userName(quint32 uid) override;

private:
    std::string path(qint32 pid, const char* name) const;

    std::string m_root;
};

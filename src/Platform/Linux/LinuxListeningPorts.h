#pragma once

#include "Platform/ListeningPorts.h"

#include <string>
#include <string_view>

/// Sockets in `/proc/net/tcp` and `tcp6` (proc(5)), and in the links of `/proc/N/fd`.
class LinuxListeningPorts : public ListeningPorts {
public:
    /// Reads procfs at `root`.
    explicit LinuxListeningPorts(std::string root = "/proc");

    QList<ListeningSocket> sockets() override;
    QList<quint64> socketsOf(qint32 pid) override;

    /// Appends the socket of a line of `/proc/net/tcp`. Returns false for a line of another state: the kernel
    /// lists those that listen first.
    static bool appendListening(std::string_view line, QList<ListeningSocket>& sockets);

private:
    std::string m_root;
};

#pragma once

#include "Platform/ListeningPorts.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Listening sockets by sock_diag(7), else in `/proc/net/tcp` and `tcp6` (proc(5)); their owners by the links
/// of `/proc/N/fd`.
class LinuxListeningPorts : public ListeningPorts {
public:
    LinuxListeningPorts() = default;
    /// Reads procfs at `root` alone.
    explicit LinuxListeningPorts(std::string root);

    QList<ListeningSocket> sockets() override;
    QList<quint64> socketsOf(qint32 pid) override;

    enum class Answer { goesOn, complete, refused };
    /// Appends the sockets of a part of the kernel's answer.
    static Answer take(std::span<const char> answer, QList<ListeningSocket>& sockets);
    /// Appends the socket of a line of `/proc/net/tcp`. Returns false for a line of another state: the kernel
    /// lists those that listen first.
    static bool appendListening(std::string_view line, QList<ListeningSocket>& sockets);

private:
    static std::optional<QList<ListeningSocket>> askKernel();

    std::string m_root = "/proc";
    bool m_asksKernel = true; ///< the table costs a millisecond, because the kernel looks for connections too
};

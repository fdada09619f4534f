#pragma once

#include "Platform/ProcessTable.h"

/// Reads the service or container from the names of control groups.
namespace ControlGroup {

/// Parses `/proc/N/cgroup`. Recognises the group names of Docker, Podman, containerd, CRI-O, Kubernetes, LXC
/// and systemd-nspawn, and units that end in ".service", except those of a login session or a desktop
/// application.
ProcessKeeper keeper(const QByteArray& cgroupFile);

/// Returns the group's path in `/proc/N/cgroup`, in the unified hierarchy or systemd's own; empty without
/// one.
QByteArray path(const QByteArray& cgroupFile);

/// Returns SYSTEMD_EXEC_PID from the text of `/proc/N/environ`, or 0.
qint32 mainPid(const QByteArray& environment);

} // namespace ControlGroup

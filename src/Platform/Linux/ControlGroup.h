#pragma once

#include "Platform/ProcessTable.h"

/// What the name of a control group says of whoever made it.
namespace ControlGroup {

/// From the text of `/proc/N/cgroup`. A container is known by the names that Docker, Podman, containerd,
/// CRI-O, Kubernetes, LXC and systemd-nspawn give their groups; a service by a unit that ends in ".service",
/// where it is not one that holds a whole login or an application of the desktop.
ProcessKeeper keeper(const QByteArray& cgroupFile);

/// SYSTEMD_EXEC_PID from the text of `/proc/N/environ`; 0 where it is not set.
qint32 mainPid(const QByteArray& environment);

} // namespace ControlGroup

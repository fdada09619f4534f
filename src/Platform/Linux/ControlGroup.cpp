#include "Platform/Linux/ControlGroup.h"

#include "Platform/Linux/Environment.h"

#include <QList>

#include <algorithm>
#include <array>

namespace {

/// Prefixes of a container's group name.
constexpr std::array<QByteArrayView, 10> containerPrefixes = {
    "docker-",      "libpod-",   "cri-containerd-", "crio-",    "nerdctl-",
    "lxc.payload.", "kubepods-", "kubepods.slice",  "buildkit", "machine-"};
/// Folders whose subfolders are named by the container's id.
constexpr std::array<QByteArrayView, 5> containerFolders = {"docker", "lxc", "kubepods", "libpod_parent",
                                                            "garden"};

/// Services that run other programs for the user.
constexpr std::array<QByteArrayView, 4> sessionPrefixes = {"user@", "app-", "dbus-", "xdg-desktop-portal"};

bool beginsWithOne(const QByteArray& name, const auto& prefixes) {
    return std::ranges::any_of(prefixes, [&name](QByteArrayView prefix) { return name.startsWith(prefix); });
}

} // namespace

QByteArray ControlGroup::path(const QByteArray& cgroupFile) {
    QByteArray path;
    for (const QByteArray& line : cgroupFile.split('\n')) {
        constexpr QByteArrayView named = ":name=systemd:";
        const qsizetype at = line.indexOf(named);
        if (!line.startsWith("0::") && at < 0)
            continue;
        const QByteArray found = line.mid(at < 0 ? 3 : at + named.size());
        if (path.isEmpty() || found != "/")
            path = found;
    }
    return path;
}

ProcessKeeper ControlGroup::keeper(const QByteArray& cgroupFile) {
    ProcessKeeper keeper;
    const QList<QByteArray> groups = path(cgroupFile).split('/'); // from the root down
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const QByteArray& group = groups[i];
        const bool isNumbered =
            i + 1 < groups.size() && std::ranges::find(containerFolders, group) != containerFolders.end();
        if (isNumbered || beginsWithOne(group, containerPrefixes))
            return {.kind = ProcessKeeper::Kind::container, .name = isNumbered ? groups[i + 1] : group};
        if (group.endsWith(".service") && !beginsWithOne(group, sessionPrefixes))
            keeper = {.kind = ProcessKeeper::Kind::service, .name = group};
    }
    return keeper;
}

qint32 ControlGroup::mainPid(const QByteArray& environment) {
    return std::max(
        0, Environment::variables(environment, {"SYSTEMD_EXEC_PID"}).value("SYSTEMD_EXEC_PID").toInt());
}

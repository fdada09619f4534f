#include "Tools/MemoryReclaim.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

struct Mount {
    std::string root; ///< the group at the mount point
    std::string point;
};

/// Finds the cgroup v2 hierarchy (proc(5), mountinfo: fields 4 and 5, and the type after the lone "-").
std::optional<Mount> groupMount(const std::string& procFolder) {
    std::ifstream mounts(procFolder + "/self/mountinfo");
    for (std::string line; std::getline(mounts, line);) {
        std::istringstream fields(line);
        std::string skipped;
        std::string type;
        Mount mount;
        fields >> skipped >> skipped >> skipped >> mount.root >> mount.point;
        while (fields >> skipped && skipped != "-") {
        }
        if (fields >> type && type == "cgroup2")
            return mount;
    }
    return std::nullopt;
}

/// Finds the group of this process in the v2 hierarchy (cgroups(7): the line that begins with "0::").
std::optional<std::string> ownGroup(const std::string& procFolder) {
    std::ifstream groups(procFolder + "/self/cgroup");
    for (std::string line; std::getline(groups, line);) {
        if (line.starts_with("0::/"))
            return line.substr(3);
    }
    return std::nullopt;
}

/// Returns the user's own groups, highest first.
std::vector<std::string> ownGroups(const std::string& path, uid_t user) {
    const std::string id = std::to_string(user);
    const std::string bounded = path + '/';
    for (const auto& limit : {"/user-" + id + ".slice/", "/user@" + id + ".service/"}) {
        const auto start = bounded.find(limit);
        if (start == std::string::npos)
            continue;
        std::vector<std::string> groups;
        for (auto end = start + limit.size() - 1; end != std::string::npos; end = bounded.find('/', end + 1))
            groups.push_back(bounded.substr(0, end));
        return groups;
    }
    return {path};
}

/// Returns the path of `group` relative to the mount point, or an empty optional outside of it.
std::optional<std::string> belowMount(const std::string& group, const Mount& mount) {
    if (mount.root == "/")
        return group;
    if (group == mount.root || group.starts_with(mount.root + '/'))
        return group.substr(mount.root.size());
    return std::nullopt;
}

std::uint64_t numberIn(const std::string& file) {
    std::uint64_t number = 0;
    std::ifstream(file) >> number;
    return number;
}

} // namespace

std::optional<std::string> Tools::reclaimableGroup(const std::string& procFolder, uid_t user) {
    const auto mount = groupMount(procFolder);
    const auto path = ownGroup(procFolder);
    if (!mount || !path)
        return std::nullopt;
    for (const auto& group : ownGroups(*path, user)) {
        const auto below = belowMount(group, *mount);
        if (below && access((mount->point + *below + "/memory.reclaim").c_str(), W_OK) == 0)
            return mount->point + *below;
    }
    return std::nullopt;
}

std::uint64_t Tools::reclaimTarget(std::uint64_t currentBytes, const ReclaimBudget& budget) {
    return std::min(budget.maxBytes, currentBytes / budget.partOfCurrent);
}

int Tools::reclaimInSteps(std::uint64_t bytes, std::uint64_t stepBytes,
                          const std::function<int(std::uint64_t)>& request,
                          const std::function<bool()>& isTimeUp) {
    while (bytes > 0 && !isTimeUp()) {
        const auto step = std::min(bytes, stepBytes);
        const int error = request(step);
        if (error != 0)
            return error == EAGAIN ? 0 : error;
        bytes -= step;
    }
    return 0;
}

int Tools::reclaim(const std::string& folder, const ReclaimBudget& budget) {
    const int file = open((folder + "/memory.reclaim").c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return errno;
    const auto request = [file](std::uint64_t bytes) {
        const std::string text = std::to_string(bytes) + '\n';
        return write(file, text.data(), text.size()) < 0 ? errno : 0;
    };
    const auto end = std::chrono::steady_clock::now() + budget.time;
    const auto isTimeUp = [end] { return std::chrono::steady_clock::now() >= end; };
    const auto target = reclaimTarget(numberIn(folder + "/memory.current"), budget);
    const int error = reclaimInSteps(target, budget.stepBytes, request, isTimeUp);
    close(file);
    return error;
}

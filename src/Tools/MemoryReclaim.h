#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// Reclaims memory that a control group of the user has not used lately (cgroup v2, `memory.reclaim`).
namespace Tools {

/// The bounds of a reclaim.
struct ReclaimBudget {
    std::uint64_t maxBytes = std::uint64_t(1) << 30;
    std::uint64_t partOfCurrent = 10; ///< divisor of the group's current memory
    std::uint64_t stepBytes = std::uint64_t(32) << 20;
    std::chrono::milliseconds time{1200};
};

/// Returns the folder of the control group to reclaim from: the highest one of this process whose
/// `memory.reclaim` this user may write, up to the user's slice (`user-UID.slice`) or service manager
/// (`user@UID.service`); outside of those only the process's own group. Reads `self/cgroup` and
/// `self/mountinfo` in `procFolder`. Returns an empty optional when there is no such group.
std::optional<std::string> reclaimableGroup(const std::string& procFolder, uid_t user);

/// Returns the bytes to reclaim from a group of `currentBytes`.
std::uint64_t reclaimTarget(std::uint64_t currentBytes, const ReclaimBudget& budget);

/// Requests `bytes` in steps until all are requested, `isTimeUp` or a request fails. `request` returns 0 or
/// an errno. Returns 0, also when the kernel has no more to reclaim (EAGAIN), otherwise the errno.
int reclaimInSteps(std::uint64_t bytes, std::uint64_t stepBytes,
                   const std::function<int(std::uint64_t)>& request, const std::function<bool()>& isTimeUp);

/// Reclaims from the group in `folder`. Returns 0 or an errno.
int reclaim(const std::string& folder, const ReclaimBudget& budget);

} // namespace Tools

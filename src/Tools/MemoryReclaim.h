#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// Asking the kernel to give back memory that a control group of the user's has not used lately
/// (cgroup v2, `memory.reclaim`).
namespace Tools {

/// How much is asked for, and for how long.
struct ReclaimBudget {
    std::uint64_t maxBytes = std::uint64_t(1) << 30;
    std::uint64_t partOfCurrent = 10; ///< one part in so many of what the group holds
    std::uint64_t stepBytes = std::uint64_t(32) << 20;
    std::chrono::milliseconds time{1200};
};

/// The folder of the control group to reclaim from: the highest one around this process whose
/// `memory.reclaim` this user may write, no higher than the user's own slice (`user-UID.slice`) or service
/// manager (`user@UID.service`); outside of those only the process's own group. Groups and their mount are
/// read from `self/cgroup` and `self/mountinfo` in `procFolder`. Nothing when there is no such group.
std::optional<std::string> reclaimableGroup(const std::string& procFolder, uid_t user);

/// What may be asked of a group that holds `currentBytes`.
std::uint64_t reclaimTarget(std::uint64_t currentBytes, const ReclaimBudget& budget);

/// Sends requests for `bytes` in all, a step at a time, until they are met, `isTimeUp` or a request fails.
/// `request` returns 0 or an errno. The result is 0 when all went well, also when the kernel had no more to
/// give (EAGAIN), otherwise the errno.
int reclaimInSteps(std::uint64_t bytes, std::uint64_t stepBytes,
                   const std::function<int(std::uint64_t)>& request, const std::function<bool()>& isTimeUp);

/// All of it for the group in `folder`; 0 or an errno.
int reclaim(const std::string& folder, const ReclaimBudget& budget);

} // namespace Tools

#pragma once

#include <sys/types.h>

#include <functional>
#include <vector>

/// Sleeping processes that end with this object, or when this program is killed.
class Children {
public:
    /// Starts `count` of them, or fewer when the system refuses more. Each calls `start` first.
    explicit Children(int count, const std::function<void()>& start = {});
    ~Children();
    Children(const Children&) = delete;
    Children& operator=(const Children&) = delete;

    int count() const { return static_cast<int>(m_pids.size()); }

private:
    std::vector<pid_t> m_pids;
};

#include "Tools/FolderSize.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

using namespace Tools;

namespace {

/// Adds up all that a walk finds.
class Measurement : public FolderTask {
public:
    Measurement(std::function<void(UnreadEntry)> tell, std::function<void()> begins)
        : m_tell(std::move(tell))
        , m_begins(std::move(begins)) {}

    FolderShare* find(const FoundEntry& /*entry*/) override { return &m_all; }
    void begin() override { m_begins(); }
    void miss(const UnreadEntry& entry) override { m_tell(entry); }

    FolderShare& all() { return m_all; }

private:
    std::function<void(UnreadEntry)> m_tell;
    std::function<void()> m_begins;
    FolderShare m_all;
};

} // namespace

std::optional<FolderSize> Tools::measureFolder(const std::string& path, std::function<void(UnreadEntry)> tell,
                                               const FolderWalkLimits& limits, std::function<void()> begins) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0)
        return std::nullopt;
    FolderSize size{.blocks = static_cast<std::uint64_t>(status.st_blocks)};
    if (!S_ISDIR(status.st_mode))
        return size;
    const int top = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
    if (top < 0) {
        tell({path, errno, true});
        size.unread = 1;
        return size;
    }
    Measurement measurement(std::move(tell), std::move(begins));
    const FolderWalkResult walk = walkFolder(path, top, &measurement.all(), measurement, limits);
    close(top);
    return FolderSize{size.blocks + measurement.all().blocks, walk.unread, walk.isEstimate};
}

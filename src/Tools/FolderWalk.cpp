#include "Tools/FolderWalk.h"

#include "Tools/FolderPieces.h"
#include "Tools/LinkedFiles.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace Tools;

namespace {

/// A smaller tree is measured before another thread would have started.
constexpr std::size_t entriesBeforeHelp = 1000;
constexpr std::size_t bufferBytes = 64 << 10;

dev_t deviceOf(const struct statx& entry) {
    return makedev(entry.stx_dev_major, entry.stx_dev_minor);
}

bool readStatus(int folder, const char* name, struct statx& status) {
    return statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_BASIC_STATS, &status) == 0;
}

/// Whether a folder is a mount point, or may be one where the kernel does not tell.
bool mayBeMountPoint(const struct statx& folder) {
    return (folder.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT) == 0 ||
           (folder.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
}

bool isAmong(const FoundFolder* folders, ino_t inode) {
    while (folders && folders->inode != inode)
        folders = folders->parent.get();
    return folders != nullptr;
}

struct Linked {
    ino_t inode;
    std::uint64_t blocks;
    unsigned links;
    FolderShare* share;
};

/// What the threads that measure one folder have in common.
class Walk {
public:
    Walk(const std::string& top, int descriptor, dev_t device, FolderTask& task,
         const FolderWalkLimits& limits);

    FolderWalkResult run(FolderPointer folder);

    int top() const { return m_descriptor; }
    dev_t device() const { return m_device; }
    FolderTask& task() { return m_task; }
    FolderPieces& pieces() { return m_pieces; }

    /// Starts the other threads, once.
    void getHelp();
    void addUnread(const FoundFolder& folder, const char* name, int error);
    void addLinked(const std::vector<Linked>& files);

private:
    void help();

    const std::string& m_topPath;
    const int m_descriptor;
    const dev_t m_device;
    FolderTask& m_task;
    const unsigned m_threads;
    std::size_t m_openFolders;
    FolderPieces m_pieces;
    std::mutex m_mutex; ///< of the two below
    FolderWalkResult m_result;
    LinkedFiles m_linked;
    std::once_flag m_hasHelp;
    std::vector<std::jthread> m_helpers;
};

/// One thread of a walk.
class Walker {
public:
    Walker(Walk& walk, std::size_t openFolders)
        : m_walk(walk)
        , m_trail(walk.top(), openFolders) {}

    void run(std::vector<FolderPiece> pieces);

private:
    struct Read {
        std::size_t bytes = 0;
        bool isAtEnd = false;
    };

    void readPiece(const FolderPiece& piece);
    Read fillBuffer(const FoundFolder& folder, int descriptor);
    void countEntries(const FolderPointer& folder, int descriptor, std::size_t bytes);
    void count(const FolderPointer& parent, int descriptor, const char* name);
    void add(FolderShare& share, std::uint64_t blocks, std::int64_t modified);
    void passOnSum();

    Walk& m_walk;
    FolderTrail m_trail;
    std::vector<FolderPiece> m_pieces; ///< the last is next
    std::vector<Linked> m_linked;
    FolderShare* m_share = nullptr; ///< to which the two below are to be added
    std::uint64_t m_blocks = 0;
    std::int64_t m_modified = 0;
    std::size_t m_entries = 0;
    std::vector<const dirent64*> m_order; ///< of the buffer's entries
    alignas(dirent64) std::array<char, bufferBytes> m_buffer;
};

void Walker::run(std::vector<FolderPiece> pieces) {
    m_pieces = std::move(pieces);
    m_walk.pieces().join();
    for (;;) {
        if (m_pieces.empty()) {
            auto piece = m_walk.pieces().take();
            if (!piece)
                break;
            m_pieces.push_back(std::move(*piece));
        }
        const FolderPiece piece = std::move(m_pieces.back());
        m_pieces.pop_back();
        readPiece(piece);
    }
    passOnSum();
}

void Walker::readPiece(const FolderPiece& piece) {
    m_walk.task().begin();
    const int descriptor = m_trail.enter(piece.folder, piece.offset);
    if (descriptor < 0)
        return m_walk.addUnread(*piece.folder, nullptr, errno);
    const Read read = fillBuffer(*piece.folder, descriptor);
    if (!read.isAtEnd)
        m_pieces.push_back({piece.folder, m_trail.position()});
    if (!m_pieces.empty() && m_walk.pieces().isWanted())
        m_walk.pieces().passOn(m_pieces);
    countEntries(piece.folder, descriptor, read.bytes);
    if (!m_linked.empty())
        m_walk.addLinked(m_linked);
    m_linked.clear();
    if (m_entries > entriesBeforeHelp)
        m_walk.getHelp();
}

/// Reads on until the buffer has no room for another entry or the folder ends.
Walker::Read Walker::fillBuffer(const FoundFolder& folder, int descriptor) {
    Read read;
    while (m_buffer.size() - read.bytes >= sizeof(dirent64)) {
        char* const start = m_buffer.data() + read.bytes;
        const ssize_t got = getdents64(descriptor, start, m_buffer.size() - read.bytes);
        if (got < 0 && errno != ENOENT) // it was removed meanwhile
            m_walk.addUnread(folder, nullptr, errno);
        if (got <= 0) {
            read.isAtEnd = true;
            break;
        }
        read.bytes += static_cast<std::size_t>(got);
    }
    return read;
}

/// Takes them by their inode, in whose order a disk has what their status is read from.
void Walker::countEntries(const FolderPointer& folder, int descriptor, std::size_t bytes) {
    m_order.clear();
    for (std::size_t at = 0; at < bytes;) {
        const auto* entry = reinterpret_cast<const dirent64*>(m_buffer.data() + at);
        at += entry->d_reclen;
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            m_order.push_back(entry);
    }
    std::ranges::sort(m_order, {}, &dirent64::d_ino);
    for (const dirent64* entry : m_order)
        count(folder, descriptor, entry->d_name);
}

void Walker::count(const FolderPointer& parent, int descriptor, const char* name) {
    struct statx status;
    ++m_entries;
    if (!readStatus(descriptor, name, status))
        return m_walk.addUnread(*parent, name, errno);
    if (deviceOf(status) != m_walk.device())
        return;
    const bool isFolder = S_ISDIR(status.stx_mode);
    const bool isBelowMount = isFolder && (parent->isBelowMount || mayBeMountPoint(status));
    if (isBelowMount && isAmong(parent.get(), status.stx_ino)) // it contains itself
        return;
    FolderShare* const share = m_walk.task().find({*parent, descriptor, name, status});
    if (!share)
        return;
    const bool isLinked = !isFolder && status.stx_nlink > 1;
    if (isLinked)
        m_linked.push_back({status.stx_ino, status.stx_blocks, status.stx_nlink, share});
    add(*share, isLinked ? 0 : status.stx_blocks, status.stx_mtime.tv_sec);
    if (isFolder)
        m_pieces.push_back({std::make_shared<FoundFolder>(
            FoundFolder{parent, name, status.stx_ino, parent->depth + 1, isBelowMount, share})});
}

void Walker::add(FolderShare& share, std::uint64_t blocks, std::int64_t modified) {
    if (m_share != &share) {
        passOnSum();
        m_share = &share;
        m_modified = modified;
    }
    m_blocks += blocks;
    m_modified = std::max(m_modified, modified);
}

void Walker::passOnSum() {
    if (!m_share)
        return;
    m_share->blocks += std::exchange(m_blocks, 0);
    std::int64_t known = m_share->modified;
    while (known < m_modified && !m_share->modified.compare_exchange_weak(known, m_modified)) {
    }
    m_share = nullptr;
}

Walk::Walk(const std::string& top, int descriptor, dev_t device, FolderTask& task,
           const FolderWalkLimits& limits)
    : m_topPath(top)
    , m_descriptor(descriptor)
    , m_device(device)
    , m_task(task)
    , m_threads(limits.threads)
    , m_openFolders(limits.openFolders)
    , m_linked(limits.linkedFiles) {
    constexpr rlim_t others = 16;
    rlimit descriptors{};
    getrlimit(RLIMIT_NOFILE, &descriptors);
    const rlim_t free = std::max(descriptors.rlim_cur, others) - others;
    m_openFolders = std::clamp<std::size_t>(free / 2, 1, limits.openFolders);
}

FolderWalkResult Walk::run(FolderPointer folder) {
    Walker(*this, m_openFolders).run({{std::move(folder)}});
    m_helpers.clear(); // waits for them
    return m_result;
}

void Walk::getHelp() {
    std::call_once(m_hasHelp, [this] {
        try {
            while (m_helpers.size() + 1 < m_threads)
                m_helpers.emplace_back([this] { help(); });
        } catch (const std::system_error&) { // too many threads: it takes longer
        }
    });
}

/// Gives its thread a table of descriptors of its own if it can, which costs the kernel less and has a limit
/// of its own.
void Walk::help() {
    const auto first = static_cast<unsigned>(m_descriptor) + 1;
    const bool isOwnTable = close_range(first, ~0U, CLOSE_RANGE_UNSHARE) == 0;
    const std::size_t openFolders = isOwnTable ? m_openFolders : m_openFolders / m_threads;
    Walker(*this, std::max<std::size_t>(openFolders, 1)).run({});
}

void Walk::addUnread(const FoundFolder& folder, const char* name, int error) {
    const std::lock_guard lock(m_mutex);
    ++m_result.unread;
    m_task.miss({pathOf(m_topPath, &folder, name), error, name == nullptr});
}

void Walk::addLinked(const std::vector<Linked>& files) {
    const std::lock_guard lock(m_mutex);
    for (const Linked& file : files) {
        switch (m_linked.add(file.inode)) {
        case LinkedFiles::Seen::first:
            file.share->blocks += file.blocks;
            break;
        case LinkedFiles::Seen::again:
            break;
        case LinkedFiles::Seen::unknown:
            file.share->blocks += (file.blocks + file.links / 2) / file.links;
            m_result.isEstimate = true;
            break;
        }
    }
}

} // namespace

FolderWalkResult Tools::walkFolder(const std::string& path, int descriptor, FolderShare* share,
                                   FolderTask& task, const FolderWalkLimits& limits) {
    struct statx status;
    if (statx(descriptor, "", AT_EMPTY_PATH, STATX_BASIC_STATS, &status) != 0) {
        task.miss({path, errno, true});
        return {.unread = 1};
    }
    const auto folder = std::make_shared<FoundFolder>(
        FoundFolder{.parent = nullptr, .name = path, .inode = status.stx_ino, .share = share});
    return Walk(path, descriptor, deviceOf(status), task, limits).run(folder);
}

std::string Tools::pathOf(const std::string& top, const FoundFolder* folder, const char* name) {
    std::vector<std::string_view> names;
    if (name)
        names.emplace_back(name);
    for (; folder && folder->parent; folder = folder->parent.get())
        names.emplace_back(folder->name);
    std::string path = top;
    for (; !names.empty(); names.pop_back()) {
        if (!path.empty() && path.back() != '/')
            path += '/';
        path += names.back();
    }
    return path;
}

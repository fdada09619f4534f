#include "Tools/Folder.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <string_view>
#include <utility>

using namespace Tools;

std::optional<Folder> Folder::openAt(int descriptor, const std::string& path, unsigned long long resolve) {
    open_how how{};
    how.flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    how.resolve = resolve | RESOLVE_NO_SYMLINKS;
    const long opened = syscall(SYS_openat2, descriptor, path.c_str(), &how, sizeof how);
    if (opened < 0)
        return std::nullopt;
    Folder folder(static_cast<int>(opened));
    struct stat status {};
    if (fstat(folder.m_descriptor, &status) != 0)
        return std::nullopt;
    folder.m_device = status.st_dev;
    folder.m_inode = status.st_ino;
    return folder;
}

std::optional<Folder> Folder::open(const std::string& path) {
    return openAt(AT_FDCWD, path, 0);
}

std::optional<Folder> Folder::openBelow(const std::string& path) const {
    auto folder = openAt(m_descriptor, path, RESOLVE_BENEATH | RESOLVE_NO_XDEV);
    if (folder && folder->m_device != m_device) { // a subvolume, which `du -x` does not enter either
        errno = EXDEV;
        return std::nullopt;
    }
    return folder;
}

std::optional<Folder> Folder::openParent(dev_t device, ino_t inode) const {
    auto folder = openAt(m_descriptor, "..", RESOLVE_NO_XDEV);
    if (folder && (folder->m_device != device || folder->m_inode != inode)) {
        errno = EXDEV;
        return std::nullopt;
    }
    return folder;
}

Folder::Folder(int descriptor)
    : m_descriptor(descriptor) {}

Folder::Folder(Folder&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_device(other.m_device)
    , m_inode(other.m_inode) {}

Folder& Folder::operator=(Folder&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_device, other.m_device);
    std::swap(m_inode, other.m_inode);
    return *this;
}

Folder::~Folder() {
    if (m_descriptor >= 0)
        close(m_descriptor);
}

std::optional<std::vector<std::string>> Folder::names() const {
    const int own = openat(m_descriptor, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); // with its own position
    DIR* stream = own < 0 ? nullptr : fdopendir(own);
    if (!stream) {
        if (own >= 0)
            close(own);
        return std::nullopt;
    }
    std::vector<std::string> names;
    errno = 0;
    while (const dirent* entry = readdir(stream)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
        errno = 0;
    }
    const int failure = errno;
    closedir(stream);
    errno = failure;
    return failure == 0 ? std::optional(std::move(names)) : std::nullopt;
}

std::optional<struct stat> Folder::status(const std::string& name) const {
    struct stat status {};
    if (fstatat(m_descriptor, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return status;
}

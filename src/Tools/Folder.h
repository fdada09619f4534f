#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Tools {

inline constexpr std::uint64_t blockBytes = 512; ///< the unit of st_blocks, see stat(2)

/// An open folder. Its functions act on that folder even if its path changes. They follow no symlinks and
/// stay on the file system.
class Folder {
public:
    /// Opens an absolute path without symlinks. Returns an empty optional and sets errno on failure.
    static std::optional<Folder> open(const std::string& path);
    /// Opens a relative path without symlinks and mount points, below this folder. Fails as `open` does.
    std::optional<Folder> openBelow(const std::string& path) const;

    /// Opens the folder that this one is in. Fails as `open` does, with EXDEV if that is not the one with
    /// these numbers.
    std::optional<Folder> openParent(dev_t device, ino_t inode) const;

    Folder(Folder&& other) noexcept;
    Folder& operator=(Folder&& other) noexcept;
    ~Folder();

    int descriptor() const { return m_descriptor; }
    dev_t device() const { return m_device; }
    ino_t inode() const { return m_inode; }

    /// Returns its entries without "." and "..", or an empty optional with errno set.
    std::optional<std::vector<std::string>> names() const;
    /// Calls lstat(2) on an entry. Returns an empty optional and sets errno on failure.
    std::optional<struct stat> status(const std::string& name) const;

private:
    static std::optional<Folder> openAt(int descriptor, const std::string& path, unsigned long long resolve);
    explicit Folder(int descriptor);

    int m_descriptor;
    dev_t m_device = 0;
    ino_t m_inode = 0;
};

} // namespace Tools

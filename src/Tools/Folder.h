#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <vector>

namespace Tools {

/// So many folders within each other are gone into, because each holds a descriptor and a piece of the stack.
constexpr int maxFolderDepth = 4000;

/// A folder held by a descriptor. Whatever is done in it is done in that very folder, wherever its name leads
/// to by then. Links are never followed, and no other file system is entered.
class Folder {
public:
    /// The folder at an absolute path no part of which is a link. `errno` tells why there is none.
    static std::optional<Folder> open(const std::string& path);
    /// One below this folder, by a relative path no part of which is a link or a mount.
    std::optional<Folder> openBelow(const std::string& path) const;

    Folder(Folder&& other) noexcept;
    Folder& operator=(Folder&& other) noexcept;
    ~Folder();

    int descriptor() const { return m_descriptor; }
    dev_t device() const { return m_device; }
    ino_t inode() const { return m_inode; }

    /// What is in it, but for "." and "..". Nothing when it cannot be read, see `errno`.
    std::optional<std::vector<std::string>> names() const;
    /// The entry itself, not what it may link to. Nothing when there is no such entry, see `errno`.
    std::optional<struct stat> look(const std::string& name) const;

private:
    static std::optional<Folder> openAt(int descriptor, const std::string& path, unsigned long long resolve);
    explicit Folder(int descriptor);

    int m_descriptor;
    dev_t m_device = 0;
    ino_t m_inode = 0;
};

} // namespace Tools

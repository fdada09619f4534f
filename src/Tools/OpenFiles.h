#pragma once

#include <sys/types.h>

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace Tools {

/// Device and inode of a file.
using FileIdentity = std::pair<dev_t, ino_t>;

/// Returns the regular files and folders that other processes readable by this user have open or mapped, run,
/// or work in. `procFolder` is the mount point of procfs.
std::set<FileIdentity> openFiles(const std::string& procFolder);

/// Writes records "DEVICE:INODE", each with a NUL at the end.
std::string textOf(const std::set<FileIdentity>& files);
/// Returns an empty optional for malformed or incomplete text.
std::optional<std::set<FileIdentity>> parseFiles(std::string_view text);

} // namespace Tools

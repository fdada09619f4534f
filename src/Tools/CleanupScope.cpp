#include "Tools/CleanupScope.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

using namespace Tools;

namespace {

constexpr std::time_t secondsADay = 24 * 60 * 60;
constexpr std::string_view lockEnd = ".lock";

bool isScreenshot(int folder, const char* name) {
    if (!std::string_view(name).starts_with("Screen"))
        return false;
    const int file = openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return false;
    char head[64];
    const ssize_t got = read(file, head, sizeof head);
    close(file);
    return got > 0 && isPicture({head, static_cast<std::size_t>(got)});
}

/// Returns true for the lock of an X server (".X0-lock") or beside a socket ("NAME.lock").
bool isLock(int folder, const std::string& name) {
    if (name.starts_with(".X") && name.ends_with("-lock"))
        return true;
    if (!name.ends_with(lockEnd))
        return false;
    const std::string guarded = name.substr(0, name.size() - lockEnd.size());
    struct stat status {};
    return fstatat(folder, guarded.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISSOCK(status.st_mode);
}

bool isOwn(const struct stat& entry) {
    return geteuid() == 0 || entry.st_uid == geteuid();
}

} // namespace

bool CleanupScope::isOld(const struct stat& entry) const {
    const std::time_t youngest = now - (olderThanDays.value_or(0) + 1) * secondsADay;
    return std::max(entry.st_mtime, entry.st_ctime) <= youngest;
}

bool CleanupScope::takesOldFile(int folder, const char* name, const struct stat& entry) const {
    if (!S_ISREG(entry.st_mode) || !isOld(entry) || keeps(entry))
        return false;
    if (isShared && (!isOwn(entry) || used.contains(entry.st_ino) || isLock(folder, name)))
        return false;
    return !screenshotsOnly || isScreenshot(folder, name);
}

bool Tools::isPicture(std::string_view head) {
    struct Signature {
        std::size_t offset;
        std::string_view bytes;
    };
    using namespace std::string_view_literals;
    static constexpr Signature signatures[] = {
        {0, "\x89PNG\r\n\x1a\n"sv},
        {0, "\xff\xd8\xff"sv}, // JPEG
        {0, "GIF8"sv},
        {8, "WEBP"sv},
        {8, "AVI "sv},
        {0, "II*\0"sv}, // TIFF, either way round
        {0, "MM\0*"sv},
        {0, "qoif"sv},
        {0, "\xff\x0a"sv}, // JPEG XL, bare and boxed
        {4, "JXL \r\n\x87\n"sv},
        {0, "\x1a\x45\xdf\xa3"sv}, // Matroska and WebM
        {28, "\x80theora"sv},
        {0, "\0\0\x01\xba"sv}, // MPEG
    };
    const auto matches = [head](const Signature& signature) {
        return head.size() > signature.offset && head.substr(signature.offset).starts_with(signature.bytes);
    };
    // A bitmap; its reserved bytes are 0, unlike those of a text.
    if (head.starts_with("BM") && head.size() > 10 && head.substr(6, 4) == "\0\0\0\0"sv)
        return true;
    // MP4, QuickTime, HEIF and AVIF; M4A and M4B are music and books.
    if (head.size() >= 12 && head.substr(4, 4) == "ftyp")
        return !head.substr(8).starts_with("M4A") && !head.substr(8).starts_with("M4B");
    return std::ranges::any_of(signatures, matches);
}

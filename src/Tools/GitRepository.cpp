#include "Tools/GitRepository.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

using namespace Tools;

namespace {

constexpr std::size_t maxIndexBytes = 256 << 20;
constexpr std::size_t maxSmallFile = 64 << 10;

enum class Part { whole, end };

/// Returns up to `most` bytes from the end or the beginning of a regular file, and nothing of a larger one
/// that is wanted whole.
std::optional<std::string> contentOf(const std::string& path, std::size_t most, Part part) {
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status {};
    if (file < 0 || fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
        if (file >= 0)
            close(file);
        return std::nullopt;
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    std::optional<std::string> text;
    if (part == Part::end || size <= most) {
        text.emplace(std::min(size, most), '\0');
        const auto start = static_cast<off_t>(size - text->size());
        std::size_t got = 0;
        while (got < text->size()) {
            const ssize_t more =
                pread(file, text->data() + got, text->size() - got, start + static_cast<off_t>(got));
            if (more <= 0)
                break;
            got += static_cast<std::size_t>(more);
        }
        text->resize(got);
    }
    close(file);
    return text;
}

bool exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

/// Returns the folder of the repository's own files, empty when ".git" is neither kind.
std::string dataFolder(const std::string& folder) {
    const std::string git = folder + "/.git";
    struct stat status {};
    if (stat(git.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        return git;
    constexpr std::string_view start = "gitdir: ";
    std::string text = contentOf(git, maxSmallFile, Part::whole).value_or(std::string());
    while (text.ends_with('\n') || text.ends_with('\r'))
        text.pop_back();
    if (!text.starts_with(start))
        return {};
    text.erase(0, start.size());
    return text.starts_with('/') ? text : folder + '/' + text;
}

/// Reads an index from the front; every function leaves `isValid` false at the end of the text.
class IndexReader {
public:
    explicit IndexReader(std::string_view text)
        : m_text(text) {}

    bool isValid = true;

    std::uint32_t number(std::size_t bytes) {
        std::uint32_t value = 0;
        for (const char c : take(bytes))
            value = value << 8 | static_cast<unsigned char>(c);
        return value;
    }
    std::string_view take(std::size_t bytes) {
        isValid = isValid && bytes <= m_text.size() - m_at;
        if (!isValid)
            return {};
        m_at += bytes;
        return m_text.substr(m_at - bytes, bytes);
    }
    /// Takes a text up to a NUL, and the NUL.
    std::string_view takeText() {
        const std::size_t end = m_text.find('\0', m_at);
        const std::string_view text = take(end == std::string_view::npos ? m_text.size() : end - m_at);
        take(1);
        return text;
    }
    /// Takes a number of 7 bits a byte, as the names of version 4 begin with.
    std::size_t takeVarint() {
        std::size_t byte = number(1);
        std::size_t value = byte & 127;
        while (isValid && (byte & 128) != 0) {
            byte = number(1);
            value = ((value + 1) << 7) | (byte & 127);
        }
        return value;
    }
    std::size_t position() const { return m_at; }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

void addFolders(GitIndex& index, std::string_view file) {
    for (std::size_t end = file.rfind('/'); end != std::string_view::npos && end > 0;
         end = file.rfind('/', end - 1)) {
        if (!index.tracked.emplace(file.substr(0, end)).second)
            break; // its parents are there already
    }
}

void addEntry(GitIndex& index, std::uint32_t mode, std::string_view name) {
    constexpr std::uint32_t kinds = 0170000;
    constexpr std::uint32_t repository = 0160000;
    constexpr std::uint32_t folder = 0040000;
    if ((mode & kinds) == folder) {
        while (name.ends_with('/'))
            name.remove_suffix(1);
        index.whole.emplace(name);
    }
    if ((mode & kinds) == folder || (mode & kinds) == repository)
        index.tracked.emplace(name);
    addFolders(index, name);
}

/// Returns whether one of the extensions makes the index incomplete. `text` begins with them.
bool isSplit(std::string_view text, std::size_t hashBytes) {
    constexpr std::size_t head = 8; // name and size
    while (text.size() >= head + hashBytes) {
        IndexReader reader(text);
        if (reader.take(4) == "link")
            return true;
        const std::size_t size = head + reader.number(4);
        if (size > text.size())
            return true;
        text.remove_prefix(size);
    }
    return false;
}

} // namespace

/// The format is that of git's document gitformat-index(5).
std::optional<GitIndex> GitIndex::parse(std::string_view text, std::size_t hashBytes) {
    constexpr std::size_t timesAndIds = 24;
    constexpr std::uint32_t isExtended = 0x4000;
    IndexReader reader(text);
    GitIndex index;
    const bool isIndex = reader.take(4) == "DIRC";
    const std::uint32_t version = reader.number(4);
    const std::uint32_t count = reader.number(4);
    if (!isIndex || version < 2 || version > 4)
        return std::nullopt;
    std::string name;
    for (std::uint32_t i = 0; i < count && reader.isValid; ++i) {
        const std::size_t start = reader.position();
        reader.take(timesAndIds);
        const std::uint32_t mode = reader.number(4);
        reader.take(12 + hashBytes);
        if ((reader.number(2) & isExtended) != 0)
            reader.take(2);
        if (version == 4) {
            const std::size_t dropped = reader.takeVarint();
            if (dropped > name.size())
                return std::nullopt;
            name.resize(name.size() - dropped);
            name += reader.takeText();
        } else {
            name = reader.takeText();
            while (reader.isValid && (reader.position() - start) % 8 != 0)
                reader.take(1);
        }
        addEntry(index, mode, name);
    }
    if (!reader.isValid || isSplit(text.substr(reader.position()), hashBytes))
        return std::nullopt;
    return index;
}

GitRepository::GitRepository(std::string folder)
    : m_folder(std::move(folder))
    , m_data(dataFolder(m_folder)) {}

std::shared_ptr<GitRepository> GitRepository::around(std::string folder) {
    while (!folder.empty()) {
        if (exists(folder + "/.git"))
            return std::make_shared<GitRepository>(folder);
        folder.resize(folder.rfind('/') == std::string::npos ? 0 : folder.rfind('/'));
    }
    return nullptr;
}

void GitRepository::readIndex() {
    m_isRead = true;
    if (m_data.empty())
        return;
    const std::string path = m_data + "/index";
    if (!exists(path)) { // nothing was ever added
        m_index.emplace();
        return;
    }
    std::string common = contentOf(m_data + "/commondir", maxSmallFile, Part::whole).value_or(".");
    while (common.ends_with('\n'))
        common.pop_back();
    const std::string config = (common.starts_with('/') ? common : m_data + '/' + common) + "/config";
    const auto settings = contentOf(config, maxSmallFile, Part::whole);
    const bool isLong = settings && settings->find("sha256") != std::string::npos;
    const auto text = contentOf(path, maxIndexBytes, Part::whole);
    if (text)
        m_index = GitIndex::parse(*text, isLong ? 32 : 20);
}

bool GitRepository::tracks(const std::string& path) {
    if (!m_isRead)
        readIndex();
    if (!m_index || m_index->tracked.contains(path))
        return true;
    for (std::size_t end = path.size(); end != std::string::npos && end > 0; end = path.rfind('/', end - 1)) {
        if (m_index->whole.contains(path.substr(0, end)))
            return true;
    }
    return false;
}

std::int64_t GitRepository::lastMove() const {
    // A line is "OLD NEW NAME <MAIL> SECONDS ZONE", a TAB and the reason.
    std::string text = contentOf(m_data + "/logs/HEAD", 16 << 10, Part::end).value_or(std::string());
    while (text.ends_with('\n'))
        text.pop_back();
    const std::size_t line = text.rfind('\n') == std::string::npos ? 0 : text.rfind('\n') + 1;
    const std::size_t tab = text.find('\t', line);
    const std::size_t mail = text.rfind("> ", tab);
    if (mail == std::string::npos || mail < line)
        return 0;
    return std::strtoll(text.c_str() + mail + 2, nullptr, 10);
}

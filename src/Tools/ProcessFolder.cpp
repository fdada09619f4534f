#include "Tools/ProcessFolder.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <utility>
#include <vector>

using namespace Tools;

namespace {

constexpr std::size_t maxText = 1 << 20;
constexpr std::size_t textAtATime = 4096;

} // namespace

ProcessFolder::ProcessFolder(Folder folder, std::string path)
    : m_folder(std::move(folder))
    , m_path(std::move(path)) {}

void ProcessFolder::forEach(const std::string& procFolder,
                            const std::function<void(const ProcessFolder&)>& use) {
    const auto proc = Folder::open(procFolder);
    const auto names = proc ? proc->names() : std::nullopt;
    const std::string own = std::to_string(getpid());
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        const bool isProcess = std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
        auto folder = isProcess && name != own ? proc->openBelow(name) : std::nullopt;
        if (folder)
            use(ProcessFolder(std::move(*folder), procFolder + '/' + name));
    }
}

void ProcessFolder::forEachLink(const std::function<void(int folder, const char* link)>& use) const {
    const auto descriptors = m_folder.openBelow("fd");
    if (!descriptors) // somebody else's, or a part of the kernel
        return;
    for (const char* link : {"cwd", "exe"})
        use(m_folder.descriptor(), link);
    const auto names = descriptors->names();
    for (const std::string& name : names.value_or(std::vector<std::string>()))
        use(descriptors->descriptor(), name.c_str());
}

/// A line of proc(5), maps, is "address perms offset MAJOR:MINOR INODE path", a line break in the path
/// "\012".
void ProcessFolder::forEachMapped(const std::function<void(const std::string& path)>& use) const {
    std::ifstream maps(m_path + "/maps");
    std::string last;
    for (std::string line; std::getline(maps, line);) {
        const std::size_t path = line.find('/');
        if (path == std::string::npos || line.compare(path, line.npos, last) == 0)
            continue;
        last = line.substr(path);
        use(last);
    }
}

std::string ProcessFolder::text(const char* file) const {
    std::ifstream stream(m_path + '/' + file, std::ios::binary);
    std::string text;
    while (stream && text.size() < maxText) {
        const std::size_t before = text.size();
        text.resize(before + textAtATime);
        stream.read(text.data() + before, textAtATime);
        text.resize(before + static_cast<std::size_t>(stream.gcount()));
    }
    return text;
}

#include "Tools/ProjectLeftovers.h"

#include "Tools/FolderSize.h"
#include "Tools/GitRepository.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <sstream>
#include <string_view>

using namespace Tools;

namespace {

using namespace std::string_view_literals;
using Names = std::vector<std::string>; // sorted

constexpr int maxProjectDepth = 12;

/// A folder that a tool makes.
struct LeftoverRule {
    std::string_view name;
    std::string_view inside;                   ///< an entry that proves it; "*.x" for any that ends with ".x"
    std::vector<std::string_view> beside = {}; ///< files of its maker; without one it needs the proof
    bool needsRepository = false; ///< people use the name too: without the proof, git has to know the project
};

const std::vector<std::string_view> gradleFiles = {"build.gradle", "build.gradle.kts", "settings.gradle",
                                                   "settings.gradle.kts"};

const std::vector<LeftoverRule>& rules() {
    static const std::vector<std::string_view> builders = {
        "CMakeLists.txt", "package.json", "setup.py", "pyproject.toml", "build.gradle", "build.gradle.kts"};
    static const std::vector<LeftoverRule> all = {
        {"node_modules", {}, {"package.json"}},
        {"target", "CACHEDIR.TAG", {"Cargo.toml"}},
        {".venv", "pyvenv.cfg"},
        {"venv", "pyvenv.cfg"},
        {"build", "CMakeCache.txt", builders, true},
        {"dist", {}, builders, true},
        {".next", {}, {"package.json"}},
        {".nuxt", {}, {"package.json"}},
        {".turbo", {}, {"package.json"}},
        {".gradle", {}, gradleFiles},
        {"__pycache__", "*.pyc"},
        {".tox", "CACHEDIR.TAG", {"tox.ini", "setup.cfg", "pyproject.toml"}},
        {"vendor", {}, {"go.mod", "composer.json", "Gemfile"}, true},
    };
    return all;
}

bool contains(const Names& names, std::string_view name) {
    return std::ranges::binary_search(names, name, std::less<>());
}

/// Returns whether one of these makes the folder around them a project.
bool hasMaker(const Names& names) {
    static constexpr std::string_view makers[] = {
        "package.json", "Cargo.toml", "CMakeLists.txt", "setup.py",      "pyproject.toml",  "tox.ini",
        "go.mod",       "Gemfile",    "build.gradle",   "composer.json", "build.gradle.kts"};
    return std::ranges::any_of(makers, [&names](std::string_view maker) { return contains(names, maker); });
}

bool hasInside(const Folder& folder, const std::string& name, std::string_view entry) {
    const auto inner = entry.empty() ? std::nullopt : folder.openBelow(name);
    if (!inner)
        return false;
    if (!entry.starts_with('*'))
        return inner->status(std::string(entry)).has_value();
    const auto names = inner->names();
    return names && std::ranges::any_of(
                        *names, [entry](const std::string& each) { return each.ends_with(entry.substr(1)); });
}

/// Returns whether all bytes are UTF-8 as RFC 3629 defines it.
bool isUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i++]);
        const int more = first < 0x80 ? 0 : first < 0xc2 ? -1 : first < 0xe0 ? 1 : first < 0xf0 ? 2 : 3;
        if (more < 0 || first > 0xf4 || text.size() - i < static_cast<std::size_t>(more))
            return false;
        std::uint32_t code = more == 0 ? first : first & (0x3fU >> more);
        for (int k = 0; k < more; ++k) {
            const auto next = static_cast<unsigned char>(text[i++]);
            if ((next & 0xc0) != 0x80)
                return false;
            code = code << 6 | (next & 0x3f);
        }
        const bool isShort = (more == 2 && code < 0x800) || (more == 3 && code < 0x10000);
        if (isShort || code > 0x10ffff || (code >= 0xd800 && code < 0xe000))
            return false;
    }
    return true;
}

bool isHome(const std::string& path) {
    const char* home = std::getenv("HOME");
    struct stat its {};
    struct stat status {};
    return home && stat(home, &its) == 0 && stat(path.c_str(), &status) == 0 && its.st_dev == status.st_dev &&
           its.st_ino == status.st_ino;
}

/// One walk below a named folder.
class LeftoverSearch {
public:
    LeftoverSearch(const ProcessPaths& processes, const Excludes& excludes,
                   const std::function<void(const LeftoverProject&)>& found,
                   const std::function<void(const std::string&)>& looks)
        : m_processes(processes)
        , m_excludes(excludes)
        , m_found(found)
        , m_looks(looks) {}

    void visit(const Folder& folder, const std::string& path, int depth, LeftoverProject* project,
               std::shared_ptr<GitRepository> repository);

private:
    bool isLeftover(const Folder& folder, const std::string& path, const LeftoverRule& rule,
                    const Names& names, GitRepository* repository) const;
    std::vector<const LeftoverRule*> leftoversIn(const Folder& folder, const std::string& path,
                                                 const Names& names, GitRepository* repository) const;
    void visitEntries(const Folder& folder, const std::string& path, int depth, const Names& names,
                      LeftoverProject* project, const std::shared_ptr<GitRepository>& repository);
    void add(const Folder& folder, const std::string& path, const std::string& name,
             LeftoverProject& project) const;
    void finish(LeftoverProject& project, GitRepository* repository) const;

    const std::time_t m_now = std::time(nullptr); ///< what is written later says nothing
    const ProcessPaths& m_processes;
    const Excludes& m_excludes;
    const std::function<void(const LeftoverProject&)>& m_found;
    const std::function<void(const std::string&)>& m_looks;
};

bool LeftoverSearch::isLeftover(const Folder& folder, const std::string& path, const LeftoverRule& rule,
                                const Names& names, GitRepository* repository) const {
    const std::string name(rule.name);
    const auto entry = folder.status(name);
    if (m_excludes.match(path + '/' + name, name.c_str()))
        return false;
    if (!entry || !S_ISDIR(entry->st_mode) || entry->st_dev != folder.device())
        return false;
    const auto isBeside = [&names](std::string_view maker) { return contains(names, maker); };
    const bool isMade = std::ranges::any_of(rule.beside, isBeside);
    // Whoever keeps a home folder in git has told it little of what is below.
    const bool isKnown = isMade && (!rule.needsRepository || (repository && !isHome(repository->folder())));
    if (!isKnown && !hasInside(folder, name, rule.inside))
        return false;
    return !repository || !repository->tracks((path + '/' + name).substr(repository->folder().size() + 1));
}

std::vector<const LeftoverRule*> LeftoverSearch::leftoversIn(const Folder& folder, const std::string& path,
                                                             const Names& names,
                                                             GitRepository* repository) const {
    std::vector<const LeftoverRule*> found;
    for (const LeftoverRule& rule : rules()) {
        if (contains(names, rule.name) && isLeftover(folder, path, rule, names, repository))
            found.push_back(&rule);
    }
    return found;
}

void LeftoverSearch::visit(const Folder& folder, const std::string& path, int depth, LeftoverProject* project,
                           std::shared_ptr<GitRepository> repository) {
    m_looks(path);
    Names names = folder.names().value_or(Names());
    std::ranges::sort(names);
    const bool isWorkTree = contains(names, ".git"sv) && !isHome(path);
    if (isWorkTree)
        repository = std::make_shared<GitRepository>(path);
    const auto leftovers = leftoversIn(folder, path, names, repository.get());
    LeftoverProject own{.path = path, .users = {}, .listing = {}, .listed = path};
    own.listing.listed = nanosecondsNow();
    const bool isProject = isWorkTree || (!project && (hasMaker(names) || !leftovers.empty()));
    if (isProject)
        project = &own;
    if (isProject && isUtf8(path)) {
        own.listing.device = folder.device();
        own.listing.inode = folder.inode();
    }
    for (const LeftoverRule* rule : leftovers) {
        if (project) // it has one, as leftovers make a project
            add(folder, path, std::string(rule->name), *project);
        std::erase(names, rule->name);
    }
    visitEntries(folder, path, depth, names, project, repository);
    if (isProject && !own.listing.entries.empty())
        finish(own, repository.get());
}

void LeftoverSearch::visitEntries(const Folder& folder, const std::string& path, int depth,
                                  const Names& names, LeftoverProject* project,
                                  const std::shared_ptr<GitRepository>& repository) {
    for (const std::string& name : names) {
        if (name.starts_with('.') || name == "node_modules" || name == "__pycache__" ||
            m_excludes.match(path + '/' + name, name.c_str()))
            continue;
        const auto entry = folder.status(name);
        if (entry && S_ISREG(entry->st_mode) && project && entry->st_mtime <= m_now)
            project->lastUse = std::max<std::int64_t>(project->lastUse, entry->st_mtime);
        if (!entry || !S_ISDIR(entry->st_mode) || depth >= maxProjectDepth)
            continue;
        if (const auto inner = folder.openBelow(name))
            visit(*inner, path + '/' + name, depth + 1, project, repository);
    }
}

void LeftoverSearch::add(const Folder& folder, const std::string& path, const std::string& name,
                         LeftoverProject& project) const {
    const auto entry = folder.status(name);
    const std::string whole = path + '/' + name;
    m_looks(whole);
    const auto size = measureFolder(
        whole, [](const UnreadEntry&) {}, {}, [this, &whole] { m_looks(whole); });
    if (!entry || !size)
        return;
    CleanupListing::Entry listed{.inode = entry->st_ino,
                                 .bytes = size->blocks * blockBytes,
                                 .modified = entry->st_mtime,
                                 .isFolder = true,
                                 .path = whole.substr(project.path.size() + 1)};
    project.listing.bytes += listed.bytes;
    project.listing.entries.push_back(std::move(listed));
}

void LeftoverSearch::finish(LeftoverProject& project, GitRepository* repository) const {
    if (repository)
        project.lastUse = std::max(project.lastUse, repository->lastMove());
    project.users = m_processes.usersOf(project.path);
    while (!isUtf8(project.listed))
        project.listed.resize(project.listed.rfind('/'));
    if (project.listed != project.path) {
        const auto above = Folder::open(project.listed.empty() ? "/" : project.listed);
        if (!above)
            return;
        project.listing.device = above->device();
        project.listing.inode = above->inode();
    }
    const std::string between = project.path.substr(project.listed.size());
    for (CleanupListing::Entry& entry : project.listing.entries) {
        entry.isInUse = !project.users.empty();
        if (!between.empty())
            entry.path = between.substr(1) + '/' + entry.path;
    }
    m_found(project);
}

} // namespace

std::string LeftoverProject::text() const {
    std::ostringstream text;
    text << "project " << lastUse << ' ' << path << '\0';
    for (const std::string& user : users)
        text << "user " << user << '\0';
    text << "folder " << listed << '\0';
    listing.write(text);
    return text.str();
}

void Tools::findLeftovers(const std::vector<std::string>& folders, const ProcessPaths& processes,
                          const Excludes& excludes, const std::function<void(const LeftoverProject&)>& found,
                          const std::function<void(const std::string&)>& looks) {
    std::vector<std::string> done;
    std::vector<std::string> sorted = folders;
    std::ranges::sort(sorted); // a folder comes before those below it
    for (const std::string& path : sorted) {
        const auto isBelow = [&path](const std::string& outer) {
            return path == outer || path.starts_with(outer.ends_with('/') ? outer : outer + '/');
        };
        if (std::ranges::any_of(done, isBelow) || excludes.reach(path, {}))
            continue;
        done.push_back(path);
        if (const auto folder = Folder::open(path))
            LeftoverSearch(processes, excludes, found, looks)
                .visit(*folder, path == "/" ? std::string() : path, 0, nullptr, GitRepository::around(path));
    }
}

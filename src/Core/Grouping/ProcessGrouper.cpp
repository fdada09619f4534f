#include "Core/Grouping/ProcessGrouper.h"

#include "Core/Grouping/KnownPrograms.h"
#include "Core/Grouping/PatternMatcher.h"
#include "Core/Sampling/ProgramPath.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace {

using Patterns = std::initializer_list<const char*>;

// No pattern contains another of its list: "claude" finds "claude-code" too.

constexpr Patterns agentPatterns = {
    "claude",       "codex",          "aider",      "openhands",  "continue",
    "ollama",       "lm studio",      "lmstudio",   "llama.cpp",  "vllm",
    "cursor-agent", "github copilot", "mcp-server", "mcp_server", "modelcontextprotocol"};

/// Runtimes that may run an MCP server, and the marks of one in their arguments.
constexpr Patterns scriptRuntimes = {"node", "npx", "uv", "python"};
constexpr Patterns mcpMarkers = {"modelcontextprotocol", "mcp-server", "mcp_server", "-mcp"};

constexpr Patterns idePatterns = {
    "code",    "cursor",   "xcode",        "sourcekit",      "swift-frontend", "idea",      "intellij",
    "pycharm", "webstorm", "rubymine",     "goland",         "phpstorm",       "rustrover", "datagrip",
    "fleet",   "zed",      "sublime text", "sublime_text",   "atom",           "nova",      "vim",
    "neovim",  "nvim",     "emacs",        "android studio", "windsurf",       "trae"};

constexpr Patterns terminalPatterns = {"iterm", "terminal", "warp",    "ghostty", "alacritty", "kitty",
                                       "hyper", "tabby",    "wezterm", "tmux",    "screen"};
constexpr std::array<QStringView, 5> shellNames = {u"bash", u"zsh", u"fish", u"sh", u"dash"};

constexpr Patterns browserPatterns = {"chrome", "chromium", "safari", "firefox", "nightly", "arc",
                                      "brave",  "edge",     "opera",  "vivaldi", "orion",   "dia"};

constexpr Patterns containerPatterns = {"docker", "orbstack", "colima",     "podman", "qemu",
                                        "lima",   "rancher",  "containerd", "runc"};

enum GroupFact : PatternMatcher::Facts {
    agent = 1 << 0,
    scriptRuntime = 1 << 1,
    mcpMarker = 1 << 2,
    ide = 1 << 3,
    ideFolder = 1 << 4, ///< a file or folder whose name begins with an IDE pattern
    terminal = 1 << 5,
    browser = 1 << 6,
    container = 1 << 7,
};

void append(QList<PatternMatcher::Pattern>& list, Patterns patterns, GroupFact fact,
            const char* prefix = "") {
    for (const char* pattern : patterns)
        list.append({QByteArray(prefix) + pattern, fact});
}

const PatternMatcher& matcher() {
    static const PatternMatcher instance = [] {
        QList<PatternMatcher::Pattern> all;
        append(all, agentPatterns, agent);
        append(all, scriptRuntimes, scriptRuntime);
        append(all, mcpMarkers, mcpMarker);
        append(all, idePatterns, ide);
        append(all, idePatterns, ideFolder, "/");
        append(all, terminalPatterns, terminal);
        append(all, browserPatterns, browser);
        append(all, containerPatterns, container);
        return PatternMatcher(all);
    }();
    return instance;
}

using Facts = PatternMatcher::Facts;

/// The group that a set of facts indicates.
struct Test {
    Facts facts;
    ProcGroup group;
};
constexpr std::array tests = {Test{agent, ProcGroup::agents}, Test{ide | ideFolder, ProcGroup::ides},
                              Test{terminal, ProcGroup::terminals}, Test{browser, ProcGroup::browsers},
                              Test{container, ProcGroup::containers}};

/// Removes the facts of a group that `name` only sounds like.
Facts withoutFalseFriends(Facts found, QStringView name) {
    for (const Test& test : tests) {
        if (found & test.facts && KnownPrograms::onlySoundsLike(test.group, name))
            found &= static_cast<Facts>(~test.facts);
    }
    return found;
}

Facts factsOfName(QStringView name) {
    return withoutFalseFriends(matcher().search(name), name);
}

/// Searches a path folder by folder, because each may be a false friend. The user's home folder and the one
/// of the architecture are left out.
Facts factsOfPath(const QString& path) {
    const QStringView rest = ProgramPath::withoutPrefix(path);
    QStringView ownFolder; // directly in the home folder
    if (rest.size() < path.size() && !path.startsWith(u"/usr/lib/"))
        ownFolder = rest.first(std::max(rest.indexOf(u'/', 1), qsizetype(0)));
    Facts found = 0;
    for (qsizetype start = 0; start < rest.size();) {
        qsizetype end = rest.indexOf(u'/', start + 1);
        end = end < 0 ? rest.size() : end;
        const QStringView folder = rest.sliced(start, end - start); // with the slash before it
        Facts here = withoutFalseFriends(matcher().search(folder), ProgramPath::lastComponent(folder));
        if (start == 0 && here && !ownFolder.isEmpty())
            here = withoutFalseFriends(here, QString(u'~').append(ownFolder));
        found |= here;
        start = end;
    }
    return found;
}

/// Searches the arguments word by word. The patterns for them contain no space.
Facts factsOfArguments(const QString& arguments) {
    Facts found = 0;
    for (const QStringView word : QStringView(arguments).tokenize(u' '))
        found |= factsOfName(word);
    return found;
}

bool isShell(const QString& name) {
    return std::any_of(shellNames.begin(), shellNames.end(),
                       [&name](QStringView shell) { return name.compare(shell, Qt::CaseInsensitive) == 0; });
}

/// Returns whether an argument contains the mark of a server, outside the user's home folder.
bool namesServer(const QString& arguments) {
    for (const QStringView word : QStringView(arguments).tokenize(u' ')) {
        if (matcher().search(ProgramPath::withoutPrefix(word)) & mcpMarker)
            return true;
    }
    return false;
}

ProcGroup groupByRules(const ProcSample& process) {
    const Facts name = factsOfName(process.name);
    const Facts path = factsOfPath(process.executablePath);
    const Facts either = name | path;
    if (either & agent || (name & scriptRuntime && namesServer(process.arguments)))
        return ProcGroup::agents;
    if (name & ide || path & ideFolder)
        return ProcGroup::ides;
    if (either & terminal || isShell(process.name))
        return ProcGroup::terminals;
    if (either & browser)
        return ProcGroup::browsers;
    return (either | factsOfArguments(process.arguments)) & container ? ProcGroup::containers
                                                                      : ProcGroup::other;
}

/// Returns whether only its folder tells a script of that name from others.
bool isCommonScriptName(QStringView name) {
    constexpr std::array<QStringView, 11> names = {u"__main__", u"app",    u"cli",    u"dist",
                                                   u"index",    u"main",   u"manage", u"run",
                                                   u"serve",    u"server", u"start"};
    return std::ranges::find(names, name) != names.end();
}

/// Returns the name of the executable, or of its process where the file name is only a version.
QString executableKey(const ProcSample& process) {
    const QStringView file = ProgramPath::lastComponent(process.executablePath);
    const bool isNamed = std::ranges::any_of(file, [](QChar each) { return each.isLetter(); });
    return isNamed ? file.toString() : process.name;
}

} // namespace

QString ProcessGrouper::programKey(const ProcSample& process) {
    if (process.program.isEmpty() || process.program == process.executablePath)
        return executableKey(process);
    const QStringView package = ProgramPath::packageName(process.program);
    if (!package.isEmpty())
        return package.toString();
    const QStringView script = ProgramPath::scriptName(process.program);
    return isCommonScriptName(script) ? process.program : script.toString();
}

ProcGroup ProcessGrouper::groupOf(const ProcSample& process) const {
    if (!m_choices.isEmpty()) {
        const auto chosen = m_choices.constFind(programKey(process));
        if (chosen != m_choices.constEnd())
            return *chosen;
    }
    const ProcGroup found = groupByRules(process);
    const KnownPrograms::Program* known = found == ProcGroup::other ? KnownPrograms::of(process) : nullptr;
    return known ? known->group : found;
}

#include "Core/ProcessGrouper.h"

#include "Core/PatternMatcher.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace {

using Patterns = std::initializer_list<const char*>;

constexpr Patterns agentPatterns = {"claude",
                                    "claude-code",
                                    "claude.app",
                                    "codex",
                                    "aider",
                                    "openhands",
                                    "continue",
                                    "ollama",
                                    "lm studio",
                                    "lmstudio",
                                    "llama.cpp",
                                    "vllm",
                                    "cursor-agent",
                                    "github copilot",
                                    "mcp-server",
                                    "mcp_server",
                                    "modelcontextprotocol",
                                    "@modelcontextprotocol"};

/// Runtimes that may host an MCP server, and what tells one in their arguments.
constexpr Patterns scriptRuntimes = {"node", "npx", "uvx", "uv", "python"};
constexpr Patterns mcpMarkers = {"modelcontextprotocol", "mcp-server", "mcp_server", "-mcp"};

constexpr Patterns idePatterns = {
    "code",      "code helper",    "cursor",       "cursor helper",  "xcode",    "xcodebuild",
    "sourcekit", "swift-frontend", "idea",         "intellij",       "pycharm",  "webstorm",
    "rubymine",  "goland",         "phpstorm",     "rustrover",      "datagrip", "fleet",
    "zed",       "sublime text",   "sublime_text", "atom",           "nova",     "vim",
    "neovim",    "nvim",           "emacs",        "android studio", "windsurf", "trae"};

constexpr Patterns terminalPatterns = {"iterm", "iterm2", "terminal", "warp",    "ghostty", "alacritty",
                                       "kitty", "hyper",  "tabby",    "wezterm", "tmux",    "screen"};
constexpr std::array<QStringView, 5> shellNames = {u"bash", u"zsh", u"fish", u"sh", u"dash"};

constexpr Patterns browserPatterns = {
    "chrome",  "google chrome",  "chromium", "safari",  "safari technology preview",
    "firefox", "nightly",        "arc",      "brave",   "brave browser",
    "edge",    "microsoft edge", "opera",    "vivaldi", "orion",
    "dia"};

constexpr Patterns containerPatterns = {"docker", "com.docker", "orbstack", "colima",     "podman",
                                        "qemu",   "lima",       "rancher",  "containerd", "runc"};

enum Fact : PatternMatcher::Facts {
    agent = 1 << 0,
    scriptRuntime = 1 << 1,
    mcpMarker = 1 << 2,
    ide = 1 << 3,
    ideFolder = 1 << 4, ///< a file or folder whose name begins with an IDE pattern
    terminal = 1 << 5,
    browser = 1 << 6,
    container = 1 << 7,
};

void append(QList<PatternMatcher::Pattern>& list, Patterns patterns, Fact fact, const char* prefix = "") {
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

bool isShell(const QString& name) {
    return std::any_of(shellNames.begin(), shellNames.end(),
                       [&name](QStringView shell) { return name.compare(shell, Qt::CaseInsensitive) == 0; });
}

} // namespace

QList<ProcSample> ProcessGrouper::classify(QList<ProcSample> processes) const {
    for (ProcSample& process : processes)
        process.group = groupFor(process);
    return processes;
}

ProcGroup ProcessGrouper::groupFor(const ProcSample& process) const {
    const PatternMatcher& patterns = matcher();
    const auto name = patterns.search(process.name);
    const auto path = patterns.search(process.executablePath);
    const auto either = name | path;
    if (either & agent)
        return ProcGroup::agents;
    // The arguments are by far the longest text: they are searched only where they can still decide.
    const bool mayHostMcp = name & scriptRuntime;
    const auto arguments = mayHostMcp ? patterns.search(process.arguments) : PatternMatcher::Facts(0);
    if (arguments & mcpMarker)
        return ProcGroup::agents;
    if (name & ide || path & ideFolder)
        return ProcGroup::ides;
    if (either & terminal || isShell(process.name))
        return ProcGroup::terminals;
    if (either & browser)
        return ProcGroup::browsers;
    const auto rest = mayHostMcp ? arguments : patterns.search(process.arguments);
    return (either | rest) & container ? ProcGroup::containers : ProcGroup::other;
}

QList<GroupRollup> GroupRollup::build(const QList<ProcSample>& processes) {
    QList<GroupRollup> rollups;
    for (const ProcGroup group : allCases<ProcGroup>())
        rollups.append({.group = group});
    for (const ProcSample& process : processes) {
        GroupRollup& rollup = rollups[static_cast<qsizetype>(process.group)];
        rollup.rssBytes += process.rssBytes;
        rollup.cpuPercent += process.cpuPercent;
        ++rollup.count;
    }
    return rollups;
}

#include "Core/MCPInspector.h"
#include "Core/Models.h"
#include "Core/ProcessGrouper.h"
#include "Core/QuickKillPreset.h"
#include "support/Each.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// What the program knows by heart, written out a second time: a letter that changes by accident shows here.

namespace {

using Texts = std::initializer_list<const char*>;

template <typename E> void expectRawValues(const QString& expected) {
    QStringList raws;
    for (const E value : allCases<E>()) {
        raws.append(rawValue(value));
        EXPECT_EQ(fromRawValue<E>(raws.last()), value);
        EXPECT_FALSE(fromRawValue<E>(raws.last().toUpper() + u'x').has_value());
    }
    EXPECT_FALSE(fromRawValue<E>(u"").has_value());
    EXPECT_EQ(raws.join(u'|'), expected);
}

ProcGroup groupOf(const QString& name, const QString& path = {}, const QString& arguments = {}) {
    return ProcessGrouper()
        .classify({{.name = name, .executablePath = path, .arguments = arguments}})[0]
        .group;
}

bool isServer(const QString& name) {
    return !MCPInspector::detectLive({{.pid = 2, .parentPid = 1, .name = name}}).isEmpty();
}

} // namespace

TEST(FixedLists, RawValuesLabelsAndSymbols) {
    expectRawValues<ThermalState>(u"nominal|fair|serious|critical"_s);
    expectRawValues<ProcGroup>(u"Claude Code & Agents|IDEs|Terminals|Browsers|Docker & Containers|Other"_s);
    expectRawValues<Alert::Severity>(u"info|warn|danger"_s);
    expectRawValues<ActionLogEntry::Kind>(u"quit|forceKill|clean"_s);
    EXPECT_EQ(each(allCases<ThermalState>(), thermalLabel).join(u'|'), u"Cool|Warm|Hot|Critical"_s);
    EXPECT_EQ(
        each(allCases<ProcGroup>(), groupSymbol).join(u'|'),
        u"sparkles|chevron.left.forwardslash.chevron.right|terminal|globe|shippingbox|square.grid.2x2"_s);
    EXPECT_EQ(each(allCases<Alert::Severity>(), severitySymbol).join(u'|'),
              u"info.circle.fill|exclamationmark.triangle.fill|exclamationmark.octagon.fill"_s);
}

TEST(FixedLists, CleanupTargets) {
    const char* expected =
        R"(npm / pnpm / yarn|shippingbox|~/.npm,~/.pnpm-store,~/Library/Caches/Yarn,~/.yarn/cache|
Python (uv / pip)|leaf|~/Library/Caches/uv,~/Library/Caches/pip,~/.cache/uv,~/.cache/pip|
Cargo / Go / Swift|hammer|~/.cargo/registry/cache,~/Library/Caches/org.swift.swiftpm,~/go/pkg/mod/cache|
Xcode DerivedData|wrench|~/Library/Developer/Xcode/DerivedData,~/Library/Developer/CoreSimulator/Caches|
Homebrew|mug|~/Library/Caches/Homebrew|brew cleanup -s
Claude Code plugin cache|puzzlepiece.extension|~/.claude/plugins/cache,~/.claude/projects/-Users-orlin/memory/.cache|
npx cache|shippingbox|~/.npm/_npx|
Playwright browsers|globe.americas|~/Library/Caches/ms-playwright|
User caches|tray|~/Library/Caches|
User logs|scroll|~/Library/Logs|
Trash|trash|~/.Trash|
Old /tmp (>7d)|clock|/tmp|
Old Downloads (>30d)|arrow.down.circle|~/Downloads|
Old Desktop screenshots (>30d)|camera.viewfinder|~/Desktop|
Docker|shippingbox.fill||docker system prune -af --volumes)";
    const auto rows = each(CacheTarget::defaults().first(15), [](const CacheTarget& target) {
        return QStringList{target.name, target.symbol, target.paths.join(u','),
                           target.pruneCommand.value_or(u""_s)}
            .join(u'|');
    });
    EXPECT_EQ(rows.join(u'\n').toStdString(), expected);
}

TEST(FixedLists, Presets) {
    const char* expected = R"(Chrome helpers|Google Chrome Helper|0|0|force|globe
Cursor helpers|Cursor Helper|0|0||chevron.left.forwardslash.chevron.right
VSCode helpers|Code Helper|0|0||chevron.left.forwardslash.chevron.right
Idle agents (>15m, >500MB)|claude|15|500||sparkles
Idle Ollama (>10m)|ollama|10|0|force|circle.hexagongrid
Idle Docker (>30m, >200MB)|Docker|30|200|force|shippingbox)";
    const auto row = [](const QuickKillPreset& preset) {
        return QStringList{preset.name,
                           preset.pattern,
                           QString::number(preset.minIdleMinutes),
                           QString::number(preset.minRSSMB),
                           preset.force ? u"force"_s : QString(),
                           preset.symbol}
            .join(u'|');
    };
    EXPECT_EQ(each(QuickKillPreset::defaults(), row).join(u'\n').toStdString(), expected);
    EXPECT_EQ(row(QuickKillPreset::blank()), u"||0|0||xmark.circle"_s);
}

TEST(FixedLists, GroupPatterns) {
    using enum ProcGroup;
    const std::pair<ProcGroup, Texts> lists[] = {
        {agents,
         {"claude", "claude-code", "claude.app", "codex", "aider", "openhands", "continue", "ollama",
          "lm studio", "lmstudio", "llama.cpp", "vllm", "cursor-agent", "mcp-server", "github copilot",
          "mcp_server", "modelcontextprotocol", "@modelcontextprotocol"}},
        {ides, {"code",      "code helper",    "cursor",       "cursor helper",  "xcode",    "xcodebuild",
                "sourcekit", "swift-frontend", "idea",         "intellij",       "pycharm",  "webstorm",
                "rubymine",  "goland",         "phpstorm",     "rustrover",      "datagrip", "fleet",
                "zed",       "sublime text",   "sublime_text", "atom",           "nova",     "vim",
                "neovim",    "nvim",           "emacs",        "android studio", "windsurf", "trae"}},
        {terminals,
         {"iterm", "iterm2", "terminal", "warp", "ghostty", "alacritty", "kitty", "hyper", "tabby", "wezterm",
          "tmux", "screen"}},
        {browsers,
         {"chrome", "google chrome", "chromium", "safari", "safari technology preview", "firefox", "nightly",
          "arc", "brave", "brave browser", "edge", "microsoft edge", "opera", "vivaldi", "orion", "dia"}},
        {containers,
         {"docker", "com.docker", "orbstack", "colima", "podman", "qemu", "lima", "rancher", "containerd",
          "runc"}}};
    for (const auto& [group, patterns] : lists) {
        for (const char* pattern : patterns) {
            const QString text = QString::fromLatin1(pattern);
            EXPECT_EQ(groupOf(u"x9-%1-9y"_s.arg(text)), group) << pattern;
            EXPECT_EQ(groupOf(u"q9"_s, u"/opt/%1_9/q9"_s.arg(text.toUpper())), group) << pattern;
            const bool inArguments = group == containers;
            EXPECT_EQ(groupOf(u"q9"_s, {}, u"--for=%1"_s.arg(text)), inArguments ? containers : other)
                << pattern;
        }
    }
    EXPECT_EQ(groupOf(u"q9"_s, u"/opt/x9-pycharm/q9"_s), other) << "no folder that begins so";
    for (const char* shell : {"bash", "zsh", "fish", "sh", "dash"})
        EXPECT_EQ(groupOf(QString::fromLatin1(shell)), terminals) << shell;
    for (const char* runtime : {"node", "npx", "uvx", "uv", "python"}) {
        for (const char* marker : {"modelcontextprotocol", "mcp-server", "mcp_server", "x-mcp"}) {
            const QString arguments = u"/srv/9%1"_s.arg(QLatin1String(marker));
            EXPECT_EQ(groupOf(QLatin1String(runtime), {}, arguments), agents) << runtime << marker;
            EXPECT_EQ(groupOf(u"q9"_s, {}, arguments), other) << marker;
        }
    }
}

TEST(FixedLists, ServerNames) {
    for (const char* mark :
         {"modelcontextprotocol", "mcp-server", "mcp_server", "@modelcontextprotocol", "stitch",
          "composio-social", "hostinger-mcp", "memory-server", "filesystem-server", "puppeteer-mcp",
          "playwright-mcp", "supabase-mcp", "context7"})
        EXPECT_TRUE(isServer(u"9%19"_s.arg(QLatin1String(mark)))) << mark; // where "-mcp" ends no word
    EXPECT_TRUE(isServer(u"x9-mcp"_s));
    EXPECT_FALSE(isServer(u"x9-mcp9"_s));
}

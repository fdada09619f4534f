#include "Core/ActionLog/ActionLogEntry.h"
#include "Core/Alerts/Alert.h"
#include "Core/Announcements/MessageFeed.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Grouping/ProcessGrouper.h"
#include "Core/Mcp/MCPInspector.h"
#include "Core/Relief/FreeRAM.h"
#include "Core/Relief/QuickKillPreset.h"
#include "Core/Sampling/SystemSample.h"
#include "support/Each.h"
#include "support/Files.h"
#include "support/TemporarySettings.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

// The fixed lists of the program a second time, so that a letter that changes by accident shows.

namespace {

using Texts = QList<const char*>;

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
    return ProcessGrouper().groupOf({.name = name, .executablePath = path, .arguments = arguments});
}

/// Returns the text, and the text without its last and without its first letter. A pattern that lost a letter
/// finds one of these too.
QStringList withShorter(const char* text) {
    const QString whole = QString::fromLatin1(text);
    return {whole, whole.chopped(1), whole.sliced(1)};
}

bool containsOne(const QString& text, const Texts& patterns) {
    return std::ranges::any_of(
        patterns, [&text](const char* pattern) { return text.contains(QLatin1String(pattern)); });
}

bool beginsWithOne(const QString& text, const Texts& patterns) {
    return std::ranges::any_of(
        patterns, [&text](const char* pattern) { return text.startsWith(QLatin1String(pattern)); });
}

bool isServer(const QString& name) {
    return !MCPInspector::detectLive({{.pid = 2, .parentPid = 1, .name = name}}).isEmpty();
}

} // namespace

TEST(FixedLists, RawValuesLabelsAndSymbols) {
    expectRawValues<ThermalState>(u"nominal|fair|serious|critical"_s);
    expectRawValues<ProcGroup>(u"Claude Code & Agents|IDEs|Terminals|Browsers|Docker & Containers|Other"_s);
    expectRawValues<Alert::Severity>(u"info|warn|danger"_s);
    expectRawValues<ActionLogEntry::Kind>(u"quit|forceKill|clean|kernel"_s);
    expectRawValues<KillOutcome>(u"quit|forced|ignored|denied"_s);
    expectRawValues<Message::Target>(u"all|linux|macos|windows"_s);
    expectRawValues<Message::Severity>(u"info|warn|update|upgrade"_s);
    expectRawValues<MenuBarFormat>(u"CPU% \u2022 RAM%|CPU%|RAM%|Icon only"_s);
    expectRawValues<HistoryRetention>(u"5 min|25 min|1 hour"_s);
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
    // Names and folders contain a pattern anywhere, but a folder begins with the pattern of an IDE.
    const auto expected = [&lists](const QString& text, bool isFolder) {
        for (const auto& [group, patterns] : lists) {
            if (isFolder && group == ides ? beginsWithOne(text, patterns) : containsOne(text, patterns))
                return group;
        }
        return other;
    };
    for (const auto& [group, patterns] : lists) {
        for (const char* pattern : patterns) {
            for (const QString& part : withShorter(pattern)) {
                const QString name = u"x9-%1-9y"_s.arg(part);
                EXPECT_EQ(groupOf(name), expected(name, false)) << qPrintable(name);
                const QString folder = part + u"_9"_s;
                EXPECT_EQ(groupOf(u"q9"_s, u"/opt/%1/q9"_s.arg(folder.toUpper())), expected(folder, true))
                    << qPrintable(folder);
                const QString argument = u"--for="_s + part;
                EXPECT_EQ(groupOf(u"q9"_s, {}, argument) == containers,
                          containsOne(argument, lists[4].second))
                    << qPrintable(argument);
            }
        }
    }
    EXPECT_EQ(groupOf(u"q9"_s, u"/opt/x9-pycharm/q9"_s), other) << "the folder only contains the pattern";
    for (const char* shell : {"bash", "zsh", "fish", "sh", "dash"})
        EXPECT_EQ(groupOf(QString::fromLatin1(shell)), terminals) << shell;
}

TEST(FixedLists, RuntimesAndTheMarksOfServersInTheirArguments) {
    const Texts runtimes = {"node", "npx", "uvx", "uv", "python"};
    const Texts markers = {"modelcontextprotocol", "mcp-server", "mcp_server", "-mcp"};
    for (const char* runtime : runtimes) {
        for (const QString& part : withShorter(runtime)) {
            const QString name = u"x9-%1-9y"_s.arg(part);
            EXPECT_EQ(groupOf(name, {}, u"/srv/9mcp-server"_s) == ProcGroup::agents,
                      containsOne(name, runtimes))
                << qPrintable(name);
        }
    }
    for (const char* marker : markers) {
        for (const QString& part : withShorter(marker)) {
            const QString script = u"/srv/9"_s + part;
            EXPECT_EQ(groupOf(u"node"_s, {}, script) == ProcGroup::agents, containsOne(script, markers))
                << qPrintable(script);
            EXPECT_EQ(groupOf(u"q9"_s, {}, script), ProcGroup::other) << qPrintable(script);
        }
    }
}

TEST(FixedLists, ServerNames) {
    const Texts marks = {
        "modelcontextprotocol", "mcp-server",    "mcp_server",    "@modelcontextprotocol", "stitch",
        "composio-social",      "hostinger-mcp", "memory-server", "filesystem-server",     "puppeteer-mcp",
        "playwright-mcp",       "supabase-mcp",  "context7"};
    for (const char* mark : marks) {
        for (const QString& part : withShorter(mark)) {
            const QString name = u'9' + part + u'9'; // where "-mcp" ends no word
            EXPECT_EQ(isServer(name), containsOne(name, marks)) << qPrintable(name);
        }
    }
    EXPECT_TRUE(isServer(u"x9-mcp"_s));
    EXPECT_FALSE(isServer(u"x9-mcp9"_s));
}

TEST(FixedLists, SettingsAndTheirDefaults) {
    // Switches are inverted, numbers one higher.
    const char* expected = R"([General]
pref.alertBrowserHog_enabled=false
pref.alertBrowserHog_percentTotal=26
pref.alertCPUHot_enabled=false
pref.alertCPUHot_percent=86
pref.alertCachesBig_enabled=false
pref.alertCachesBig_gb=6
pref.alertIdleAgent_enabled=false
pref.alertIdleAgent_minIdleMin=16
pref.alertIdleAgent_minRSSMB=501
pref.alertRAMLow_enabled=false
pref.alertRAMLow_freeGB=3
pref.alertThermal_enabled=false
pref.historyRetention=25 min
pref.menuBarFormat=CPU% • RAM%
pref.pauseOnLowPower=true
pref.pollIntervalSeconds=3
pref.programGroupsJSON=@ByteArray(g)
pref.quickKillPresetsJSON=@ByteArray(q)
pref.showInDock=false
pref.showWidgetOnLaunch=true
pref.startAtLogin=false)";
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    for (Property<bool>* each :
         {&prefs.startAtLogin, &prefs.showWidgetOnLaunch, &prefs.showInDock, &prefs.pauseOnLowPower,
          &prefs.alertRAMLowEnabled, &prefs.alertCPUHotEnabled, &prefs.alertThermalEnabled,
          &prefs.alertIdleAgentEnabled, &prefs.alertBrowserHogEnabled, &prefs.alertCachesBigEnabled})
        each->set(!(*each)());
    for (Property<double>* each :
         {&prefs.pollIntervalSeconds, &prefs.alertRAMLowFreeGB, &prefs.alertCPUHotPercent,
          &prefs.alertIdleAgentMinIdleMin, &prefs.alertIdleAgentMinRSSMB, &prefs.alertBrowserHogPercentTotal,
          &prefs.alertCachesBigGB})
        each->set((*each)() + 1);
    prefs.menuBarFormat.set(prefs.menuBarFormat());
    prefs.historyRetention.set(prefs.historyRetention());
    prefs.quickKillPresetsJSON.set("q");
    prefs.programGroupsJSON.set("g");
    QList<QByteArray> lines = contentOf(settings.path).trimmed().split('\n');
    std::ranges::sort(lines);
    EXPECT_EQ(lines.join('\n').toStdString(), expected);
}

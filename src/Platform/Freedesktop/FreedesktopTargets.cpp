#include "Platform/Freedesktop/FreedesktopTargets.h"

#include "Platform/Freedesktop/OllamaModels.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Marks : unsigned { none = 0, notInCleanAll = 1, data = 3, shared = 4 };

struct KnownTarget {
    const char* name;
    const char16_t* symbol;
    const char* reason;
    /// One path a line. "{a,b}" stands for a line with each; "*" and "?" as in Places.
    const char16_t* paths;
    unsigned marks = none;
    int olderThanDays = 0;
};

constexpr KnownTarget builders[] = {
    {"Gradle", u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Gradle fetches its packages and its own versions again."),
     u"$GRADLE_USER_HOME/{caches,wrapper/dists}"},
    {QT_TRANSLATE_NOOP("Translations", "Gradle logs (>7d)"), u"scroll",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Old logs of Gradle's background processes. Gradle writes new ones."),
     u"$GRADLE_USER_HOME/daemon/*", none, 7},
    {"Maven", u"hammer",
     QT_TRANSLATE_NOOP(
         "FreedesktopTargets",
         "Maven fetches packages again. Those that were only installed here must be built again."),
     u"~/.m2/repository", notInCleanAll},
    {"Ivy / Coursier", u"hammer", QT_TRANSLATE_NOOP("FreedesktopTargets", "Both fetch their packages again."),
     u"~/.ivy2/cache\n$XDG_CACHE_HOME/coursier/v1"},
    {QT_TRANSLATE_NOOP("Translations", "Cargo sources and checkouts"), u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Cargo unpacks sources again, and fetches repositories again."),
     u"$CARGO_HOME/{registry/src,git/db,git/checkouts}"},
    {QT_TRANSLATE_NOOP("Translations", "Go build cache"), u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Go compiles packages again."), u"$XDG_CACHE_HOME/go-build"},
    {QT_TRANSLATE_NOOP("Translations", "Rust toolchains"), u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Toolchains that are not the default. A project may still name one: rustup fetches it "
                       "again, but not one of your own."),
     u"$RUSTUP_HOME/toolchains", data},
    {"Bun / Deno", u"shippingbox",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Both fetch their packages again."),
     u"$BUN_INSTALL/install/cache\n$DENO_DIR/{npm,remote,deps,gen,registries}"},
    {"Yarn Berry / Corepack", u"shippingbox",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Yarn and Corepack fetch it again."),
     u"~/.yarn/berry/{cache,metadata}\n$COREPACK_HOME/v1"},
    {QT_TRANSLATE_NOOP("Translations", "Conda packages"), u"leaf",
     QT_TRANSLATE_NOOP(
         "FreedesktopTargets",
         "Conda fetches packages again. Environments keep theirs, unless they are set to link to "
         "this folder."),
     u"{~/miniconda3,~/anaconda3,~/miniforge3,~/mambaforge,~/.conda}/pkgs", notInCleanAll},
    {"Poetry", u"leaf",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Poetry fetches its packages again. Environments stay."),
     u"$XDG_CACHE_HOME/pypoetry/{cache,artifacts}"},
    {"pre-commit", u"leaf", QT_TRANSLATE_NOOP("FreedesktopTargets", "pre-commit installs its hooks again."),
     u"$XDG_CACHE_HOME/pre-commit"},
    {"ccache / sccache", u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Compiled objects. The next builds take longer and fill it again."),
     u"$CCACHE_DIR/?\n~/.ccache/?\n$SCCACHE_DIR/{?,preprocessor}"},
    {"Bazel", u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Files that Bazel has fetched. It fetches them again."),
     u"$XDG_CACHE_HOME/bazel/*/cache"},
    {"Conan", u"hammer",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Conan fetches or builds packages again. Recipes that are only here are gone."),
     u"$CONAN_HOME/p\n~/.conan/data", data},
    {"vcpkg", u"hammer", QT_TRANSLATE_NOOP("FreedesktopTargets", "vcpkg builds its packages again."),
     u"$XDG_CACHE_HOME/vcpkg/archives"},
};

constexpr KnownTarget desktop[] = {
    {QT_TRANSLATE_NOOP("Translations", "Editor caches"), u"chevron.left.forwardslash.chevron.right",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Editors make them again. Settings, open work and history stay."),
     u"$XDG_CONFIG_HOME/{Code,Code - OSS,VSCodium,Cursor,Windsurf}/{CachedData,CachedExtensionVSIXs,Cache,"
     "Code Cache,GPUCache,DawnCache,DawnGraphiteCache,DawnWebGPUCache,Service Worker/CacheStorage,"
     "Service Worker/ScriptCache}\n"
     u"$XDG_CACHE_HOME/JetBrains/*/{caches,index,tmp,compile-server,jcef_cache}"},
    {QT_TRANSLATE_NOOP("Translations", "Local history of JetBrains editors"), u"clock.arrow.circlepath",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Earlier states of your files. Nothing brings them back."),
     u"$XDG_CACHE_HOME/JetBrains/*/LocalHistory", data},
    {QT_TRANSLATE_NOOP("Translations", "Agent logs (>7d)"), u"bubble.prompt",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Logs of coding agents that no agent reads again. Conversations stay."),
     u"$CLAUDE_CONFIG_DIR/debug\n$XDG_CACHE_HOME/claude-cli-nodejs/*/mcp-logs-*\n$CODEX_HOME/log\n"
     u"$QWEN_HOME/debug\n~/.copilot/logs\n$XDG_DATA_HOME/opencode/log",
     none, 7},
    {QT_TRANSLATE_NOOP("Translations", "Agent shell snapshots (>30d)"), u"terminal",
     QT_TRANSLATE_NOOP(
         "FreedesktopTargets",
         "Settings of shells for agents that ended long ago. An agent makes its own at its start."),
     u"$CLAUDE_CONFIG_DIR/shell-snapshots\n$CODEX_HOME/shell_snapshots", none, 30},
    {QT_TRANSLATE_NOOP("Translations", "Texts pasted into Claude Code (>30d)"), u"doc.on.doc",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Long texts that you pasted. Old prompts in the history refer to them."),
     u"$CLAUDE_CONFIG_DIR/paste-cache", data, 30},
    {QT_TRANSLATE_NOOP("Translations", "Hugging Face models"), u"circle.hexagongrid",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Models and data sets. What is public can be fetched again."),
     u"$HF_HOME/hub", data},
    {QT_TRANSLATE_NOOP("Translations", "Ollama models"), u"circle.hexagongrid",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Parts of models, named after them. Those that you made here are gone for good."),
     u"$OLLAMA_MODELS/{blobs,manifests/*/*/*}", data},
    {QT_TRANSLATE_NOOP("Translations", "LM Studio models"), u"circle.hexagongrid",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Models. What is public can be fetched again."),
     u"{~/.lmstudio,$XDG_CACHE_HOME/lm-studio}/models/*", data},
    {QT_TRANSLATE_NOOP("Translations", "Flatpak application caches"), u"square.grid.2x2",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Applications make their caches again."), u"~/.var/app/*/cache"},
    {QT_TRANSLATE_NOOP("Translations", "Snap application caches"), u"square.grid.2x2",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Applications make their caches again."),
     u"~/snap/*/common/.cache"},
    {QT_TRANSLATE_NOOP("Translations", "Thumbnails"), u"rectangle.on.rectangle",
     QT_TRANSLATE_NOOP("FreedesktopTargets", "Small pictures of your files. File managers make them again."),
     u"$XDG_CACHE_HOME/thumbnails"},
    {QT_TRANSLATE_NOOP("Translations", "Shader caches"), u"memorychip",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "The graphics driver compiles shaders again. Games may stutter at first."),
     u"$XDG_CACHE_HOME/{mesa_shader_cache,mesa_shader_cache_db,nvidia/GLCache,qtshadercache*}\n"
     u"~/.nv/{ComputeCache,GLCache}\n$XDG_DATA_HOME/Steam/steamapps/shadercache"},
    {QT_TRANSLATE_NOOP("Translations", "Crash reports (>7d)"), u"exclamationmark.triangle",
     QT_TRANSLATE_NOOP("FreedesktopTargets",
                       "Reports of crashes that are a week old. They only help to find the fault."),
     u"$XDG_CONFIG_HOME/{Code,Code - OSS,VSCodium,Cursor,Windsurf}/Crashpad/{completed,pending}\n"
     u"$XDG_CONFIG_HOME/{google-chrome,chromium,BraveSoftware/Brave-Browser}/Crash Reports/"
     "{completed,pending}\n"
     u"~/.mozilla/firefox/Crash Reports/{pending,submitted}\n/var/crash",
     shared, 7},
};

/// Returns the texts that the first "{a,b}" of `text` stands for, and those of the others in them.
QStringList alternatives(const QString& text) {
    const qsizetype open = text.indexOf(u'{');
    if (open < 0)
        return {text};
    const qsizetype close = text.indexOf(u'}', open);
    QStringList all;
    for (const QString& one : text.mid(open + 1, close - open - 1).split(u','))
        all += alternatives(text.first(open) + one + text.mid(close + 1));
    return all;
}

QString reasonIn(const char* text) {
    return QCoreApplication::translate("FreedesktopTargets", text);
}

PlatformTarget targetOf(const KnownTarget& known) {
    PlatformTarget target{.name = QString::fromUtf8(known.name),
                          .symbol = QString::fromUtf16(known.symbol),
                          .reason = reasonIn(known.reason),
                          .olderThanDays = known.olderThanDays,
                          .isShared = (known.marks & shared) != 0,
                          .isData = (known.marks & data) == data,
                          .isInCleanAll = (known.marks & notInCleanAll) == 0};
    for (const QString& line : QString::fromUtf16(known.paths).split(u'\n'))
        target.paths += alternatives(line);
    target.paths.replaceInStrings(QRegularExpression(u"^~/"_s), u"$HOME/"_s); // what exists of it
    return target;
}

/// Their own tools clean these.
QList<PlatformTarget> cleanedByTools() {
    // What `journalctl` would leave is not counted: its line ends "... take up 1.2G in the file system."
    // Without the parentheses awk would write to a file "0".
    const auto journalSize =
        u"command -v pkexec >/dev/null && LC_ALL=C journalctl --disk-usage 2>/dev/null | "
        "sed -n 's/.* take up \\([0-9.]*[KMGT]\\).*/\\1/p' | numfmt --from=iec | "
        "awk '{ over = $1 - 500 * 1048576; printf \"%.0f\\n\", (over > 0 ? over : 0) }'"_s;
    const auto archivesSize = u"command -v pkexec apt-get >/dev/null && "
                              "du -cB1 /var/cache/apt/archives/*.deb 2>/dev/null | tail -n 1"_s;
    return {
        {.name = u"Podman"_s,
         .symbol = u"shippingbox.fill"_s,
         .reason = reasonIn(QT_TRANSLATE_NOOP(
             "FreedesktopTargets", "Podman fetches or builds images again. Stopped containers go.")),
         .isInCleanAll = false,
         .command = u"podman system prune -af --volumes"_s,
         .isContainerEngine = true},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Downloaded system packages")),
         .symbol = u"arrow.down.circle"_s,
         .paths = {u"/var/cache/apt/archives"_s},
         .reason = reasonIn(QT_TRANSLATE_NOOP("FreedesktopTargets",
                                              "They are installed already. The system asks for a password.")),
         .isInCleanAll = false,
         .command = u"pkexec --disable-internal-agent apt-get clean"_s,
         .sizeCommand = archivesSize},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "System journal over 500 MB")),
         .symbol = u"scroll"_s,
         .paths = {u"/var/log/journal"_s},
         .reason = reasonIn(
             QT_TRANSLATE_NOOP("FreedesktopTargets",
                               "Old messages of the system go, the newest stay. It asks for a password.")),
         .isInCleanAll = false,
         .command = u"pkexec --disable-internal-agent journalctl --vacuum-size=500M"_s,
         .sizeCommand = journalSize},
    };
}

QString rustupHome() {
    const QString named = qEnvironmentVariable("RUSTUP_HOME");
    return named.startsWith(u'/') ? named : QDir::homePath() + u"/.rustup"_s;
}

} // namespace

QList<PlatformTarget> FreedesktopTargets::all() const {
    QList<PlatformTarget> targets;
    for (const KnownTarget& known : builders)
        targets.append(targetOf(known));
    for (const KnownTarget& known : desktop)
        targets.append(targetOf(known));
    return targets + cleanedByTools();
}

QStringList FreedesktopTargets::kept(const PlatformTarget& target) const {
    return target.paths.contains(u"$RUSTUP_HOME/toolchains"_s) ? usedToolchains(rustupHome()) : QStringList();
}

QHash<QString, QString> FreedesktopTargets::namesIn(const QString& folder) const {
    return ollamaModels(folder);
}

QStringList FreedesktopTargets::usedToolchains(const QString& rustupHome) {
    constexpr qint64 maxSettings = 1 << 20;
    const QDir toolchains(rustupHome + u"/toolchains"_s);
    QFile settings(rustupHome + u"/settings.toml"_s);
    const bool isReadable = settings.open(QIODevice::ReadOnly);
    const QString text = isReadable ? QString::fromUtf8(settings.read(maxSettings)) : QString();
    QStringList named;
    for (const auto& found : QRegularExpression(u"= *[\"']([^\"']+)[\"']"_s).globalMatch(text))
        named.append(found.captured(1));
    QStringList used;
    for (const QString& name : toolchains.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        const auto isIt = [&](const QString& one) { return name == one || name.startsWith(one + u'-'); };
        // Without readable settings any of them may be the default.
        if (!isReadable || std::ranges::any_of(named, isIt))
            used.append(toolchains.filePath(name));
    }
    return used;
}

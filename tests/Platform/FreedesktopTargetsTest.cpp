#include "Platform/Freedesktop/FreedesktopTargets.h"

#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;

namespace {

/// Folders and files that no cleanup may take, hold or be inside of. "!" marks one that it may be inside of.
const QStringList precious = {
    u"!.config"_s,
    u"!.local/share"_s,
    u"!.local/state"_s,
    u".ssh/id"_s,
    u".gnupg/key"_s,
    u".claude/projects/p/a.jsonl"_s,
    u".claude/settings.json"_s,
    u".claude/history.jsonl"_s,
    u".claude/file-history/f"_s,
    u".claude/plugins/config.json"_s,
    u".codex/sessions/2026/a.jsonl"_s,
    u".codex/config.toml"_s,
    u".codex/auth.json"_s,
    u".gemini/tmp/p/chats/a.json"_s,
    u".gemini/tmp/p/logs.json"_s,
    u".gemini/settings.json"_s,
    u".qwen/settings.json"_s,
    u".qwen/projects/p/chats/a.jsonl"_s,
    u".copilot/session-state/a/events.jsonl"_s,
    u".copilot/config.json"_s,
    u".local/share/opencode/storage/message"_s,
    u".local/share/opencode/auth.json"_s,
    u".config/Code/User/settings.json"_s,
    u".config/Code/User/History/a"_s,
    u".config/Code/User/workspaceStorage/a"_s,
    u".config/Code/Backups/a"_s,
    u".config/Cursor/User/globalStorage/state.vscdb"_s,
    u".config/JetBrains/IntelliJIdea2024.1/options/ui.xml"_s,
    u".cargo/config.toml"_s,
    u".cargo/credentials.toml"_s,
    u".cargo/bin/tool"_s,
    u".rustup/settings.toml"_s,
    u".gradle/gradle.properties"_s,
    u".gradle/init.d/mine.gradle"_s,
    u".m2/settings.xml"_s,
    u".m2/settings-security.xml"_s,
    u".ivy2/local/mine"_s,
    u".conan2/profiles/default"_s,
    u".conan2/remotes.json"_s,
    u".conan/profiles/default"_s,
    u".cache/huggingface/token"_s,
    u".ollama/id_ed25519"_s,
    u".lmstudio/settings.json"_s,
    u".cache/deno/location_data/a"_s,
    u".cache/pypoetry/virtualenvs/mine"_s,
    u".ccache/ccache.conf"_s,
    u".var/app/org.x.Y/config/settings.ini"_s,
    u".var/app/org.x.Y/data/mine"_s,
    u"snap/x/common/mine"_s,
    u".yarn/bin/yarn"_s,
    u".bun/bin/bun"_s,
    u"miniconda3/envs/mine/bin/python"_s,
    u".mozilla/firefox/profiles.ini"_s,
    u".local/share/Steam/steamapps/common/game"_s,
};

bool holds(const QString& outer, const QString& inner) {
    return outer == inner || inner.startsWith(outer + u'/');
}

/// Makes what a path of a target stands for, with a name for each "*", and returns the folder.
QString make(const TemporaryHome& home, const QString& path) {
    const std::pair<QString, QString> variables[] = {
        {u"$XDG_CACHE_HOME"_s, u".cache"_s},
        {u"$XDG_CONFIG_HOME"_s, u".config"_s},
        {u"$XDG_DATA_HOME"_s, u".local/share"_s},
        {u"$XDG_STATE_HOME"_s, u".local/state"_s},
        {u"$BUN_INSTALL"_s, u".bun"_s},
        {u"$CARGO_HOME"_s, u".cargo"_s},
        {u"$CCACHE_DIR"_s, u".cache/ccache"_s},
        {u"$CLAUDE_CONFIG_DIR"_s, u".claude"_s},
        {u"$CODEX_HOME"_s, u".codex"_s},
        {u"$CONAN_HOME"_s, u".conan2"_s},
        {u"$COREPACK_HOME"_s, u".cache/node/corepack"_s},
        {u"$DENO_DIR"_s, u".cache/deno"_s},
        {u"$GRADLE_USER_HOME"_s, u".gradle"_s},
        {u"$HF_HOME"_s, u".cache/huggingface"_s},
        {u"$OLLAMA_MODELS"_s, u".ollama/models"_s},
        {u"$QWEN_HOME"_s, u".qwen"_s},
        {u"$RUSTUP_HOME"_s, u".rustup"_s},
        {u"$SCCACHE_DIR"_s, u".cache/sccache"_s},
        {u"$HOME"_s, u"."_s},
    };
    QString made = path;
    for (const auto& [variable, folder] : variables)
        made.replace(variable, folder);
    made.replace(u'*', u"x1"_s).replace(u'?', u'7');
    return QDir::cleanPath(home.makeFolder(made));
}

TEST(FreedesktopTargets, ReachNothingPrecious) {
    const TemporaryHome home;
    const FreedesktopPlaces places;
    const QList<PlatformTarget> targets = FreedesktopTargets().all();
    for (const PlatformTarget& target : targets) {
        for (const QString& path : target.paths) {
            const bool isBelowHome = !path.startsWith(u'/');
            EXPECT_TRUE(!isBelowHome || places.locate(path).isEmpty())
                << qPrintable(path) << " does not exist yet";
        }
    }
    for (const PlatformTarget& target : targets) {
        for (const QString& path : target.paths) {
            if (!path.startsWith(u'/'))
                make(home, path);
        }
    }
    for (const QString& path : precious) {
        const QString bare = path.startsWith(u'!') ? path.mid(1) : path;
        if (!QFileInfo::exists(home.path(bare)))
            home.makeFile(bare);
    }
    for (const PlatformTarget& target : targets) {
        for (const QString& path : target.paths) {
            if (path.startsWith(u'/'))
                continue;
            const QList<Place> found = places.locate(path);
            EXPECT_GE(found.size(), 1) << qPrintable(path);
            for (const Place& place : found) {
                EXPECT_EQ(place.objection, QString());
                EXPECT_TRUE(place.path.startsWith(home.path() + u'/'));
                for (const QString& each : precious) {
                    const bool mayBeInside = each.startsWith(u'!');
                    const QString kept = home.path(mayBeInside ? each.mid(1) : each);
                    EXPECT_FALSE(holds(place.path, kept)) << qPrintable(place.path + u" holds "_s + kept);
                    EXPECT_TRUE(mayBeInside || !holds(kept, place.path)) << qPrintable(place.path);
                }
            }
        }
    }
}

TEST(FreedesktopTargets, AreExplainedAndNeverRemoveWorkWithAllOthers) {
    std::set<QString> names;
    for (const PlatformTarget& target : FreedesktopTargets().all()) {
        EXPECT_TRUE(names.insert(target.name).second) << qPrintable(target.name);
        EXPECT_TRUE(target.reason.endsWith(u'.')) << qPrintable(target.name);
        EXPECT_FALSE(target.isData && target.isInCleanAll) << qPrintable(target.name);
        EXPECT_FALSE(target.command && target.isInCleanAll) << qPrintable(target.name);
        for (const QString& path : target.paths)
            EXPECT_FALSE(path.contains(u'{') || path.contains(u'}')) << qPrintable(path);
    }
}

TEST(FreedesktopTargets, KeepsTheToolchainsThatAreUsed) {
    const TemporaryHome home;
    for (const auto& name :
         {u"stable-x86_64"_s, u"nightly-2025-01-01-x86_64"_s, u"1.7-x86_64"_s, u"1.70-x86_64"_s, u"mine"_s})
        home.makeFolder(u".rustup/toolchains/"_s + name);
    const auto used = [&](const QByteArray& settings) {
        home.makeFile(u".rustup/settings.toml"_s, settings);
        QStringList names = FreedesktopTargets::usedToolchains(home.path(u".rustup"_s));
        for (QString& name : names)
            name = name.section(u'/', -1);
        return names;
    };
    EXPECT_EQ(FreedesktopTargets::usedToolchains(home.path(u".rustup"_s)).size(), 5)
        << "without settings any may be the default";
    EXPECT_EQ(used("version = \"12\"\ndefault_toolchain = \"stable-x86_64\"\n[overrides]\n"
                   "\"/home/a = b\" = \"1.7\"\n\"/c\" = 'mine'\n"),
              QStringList({u"1.7-x86_64"_s, u"mine"_s, u"stable-x86_64"_s}));
    EXPECT_EQ(used("default_toolchain = \"nightly-2025-01-01\""),
              QStringList(u"nightly-2025-01-01-x86_64"_s));
}

TEST(FreedesktopTargets, NamesThePartsOfModelsAfterThem) {
    const TemporaryHome home;
    const QString blobs = home.makeFolder(u".ollama/models/blobs"_s);
    EXPECT_TRUE(FreedesktopTargets().namesIn(blobs).isEmpty());
    const auto manifest = [&](const QString& path, const QByteArray& text) {
        home.makeFile(u".ollama/models/manifests/"_s + path, text);
    };
    manifest(u"registry.ollama.ai/library/llama3/8b"_s,
             R"({"config":{"digest":"sha256:c"},"layers":[{"digest":"sha256:1"},{"digest":"sha256:2"}]})");
    manifest(u"registry.ollama.ai/me/mine/latest"_s, R"({"layers":[{"digest":"sha256:1"},{"digest":7},8]})");
    manifest(u"hf.co/you/yours/q4"_s, R"({"layers":{"digest":"sha256:3"},"config":["sha256:3"]})");
    manifest(u"damaged"_s, "{");
    EXPECT_EQ(FreedesktopTargets().namesIn(blobs),
              (QHash<QString, QString>{{u"sha256-c"_s, u"llama3:8b"_s},
                                       {u"sha256-1"_s, u"llama3:8b, me/mine:latest"_s},
                                       {u"sha256-2"_s, u"llama3:8b"_s}}));
}

} // namespace

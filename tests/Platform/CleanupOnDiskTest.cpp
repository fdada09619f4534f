#include "Core/Cleanup/CleanupPlan.h"
#include "Platform/Child.h"
#include "Platform/CleanupFixture.h"
#include "support/Each.h"
#include "support/Files.h"

#include <QElapsedTimer>
#include <QTimer>

#include <fstream>
#include <functional>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Cleaner::CleanResult;

namespace {

/// Runs the tools as nobody when the tests run as root.
class OrdinaryUsersTools : public UnixToolRunner {
public:
    using UnixToolRunner::UnixToolRunner;

    QCoro::Task<ToolResult> run(ToolRequest request) override {
        if (geteuid() == 0) {
            request.arguments = QStringList{u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s,
                                            programFor(request.launchPath)} +
                                request.arguments;
            request.launchPath = u"/usr/bin/setpriv"_s;
        }
        return UnixToolRunner::run(request);
    }
};

/// Calls `meddle` right before `du` runs, which is after the cleaner has checked the path.
class MeddlingTools : public UnixToolRunner {
public:
    std::function<void()> meddle;

    QCoro::Task<ToolResult> run(ToolRequest request) override {
        if (request.launchPath == u"/usr/bin/du" && meddle)
            std::exchange(meddle, {})();
        return UnixToolRunner::run(request);
    }
};

void rename(const QString& from, const QString& to) {
    ASSERT_TRUE(QDir().rename(from, to));
}

void setMode(const QString& path, mode_t mode) {
    ASSERT_EQ(chmod(path.toUtf8().constData(), mode), 0);
}

const QByteArray png = "\x89PNG\r\n\x1a\n a picture";
const QByteArray webm = "\x1a\x45\xdf\xa3 a recording";

TEST_F(CleanupOnDisk, EmptiesAFolderWhateverItsEntriesAreCalled) {
    const QString name = u"a \"cache\"; it's $HOME\n`x` *"_s;
    const QString cache = home.makeFolder(name);
    for (const auto& entry :
         {u"plain"_s, u".hidden"_s, u"-rf"_s, u"--no-preserve-root"_s, u"it's \"quoted\""_s, u"two\nlines"_s,
          u"deep/er/file"_s, u".config/x"_s, u"$(touch y)"_s, u"*"_s})
        home.makeFile(name + u'/' + entry, QByteArray(5000, 'x'));
    std::ofstream(cache.toStdString() + "/caf\xe9") << "x";
    const QString outside = home.makeFile(u"outside/precious"_s);
    ASSERT_TRUE(QFile::link(home.path(u"outside"_s), cache + u"/link"_s));
    ASSERT_TRUE(QFile::link(outside, cache + u"/.link"_s));
    ASSERT_TRUE(QFile::link(outside, cache + u"/deep/link"_s));
    home.makeFile(name + u"/..stays"_s);

    const CacheTarget target{.name = u"x"_s, .paths = {cache}};
    const quint64 size = scanned(target).sizeBytes;
    const CleanResult result = clean(target);
    EXPECT_TRUE(result.done);
    EXPECT_EQ(entries(cache), QStringList(u"..stays"_s));
    EXPECT_EQ(result.freedBytes, size - scanned(target).sizeBytes);
    EXPECT_GE(result.freedBytes, 8U * 4096);
    EXPECT_TRUE(QFileInfo::exists(outside));

    ASSERT_TRUE(QFile::remove(cache + u"/..stays"_s));
    const CleanResult ofNothing = clean(target);
    EXPECT_TRUE(ofNothing.done && ofNothing.freedBytes == 0) << "an empty folder";
}

TEST_F(CleanupOnDisk, ReachesNothingThroughAPathThatWasSwapped) {
    const QString precious = home.makeFile(u"outside/cache/precious"_s);
    const std::pair<const char*, std::function<void()>> swaps[] = {
        {"a symlink in the place of the folder",
         [&] {
             rename(home.path(u"tool/cache"_s), home.path(u"tool/was"_s));
             ASSERT_TRUE(QFile::link(home.path(u"outside/cache"_s), home.path(u"tool/cache"_s)));
         }},
        {"another folder in its place",
         [&] {
             rename(home.path(u"tool/cache"_s), home.path(u"tool/was"_s));
             rename(home.path(u"outside/cache"_s), home.path(u"tool/cache"_s));
         }},
        {"a symlink above it",
         [&] {
             rename(home.path(u"tool"_s), home.path(u"was"_s));
             ASSERT_TRUE(QFile::link(home.path(u"outside"_s), home.path(u"tool"_s)));
         }},
        {"a symlink in the folder",
         [&] {
             rename(home.path(u"tool/cache/precious"_s), home.path(u"tool/was"_s));
             ASSERT_TRUE(QFile::link(home.path(u"outside/cache"_s), home.path(u"tool/cache/precious"_s)));
         }},
    };
    for (const auto& [name, swap] : swaps) {
        SCOPED_TRACE(name);
        const auto meddling = std::make_shared<MeddlingTools>();
        tools = meddling;
        home.makeFile(u"outside/cache/precious"_s);
        home.makeFile(u"tool/cache/precious"_s);
        const CacheTarget cache = scanned({.name = u"x"_s, .paths = {home.path(u"tool/cache"_s)}});
        meddling->meddle = swap;
        const bool isInside = std::string_view(name).ends_with("in the folder");
        EXPECT_EQ(clean(cache).done, isInside);
        EXPECT_TRUE(QFileInfo::exists(precious) || QFileInfo::exists(home.path(u"tool/cache/precious"_s)));
        for (const auto& left : {u"tool"_s, u"was"_s, u"outside"_s}) {
            const QString path = home.path(left);
            QFileInfo(path).isSymLink() ? QFile::remove(path) : QDir(path).removeRecursively();
        }
    }
}

TEST_F(CleanupOnDisk, LeavesASymlinkedFolderAlone) {
    const QString precious = home.makeFile(u"elsewhere/precious"_s);
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), home.path(u".npm"_s)));
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), home.path(u"Downloads"_s)));
    for (const QString& name : {u"npm / pnpm / yarn"_s, u"Old Downloads (>30d)"_s}) {
        const CacheTarget measured = scanned(target(name));
        EXPECT_EQ(measured.sizeBytes, 0U);
        ASSERT_EQ(measured.notes.size(), 1);
        EXPECT_TRUE(measured.notes.first().endsWith(u" is left alone: it is a link."_s));
        const CleanResult result = clean(measured);
        EXPECT_FALSE(result.done);
        EXPECT_EQ(result.freedBytes, 0U);
        EXPECT_FALSE(result.reason.isEmpty());
        EXPECT_TRUE(QFileInfo::exists(precious));
    }
}

TEST_F(CleanupOnDisk, RemovesWhatWasConfirmedAndNothingElse) {
    home.makeFile(u".npm/known/file"_s);
    const CacheTarget measured = scanned(target(u"npm / pnpm / yarn"_s));
    home.makeFile(u".npm/new"_s);
    home.makeFile(u".yarn/cache/new"_s);
    EXPECT_TRUE(clean(measured).done);
    EXPECT_EQ(entries(home.path(u".npm"_s)), QStringList(u"new"_s));
    EXPECT_EQ(entries(home.path(u".yarn/cache"_s)), QStringList(u"new"_s));
}

TEST_F(CleanupOnDisk, RefusesACacheHomeThatContainsMoreThanCaches) {
    const std::pair<QString, QString> cases[] = {
        {u".local"_s, u".local/share/keyrings/login.keyring"_s},
        {u".config"_s, u".config/program/settings"_s},
        {u".local/share/program"_s, u".local/share/program/document"_s},
        {u"."_s, u"pip/precious"_s},
    };
    for (const auto& [cacheHome, precious] : cases) {
        SCOPED_TRACE(cacheHome.toStdString());
        qputenv("XDG_CACHE_HOME", home.path(cacheHome).toUtf8());
        home.makeFile(precious);
        home.makeFile(cacheHome + u"/pip/wheel"_s);
        for (const auto& name : {u"User caches"_s, u"Python (uv / pip)"_s}) {
            const CacheTarget measured = scanned(target(name));
            EXPECT_EQ(measured.sizeBytes, 0U);
            ASSERT_FALSE(measured.notes.isEmpty());
            EXPECT_TRUE(
                measured.notes.first().contains(u"the folder of caches must have nothing to do with"_s));
            EXPECT_FALSE(clean(measured).done);
        }
        EXPECT_TRUE(QFileInfo::exists(home.path(precious)));
        EXPECT_TRUE(QFileInfo::exists(home.path(cacheHome + u"/pip/wheel"_s)));
    }
}

TEST_F(CleanupOnDisk, StartFilesOfTheShellCannotFeignAClean) {
    const QString proof = home.path(u"proof"_s);
    const std::pair<const char*, bool> cases[] = {
        {"set -f\n", true}, {"exit 0\n", false}, {"echo Welcome\n", true}};
    for (const auto& [profile, runs] : cases) {
        SCOPED_TRACE(profile);
        home.makeFile(u".profile"_s, profile);
        home.makeFile(u".npm/deep/file"_s);
        EXPECT_TRUE(clean(u"~/.npm"_s).done);
        EXPECT_TRUE(entries(home.path(u".npm"_s)).isEmpty());

        QFile::remove(proof);
        const CacheTarget pruned{.name = u"x"_s, .pruneCommand = u"touch '%1'"_s.arg(proof)};
        EXPECT_EQ(clean(pruned).done, runs);
        EXPECT_EQ(QFileInfo::exists(proof), runs);
    }
}

TEST_F(CleanupOnDisk, StopsACommandThatHangs) {
    std::stop_source stop;
    const CacheTarget hangs{.name = u"x"_s, .pruneCommand = u"trap '' TERM; while :; do sleep 1; done"_s};
    QTimer::singleShot(100ms, [&stop] { stop.request_stop(); });
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(clean(hangs, stop.get_token()).done);
    EXPECT_LT(time.elapsed(), 5000);
}

TEST_F(CleanupOnDisk, ReportsWhatMayNotBeDeletedAndDeletesTheRest) {
    ASSERT_TRUE(QFile::copy(UnixToolRunner().programFor(u"cleanup"_s), home.path(u"cleanup"_s)));
    tools = std::make_shared<OrdinaryUsersTools>(home.path());
    const QString cache = home.makeFolder(u"cache"_s);
    home.makeFile(u"cache/kept/file"_s);
    home.makeFile(u"cache/goes/file"_s);
    home.makeFile(u"second/file"_s);
    for (const auto& below : {u""_s, u"cleanup"_s, u"cache"_s, u"cache/goes"_s, u"second"_s})
        setMode(home.path(below), 0777);
    setMode(home.path(u"cache/kept"_s), 0555);

    const CleanResult result = clean({.name = u"x"_s, .paths = {cache, home.path(u"second"_s)}});
    EXPECT_FALSE(result.done);
    EXPECT_EQ(entries(cache), QStringList(u"kept"_s));
    EXPECT_TRUE(entries(home.path(u"second"_s)).isEmpty()) << "the next path is cleaned all the same";

    setMode(cache, 0); // unreadable
    EXPECT_FALSE(clean(scanned({.name = u"x"_s, .paths = {cache}})).done);
    setMode(cache, 0755);
    setMode(home.path(u"cache/kept"_s), 0755);
}

TEST_F(CleanupOnDisk, LeavesWhatIsSomebodyElsesInASharedFolderAndSucceeds) {
    ASSERT_TRUE(QFile::copy(UnixToolRunner().programFor(u"cleanup"_s), home.path(u"cleanup"_s)));
    tools = std::make_shared<OrdinaryUsersTools>(home.path());
    const QString shared = home.makeFolder(u"shared"_s);
    home.makeFile(u"shared/private/file"_s);
    const QString own = home.makeFile(u"shared/own"_s);
    const QString others = home.makeFile(u"shared/others"_s);
    for (const auto& below : {u""_s, u"cleanup"_s, u"shared"_s})
        setMode(home.path(below), 0777);
    setMode(home.path(u"shared/private"_s), 0);
    const bool hasOthers = geteuid() == 0;
    if (hasOthers)
        ASSERT_EQ(chown(own.toUtf8().constData(), 65534, 65534), 0);
    else
        ASSERT_TRUE(QFile::remove(others));

    CacheTarget old = target(u"Old /tmp (>7d)"_s);
    old.paths = {shared};
    const CacheTarget measured = scanned(old);
    EXPECT_EQ(each(measured.details, &CacheEntry::path), QStringList(own));
    EXPECT_TRUE(clean(measured).done);
    EXPECT_FALSE(QFileInfo::exists(own));
    EXPECT_EQ(QFileInfo::exists(others), hasOthers);
    setMode(home.path(u"shared/private"_s), 0755);
}

TEST_F(CleanupOnDisk, DeletesOnlyOldScreenshots) {
    const std::tuple<QString, int, QByteArray, bool> files[] = {
        {u"Desktop/Screenshot 1.png"_s, 40, png, false},
        {u"Desktop/deep/Screen 2"_s, 31, webm, false},
        {u"Pictures/Screenshots/Screenshot from 1999.png"_s, 40, png, false},
        {u"Desktop/Screenshot new.png"_s, 29, png, true},
        {u"Desktop/Screen edge"_s, 30, png, true},
        {u"Desktop/Screenplay.txt"_s, 400, "FADE IN", true},
        {u"Desktop/Screen nothing.png"_s, 400, "", true},
        {u"Desktop/My Screen.png"_s, 390, png, true},
        {u"Pictures/Screenshots/Family.png"_s, 390, png, true},
        {u"Pictures/Screenshot elsewhere.png"_s, 390, png, true},
    };
    for (const auto& [name, days, content, stays] : files)
        age(home.makeFile(name, content), days);
    home.makeFolder(u"Desktop/Screen folder"_s);
    const CacheTarget measured = scanned(target(u"Old Desktop screenshots (>30d)"_s));
    EXPECT_EQ(measured.sizeBytes, static_cast<quint64>(2 * png.size() + webm.size()));
    const CleanResult result = clean(measured);
    EXPECT_TRUE(result.done && result.freedBytes == 0);
    for (const auto& [name, days, content, stays] : files)
        EXPECT_EQ(QFileInfo::exists(home.path(name)), stays) << name.toStdString();
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Desktop/Screen folder"_s)));
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Desktop/deep"_s))) << "which became empty";
}

TEST_F(CleanupOnDisk, MovesToTheTrashWhatIsStillOldAndSaysWhatItCannot) {
    age(home.makeFile(u"Downloads/deep/old"_s, "moved"), 40);
    age(home.makeFile(u"Downloads/changed"_s), 40);
    age(home.makeFile(u"Downloads/new"_s), 0);
    const std::string odd = home.path(u"Downloads"_s).toStdString() + "/caf\xe9";
    std::ofstream(odd) << "x";
    std::filesystem::last_write_time(odd, std::filesystem::file_time_type::clock::now());
    const CacheTarget measured = scanned(target(u"Old Downloads (>30d)"_s));
    age(home.path(u"Downloads/changed"_s), 0);
    QList<quint64> progress;
    const CleanResult result = QCoro::waitFor(Cleaner::moveToTrash(
        measured, tools, places, clock->now(), {}, [&](quint64 bytes) { progress.append(bytes); }));
    EXPECT_FALSE(result.done);
    EXPECT_TRUE(result.reason.contains(u"caf"_s)) << qPrintable(result.reason);
    EXPECT_EQ(result.freedBytes, 0u);
    EXPECT_EQ(progress, QList<quint64>({6}));
    EXPECT_EQ(contentOf(home.path(u".local/share/Trash/files/old"_s)), "moved");
    EXPECT_TRUE(QFileInfo::exists(home.path(u".local/share/Trash/info/old.trashinfo"_s)));
    EXPECT_TRUE(QFileInfo(home.path(u"Downloads/deep"_s)).isDir()) << "a folder that became empty stays";
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Downloads/changed"_s)));
    EXPECT_TRUE(std::filesystem::remove(odd)); // Qt cannot name it
}

TEST_F(CleanupOnDisk, AFileStaysWhereThereIsNoTrash) {
    const QString old = home.makeFile(u"Downloads/old"_s);
    age(old, 40);
    const CacheTarget measured = scanned(target(u"Old Downloads (>30d)"_s));
    qputenv("XDG_DATA_HOME", home.makeFile(u"no folder"_s).toUtf8());
    auto moving = Cleaner::moveToTrash(measured, tools, places, clock->now());
    EXPECT_EQ(QCoro::waitFor(moving).reason, u"there is no trash"_s);
    EXPECT_TRUE(QFileInfo::exists(old));
}

TEST_F(CleanupOnDisk, CleansTheChosenEntriesOfAListing) {
    for (const auto& file : {u"cache/a"_s, u"cache/b/c/file"_s, u"cache/b/d/e"_s, u"cache/b/d/stays"_s})
        home.makeFile(file, QByteArray(50'000, 'x'));
    CacheTarget cache = scanned({.name = u"x"_s, .paths = {home.path(u"cache"_s)}});
    const QString folder = home.path(u"cache"_s);
    const QByteArray top = cache.listed.first().listing;
    QByteArray chosen = CleanupPlan::ListingReader(top).header().toByteArray();
    quint64 bytes = 0;
    for (const auto& [inside, name] :
         {std::pair("", "a"), std::pair("b", "b/c"), std::pair("b/d", "b/d/e")}) {
        const bool isTop = *inside == '\0';
        const QByteArray listing =
            isTop
                ? top
                : QCoro::waitFor(Cleaner::listInside(cache.rule, folder, inside, clock->now(), tools)).value;
        CleanupPlan::ListingReader reader(listing);
        while (const auto entry = reader.next()) {
            if (entry->path == name) {
                chosen += entry->record.toByteArray();
                bytes += entry->sizeBytes;
            }
        }
    }
    cache.listed = {{folder, bytes, chosen}};
    EXPECT_EQ(CleanupPlan::listedBytes(cache), bytes);
    const CleanResult result = clean(cache);
    EXPECT_TRUE(result.done) << qPrintable(result.reason);
    EXPECT_EQ(result.freedBytes, bytes);
    EXPECT_TRUE(result.volumeBytes);
    EXPECT_EQ(entries(folder), QStringList(u"b"_s));
    EXPECT_EQ(entries(folder + u"/b"_s), QStringList(u"d"_s));
    EXPECT_EQ(entries(folder + u"/b/d"_s), QStringList(u"stays"_s));
}

TEST_F(CleanupOnDisk, AnOldFileThatJustArrivedIsNotOld) {
    clock = std::make_shared<SystemClock>();
    age(home.makeFile(u"Downloads/unpacked a minute ago"_s), 400);
    EXPECT_EQ(scanned(target(u"Old Downloads (>30d)"_s)).sizeBytes, 0U);

    clock = std::make_shared<LaterClock>();
    const CacheTarget measured = scanned(target(u"Old Downloads (>30d)"_s));
    EXPECT_EQ(measured.sizeBytes, 1U);
    age(home.path(u"Downloads/unpacked a minute ago"_s), 0); // and now it is not old any more
    EXPECT_TRUE(clean(measured).done);
    EXPECT_EQ(entries(home.path(u"Downloads"_s)).size(), 1);
}

TEST_F(CleanupOnDisk, EmptiesTheFoldersOfLogsButNotTheRecord) {
    const std::pair<QString, bool> files[] = {
        {u"Library/Logs/Tavrin/actions.log"_s, true},
        {u"Library/Logs/other.log"_s, false},
        {u".local/state/tool/logs/a"_s, false},
        {u".local/state/tool/history"_s, true},
        {u".config/Code/logs/a/b"_s, false},
        {u".config/Code/User/settings.json"_s, true},
        {u".npm/_logs/a"_s, false},
        {u".npm/_cacache/a"_s, true},
        {u".cache/JetBrains/Idea/log/a"_s, false},
        {u".local/share/chat/logs/conversation"_s, true},
    };
    for (const auto& [path, stays] : files)
        home.makeFile(path, QByteArray(5000, 'x'));
    const CacheTarget measured = scanned(target(u"User logs"_s));
    EXPECT_EQ(measured.details.size(), 5);
    EXPECT_TRUE(clean(measured).done);
    for (const auto& [path, stays] : files)
        EXPECT_EQ(QFileInfo::exists(home.path(path)), stays) << path.toStdString();
}

TEST_F(CleanupOnDisk, EmptiesTheTrashOfLinux) {
    for (const auto& file : {u"files/old"_s, u"info/old.trashinfo"_s, u"keep"_s})
        home.makeFile(u".local/share/Trash/"_s + file);
    const CacheTarget trash = target(u"Trash"_s);
    EXPECT_EQ(scanned(trash).details.size(), 2);
    EXPECT_TRUE(clean(trash).done);
    EXPECT_TRUE(entries(home.path(u".local/share/Trash/files"_s)).isEmpty());
    EXPECT_TRUE(entries(home.path(u".local/share/Trash/info"_s)).isEmpty());
    EXPECT_EQ(entries(home.path(u".local/share/Trash"_s)).size(), 3);
}

/// Makes and removes files in two folders for ever, old ones in the second; writes 'r' each time.
const std::string comeAndGo = R"(while :; do
        mkdir -p "$1/busy"
        for file in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30; do
            for place in "$1" "$1/busy" "$2"; do printf %4096d 0 >"$place/passing-$file"; done
        done
        touch -d 2001-01-01 "$2"/passing-*
        printf r >&0
        rm -rf "$1"/passing-* "$1/busy" "$2"/passing-*
    done 2>/dev/null)";

TEST_F(CleanupOnDisk, TellsTheTruthWhileFilesComeAndGo) {
    constexpr quint64 stable = 4 << 20;
    constexpr quint64 passing = 1 << 20; // more than the passing files take
    const CacheTarget cache{.name = u"x"_s, .paths = {home.makeFolder(u"cache"_s)}};
    const CacheTarget downloads = target(u"Old Downloads (>30d)"_s);
    home.makeFile(u"cache/stable/file"_s, QByteArray(stable, 'x'));
    age(home.makeFile(u"Downloads/old"_s, QByteArray(stable, 'x')), 40);
    age(home.makeFile(u"Downloads/new"_s), 0);
    Child tenant("/bin/sh", {"sh", "-c", comeAndGo, "sh", home.path(u"cache"_s).toStdString(),
                             home.path(u"Downloads"_s).toStdString()});
    ASSERT_EQ(tenant.heard(), 'r');

    for (int round = 0; round < 20; ++round) {
        for (const CacheTarget& target : {cache, downloads}) {
            const CacheTarget measured = scanned(target);
            EXPECT_TRUE(measured.lastScanned);
            EXPECT_GE(measured.sizeBytes, stable) << target.name.toStdString();
            EXPECT_LE(measured.sizeBytes, stable + passing) << target.name.toStdString();
        }
    }
    const CleanResult result = clean(cache); // may fail: a folder fills again before it is removed
    EXPECT_FALSE(QFileInfo::exists(home.path(u"cache/stable"_s)));
    EXPECT_GE(result.freedBytes, stable - passing);
    EXPECT_LE(result.freedBytes, stable + passing);
    for (int round = 0; round < 20; ++round)
        clean(downloads);
    EXPECT_FALSE(QFileInfo::exists(home.path(u"Downloads/old"_s)));
    EXPECT_TRUE(QFileInfo::exists(home.path(u"Downloads/new"_s)));

    tenant.end();
    EXPECT_TRUE(clean(cache).done);
    EXPECT_TRUE(entries(home.path(u"cache"_s)).isEmpty());
    for (const QString& file : entries(home.path(u"Downloads"_s)).filter(u"passing"_s))
        age(home.path(u"Downloads/"_s + file), 40); // if the child was killed before it did
    EXPECT_TRUE(clean(downloads).done);
    EXPECT_EQ(entries(home.path(u"Downloads"_s)), QStringList(u"new"_s));
}

} // namespace

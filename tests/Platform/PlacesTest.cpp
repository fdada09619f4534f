#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "support/Each.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList paths(const QList<Place>& places) {
    return each(places, &Place::path);
}

TEST(FreedesktopPlaces, NamesThePlaceOfLinuxWhereTheCataloguePathDoesNotExist) {
    QList<std::pair<QString, QStringList>> cases = {
        {u"~/Library/Caches"_s, {u".cache"_s}},
        {u"~/Library/Caches/Yarn"_s, {u".cache/yarn"_s}},
        {u"~/.pnpm-store"_s, {u".local/share/pnpm/store"_s}},
        {u"~/.Trash"_s, {u".local/share/Trash/files"_s, u".local/share/Trash/info"_s}},
        {u"~/Downloads"_s, {u"Geladenes"_s}},
        {u"~/Desktop"_s, {u"Arbeitsfläche"_s}},
    };
    for (const auto& name : {u"Homebrew"_s, u"ms-playwright"_s, u"org.swift.swiftpm"_s, u"pip"_s, u"uv"_s})
        cases.append({u"~/Library/Caches/"_s + name, {u".cache/"_s + name}});
    for (const auto& [path, linuxPlaces] : cases) {
        SCOPED_TRACE(path.toStdString());
        TemporaryHome home;
        const FreedesktopPlaces places;
        home.makeFile(u".config/user-dirs.dirs"_s, "XDG_DOWNLOAD_DIR=\"$HOME/Geladenes\"\n"
                                                   "XDG_DESKTOP_DIR=\"$HOME/Arbeitsfläche\"\n");
        const QString asItStands = home.path(path.mid(2));
        EXPECT_EQ(paths(places.locate(path)), QStringList(asItStands)) << "neither exists";
        const auto made = each(linuxPlaces, [&](const QString& place) { return home.makeFolder(place); });
        EXPECT_EQ(paths(places.locate(path)), made);
        home.makeFolder(path.mid(2));
        EXPECT_EQ(paths(places.locate(path)), QStringList(asItStands)) << "both exist";
    }
}

TEST(FreedesktopPlaces, FollowsTheXdgVariablesUnlessTheyAreRelative) {
    TemporaryHome home;
    const FreedesktopPlaces places;
    home.makeFolder(u".cache/pip"_s);
    home.makeFolder(u"fast/pip"_s);
    qputenv("XDG_CACHE_HOME", home.path(u"fast"_s).toUtf8());
    EXPECT_EQ(paths(places.locate(u"~/Library/Caches/pip"_s)), QStringList(home.path(u"fast/pip"_s)));
    qputenv("XDG_CACHE_HOME", "fast");
    EXPECT_EQ(paths(places.locate(u"~/Library/Caches/pip"_s)), QStringList(home.path(u".cache/pip"_s)));
}

TEST(FreedesktopPlaces, HasNoPlaceWithoutAHomeFolder) {
    TemporaryHome home;
    const FreedesktopPlaces places;
    for (const char* value : {"", "/", "//", "/../", "relative", "~", "/no/such/folder"}) {
        SCOPED_TRACE(value);
        qputenv("HOME", value);
        EXPECT_TRUE(places.locate(u"~/.npm"_s).isEmpty());
        EXPECT_TRUE(places.locate(u"~/Library/Caches"_s).isEmpty());
    }
    qunsetenv("HOME");
    EXPECT_TRUE(places.locate(u"~/.npm"_s).isEmpty());
    EXPECT_EQ(paths(places.locate(u"/tmp"_s)), QStringList(u"/tmp"_s));
}

TEST(FreedesktopPlaces, NeverAnswersWithTheHomeFolder) {
    TemporaryHome home;
    const FreedesktopPlaces places;
    home.makeFile(u".config/user-dirs.dirs"_s, "XDG_DOWNLOAD_DIR=\"$HOME/\"\n");
    EXPECT_TRUE(places.locate(u"~/Downloads"_s).isEmpty());
    ASSERT_TRUE(QFile::link(home.path(), home.path(u".npm"_s)));
    EXPECT_TRUE(places.locate(u"~/.npm"_s).isEmpty());
}

TEST(FreedesktopPlaces, ObjectsToACacheHomeThatIsMoreThanThat) {
    const std::tuple<const char*, bool> cases[] = {
        {".cache", false},
        {"fast disk/caches", false},
        {".config", true},
        {".config/caches", true},
        {".local", true},
        {".local/share", true},
        {".local/state/caches", true},
        {"Documents", true},
        {"Documents/caches", true},
        {".", true},
        {"..", true},
        {"mount point", true},
        {"mount point/caches", false},
    };
    for (const auto& [cacheHome, refused] : cases) {
        SCOPED_TRACE(cacheHome);
        const TemporaryHome home;
        const QString table =
            u"36 35 98:0 /root %1/mount\\040point rw - ext4 /dev/sdb1 rw\n"_s.arg(home.path());
        const FreedesktopPlaces places(home.makeFile(u"mountinfo"_s, table.toUtf8()).toStdString());
        const QString folder = QDir::cleanPath(home.makeFolder(QString::fromUtf8(cacheHome)));
        home.makeFolder(QString::fromUtf8(cacheHome) + u"/pip"_s);
        qputenv("XDG_CACHE_HOME", folder.toUtf8());
        for (const auto& path : {u"~/Library/Caches"_s, u"~/Library/Caches/pip"_s}) {
            const QList<Place> found = places.locate(path);
            ASSERT_EQ(found.size(), 1);
            EXPECT_EQ(found[0].objection.startsWith(folder + u" is left alone: "_s), refused);
            EXPECT_EQ(found[0].objection.isEmpty(), !refused);
        }
    }
}

TEST(FreedesktopPlaces, ObjectsToWhatContainsTheSettings) {
    const TemporaryHome home;
    const FreedesktopPlaces places;
    home.makeFolder(u".config"_s);
    home.makeFolder(u"Library/Caches"_s);
    EXPECT_TRUE(places.locate(u"~/Library/Caches"_s).first().objection.isEmpty());
    qputenv("XDG_DATA_HOME", home.makeFolder(u"Library/Caches/data"_s).toUtf8());
    EXPECT_FALSE(places.locate(u"~/Library/Caches"_s).first().objection.isEmpty());
}

TEST(FreedesktopPlaces, FindsFoldersOfLogsThatExist) {
    const TemporaryHome home;
    const FreedesktopPlaces places;
    QStringList expected;
    for (const auto& folder : {u"Library/Logs"_s, u".local/state/.tool/logs"_s, u".local/state/tool/log"_s,
                               u".config/Code/logs"_s, u".cache/JetBrains/Idea1/log"_s, u".npm/_logs"_s})
        expected.append(home.makeFolder(folder));
    home.makeFolder(u".local/state/tool/history"_s);
    home.makeFile(u".local/state/other/logs"_s);
    EXPECT_EQ(paths(places.locate(u"~/Library/Logs"_s)), expected);
}

TEST(FreedesktopPlaces, FollowsTheVariablesOfToolsAndPatterns) {
    const TemporaryHome home;
    const FreedesktopPlaces places;
    const auto found = [&](const QString& path) { return paths(places.locate(path)); };
    const QString deep = home.makeFolder(u".cache/tool/one/logs-a"_s);
    const QString other = home.makeFolder(u".cache/tool/.two/logs-b"_s);
    home.makeFolder(u".cache/tool/one/Logs-c"_s);
    home.makeFile(u".cache/tool/one/logs-file"_s);
    home.makeFolder(u"elsewhere/logs-d"_s);
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), home.path(u".cache/tool/three"_s)));
    QStringList logs = found(u"$XDG_CACHE_HOME/tool/*/logs-*"_s);
    logs.sort();
    EXPECT_EQ(logs, QStringList({other, deep})) << "hidden ones too, but no links, files and other cases";

    const QString source = home.makeFolder(u".cargo/registry/src"_s);
    EXPECT_EQ(found(u"$CARGO_HOME/registry/src"_s), QStringList(source));
    const QString moved = home.makeFolder(u"my cargo [1]/registry/src"_s);
    qputenv("CARGO_HOME", home.path(u"my cargo [1]"_s).toUtf8());
    EXPECT_EQ(found(u"$CARGO_HOME/registry/src"_s), QStringList(moved));
    qputenv("CARGO_HOME", "relative");
    EXPECT_EQ(found(u"$CARGO_HOME/registry/src"_s), QStringList(source));
    qunsetenv("CARGO_HOME");
    EXPECT_TRUE(found(u"$NO_SUCH_NAME/registry"_s).isEmpty());
}

TEST(FreedesktopPlaces, ObjectsToPlacesOfToolsThatAreMoreThanThat) {
    const TemporaryHome home;
    const QString table = u"36 35 98:0 /root %1/disk/hub rw - ext4 /dev/sdb1 rw\n"_s.arg(home.path());
    const FreedesktopPlaces places(home.makeFile(u"mountinfo"_s, table.toUtf8()).toStdString());
    const std::tuple<const char*, bool> cases[] = {
        {"models", false}, {"Documents/models", true}, {".config", true}, {".local/share/hf", true},
        {"disk", true},
    };
    for (const auto& [folder, isRefused] : cases) {
        home.makeFolder(QString::fromUtf8(folder) + u"/hub"_s);
        qputenv("HF_HOME", home.path(QString::fromUtf8(folder)).toUtf8());
        const QList<Place> found = places.locate(u"$HF_HOME/hub"_s);
        ASSERT_EQ(found.size(), 1) << folder;
        EXPECT_EQ(!found[0].objection.isEmpty(), isRefused) << folder;
    }
    qunsetenv("HF_HOME");
    ASSERT_TRUE(QFile::link(home.path(u"models"_s), home.makeFolder(u".cache"_s) + u"/huggingface"_s));
    ASSERT_TRUE(QFile::link(home.path(u"models/hub"_s), home.path(u".cache/thumbnails"_s)));
    EXPECT_FALSE(places.locate(u"$XDG_CACHE_HOME/thumbnails"_s).first().objection.isEmpty()) << "a link";
    EXPECT_TRUE(places.canExist(u"~/Library/Caches/pip"_s));
    EXPECT_FALSE(places.canExist(u"~/Library/Developer/Xcode/DerivedData"_s));
}

} // namespace

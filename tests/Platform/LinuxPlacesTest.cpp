#include "Platform/Linux/LinuxPlaces.h"
#include "support/Each.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

TEST(LinuxPlaces, NamesThePlaceOfLinuxWhereTheCataloguePathDoesNotExist) {
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
        const LinuxPlaces places;
        home.makeFile(u".config/user-dirs.dirs"_s, "XDG_DOWNLOAD_DIR=\"$HOME/Geladenes\"\n"
                                                   "XDG_DESKTOP_DIR=\"$HOME/Arbeitsfläche\"\n");
        const QString asItStands = home.path(path.mid(2));
        EXPECT_EQ(places.locate(path), QStringList(asItStands)) << "neither exists";
        const auto made = each(linuxPlaces, [&](const QString& place) { return home.makeFolder(place); });
        EXPECT_EQ(places.locate(path), made);
        home.makeFolder(path.mid(2));
        EXPECT_EQ(places.locate(path), QStringList(asItStands)) << "both exist";
    }
}

TEST(LinuxPlaces, FollowsTheXdgVariablesUnlessTheyAreRelative) {
    TemporaryHome home;
    const LinuxPlaces places;
    home.makeFolder(u".cache/pip"_s);
    home.makeFolder(u"fast/pip"_s);
    qputenv("XDG_CACHE_HOME", home.path(u"fast"_s).toUtf8());
    EXPECT_EQ(places.locate(u"~/Library/Caches/pip"_s), QStringList(home.path(u"fast/pip"_s)));
    qputenv("XDG_CACHE_HOME", "fast");
    EXPECT_EQ(places.locate(u"~/Library/Caches/pip"_s), QStringList(home.path(u".cache/pip"_s)));
}

TEST(LinuxPlaces, HasNoPlaceWithoutAHomeFolder) {
    TemporaryHome home;
    const LinuxPlaces places;
    for (const char* value : {"", "/", "//", "/../", "relative", "~", "/no/such/folder"}) {
        SCOPED_TRACE(value);
        qputenv("HOME", value);
        EXPECT_TRUE(places.locate(u"~/.npm"_s).isEmpty());
        EXPECT_TRUE(places.locate(u"~/Library/Caches"_s).isEmpty());
    }
    qunsetenv("HOME");
    EXPECT_TRUE(places.locate(u"~/.npm"_s).isEmpty());
    EXPECT_EQ(places.locate(u"/tmp"_s), QStringList(u"/tmp"_s));
}

TEST(LinuxPlaces, NeverAnswersWithTheHomeFolderOrWhatHoldsIt) {
    TemporaryHome home;
    const LinuxPlaces places;
    for (const QString& folder : {home.path(), home.path(u".."_s), u"/"_s}) {
        SCOPED_TRACE(folder.toStdString());
        qputenv("XDG_CACHE_HOME", folder.toUtf8());
        EXPECT_TRUE(places.locate(u"~/Library/Caches"_s).isEmpty());
    }
    home.makeFile(u".config/user-dirs.dirs"_s, "XDG_DOWNLOAD_DIR=\"$HOME/\"\n");
    EXPECT_TRUE(places.locate(u"~/Downloads"_s).isEmpty());
    ASSERT_TRUE(QFile::link(home.path(), home.path(u".npm"_s)));
    EXPECT_TRUE(places.locate(u"~/.npm"_s).isEmpty());
}

TEST(LinuxPlaces, SeesWritableMountsInside) {
    TemporaryHome home;
    const QString folder = home.makeFolder(u"the cache"_s);
    const std::tuple<QString, QString, bool> cases[] = {
        {folder + u"/inside"_s, u"rw,relatime"_s, true},   {folder + u"/deep/er"_s, u"rw"_s, true},
        {folder + u"/image"_s, u"ro,nosuid"_s, false},     {folder, u"rw,relatime"_s, false},
        {folder + u"2/inside"_s, u"rw,relatime"_s, false}, {u"/"_s, u"rw,relatime"_s, false},
    };
    for (const auto& [mountPoint, options, reached] : cases) {
        SCOPED_TRACE(mountPoint.toStdString());
        const QString escaped = QString(mountPoint).replace(u' ', u"\\040"_s);
        const QString line = u"36 35 98:0 /root %1 %2 master:1 - ext4 /dev/sdb1 rw\n"_s.arg(escaped, options);
        const LinuxPlaces places(home.makeFile(u"mountinfo"_s, line.toUtf8()).toStdString());
        EXPECT_EQ(places.reachesMount(folder), reached);
    }
    EXPECT_TRUE(LinuxPlaces("/no/such/table").reachesMount(folder));
    EXPECT_FALSE(LinuxPlaces().reachesMount(folder));
}

} // namespace

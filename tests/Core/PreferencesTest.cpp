#include "Preferences.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"
#include "support/TemporarySettings.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString iniFile = u"s.ini"_s;

} // namespace

TEST(Preferences, NewOnesReadTheDefaultsAndWriteNothing) {
    const TemporarySettings settings;
    EXPECT_EQ(settings.preferences.historyRetentionSamples(), 750);
    EXPECT_FALSE(QFile::exists(settings.path));
}

TEST(Preferences, ReadableValuesAreTakenAndOthersAreTheDefault) {
    const std::tuple<const char*, double, bool, MenuBarFormat> cases[] = {
        {"pref.pollIntervalSeconds=5", 5, false, MenuBarFormat::both},
        {"pref.pollIntervalSeconds=nan", 2, false, MenuBarFormat::both},
        {"pref.pollIntervalSeconds=inf", 2, false, MenuBarFormat::both},
        {"pref.pollIntervalSeconds=fast", 2, false, MenuBarFormat::both},
        {"pref.pollIntervalSeconds=1, 2", 2, false, MenuBarFormat::both},
        {"pref.pollIntervalSeconds=-3", -3, false, MenuBarFormat::both},
        {"pref.pauseOnLowPower=true", 2, true, MenuBarFormat::both},
        {"pref.pauseOnLowPower=perhaps", 2, false, MenuBarFormat::both},
        {"pref.menuBarFormat=CPU%", 2, false, MenuBarFormat::cpuOnly},
        {"pref.menuBarFormat=cpu%", 2, false, MenuBarFormat::both},
        {"pref.menuBarFormat=\"Icon only\"", 2, false, MenuBarFormat::iconOnly},
        {"\x01\xff[[[broken", 2, false, MenuBarFormat::both},
    };
    for (const auto& [line, interval, paused, format] : cases) {
        const TemporaryFolder folder;
        const Preferences prefs(folder.makeFile(iniFile, QByteArray("[General]\n") + line + '\n'));
        EXPECT_EQ(prefs.pollIntervalSeconds(), interval) << line;
        EXPECT_EQ(prefs.pauseOnLowPower(), paused) << line;
        EXPECT_EQ(prefs.menuBarFormat(), format) << line;
    }
}

TEST(Preferences, ListsOfTextsAreReadBack) {
    const TemporaryFolder folder;
    const QString path = folder.path() + u'/' + iniFile;
    for (const QStringList& list :
         {QStringList({u"/a,b"_s}), QStringList({u"/a"_s, u"/ü, \"c\"\n"_s}), QStringList()}) {
        Preferences(path).projectFolders.set(list);
        EXPECT_EQ(Preferences(path).projectFolders(), list);
    }
}

TEST(Preferences, ADamagedFileIsCopiedAndItsReadableValuesStay) {
    const TemporaryFolder folder;
    const QByteArray damaged("\0\xff[[\x01\npref.showInDock\n[General]\npref.pauseOnLowPower=true\n", 57);
    const QString path = folder.makeFile(iniFile, damaged);
    Preferences prefs(path);
    EXPECT_TRUE(prefs.pauseOnLowPower());
    prefs.startAtLogin.set(false);
    EXPECT_EQ(contentOf(path + u".damaged"_s), damaged);
    const Preferences again(path);
    EXPECT_TRUE(again.pauseOnLowPower());
    EXPECT_FALSE(again.startAtLogin());
}

TEST(Preferences, OnlyARegularFileIsReplacedAndValuesLastAsLongAsTheProgram) {
    const TemporaryFolder place;
    const QString pipe = place.path(u"pipe"_s);
    const QString symlink = place.path(u"symlink"_s);
    const QString folder = place.makeFolder(u"folder"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(pipe, symlink));
    for (const QString& path : {pipe, symlink, folder}) {
        Preferences prefs(path);
        EXPECT_EQ(prefs.pollIntervalSeconds(), 2) << qPrintable(path);
        prefs.pollIntervalSeconds.set(5);
        EXPECT_EQ(prefs.pollIntervalSeconds(), 5) << qPrintable(path);
    }
    const auto kept = QDir(place.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    EXPECT_EQ(kept, QStringList({u"folder"_s, u"pipe"_s, u"symlink"_s}));
    EXPECT_FALSE(QFileInfo(pipe).isFile());
}

TEST(Preferences, AWriteIsAnnouncedFirstAndOnDiskAtOnce) {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    double seenWhileAnnounced = 0;
    QObject::connect(&prefs, &Preferences::objectWillChange, &prefs,
                     [&] { seenWhileAnnounced = prefs.pollIntervalSeconds(); });
    prefs.pollIntervalSeconds.set(10);
    EXPECT_EQ(seenWhileAnnounced, 2.0);
    EXPECT_EQ(prefs.pollIntervalSeconds(), 10.0);
    EXPECT_TRUE(contentOf(settings.path).contains("pref.pollIntervalSeconds=10"));
}

TEST(Preferences, AFullDiskLosesNothing) {
    TemporarySettings settings;
    settings.preferences.alertCachesBigGB.set(7);
    settings.preferences.storeQuickKillPresets(QuickKillPreset::defaults());
    const QByteArray before = contentOf(settings.path);
    {
        const FullDisk full(static_cast<rlim_t>(before.size() / 2));
        settings.preferences.showInDock.set(false);
    }
    EXPECT_EQ(contentOf(settings.path), before);
    EXPECT_FALSE(settings.preferences.showInDock());
    settings.preferences.pollIntervalSeconds.set(5);
    const Preferences reread(settings.path);
    EXPECT_FALSE(reread.showInDock());
    EXPECT_EQ(reread.alertCachesBigGB(), 7.0);
    EXPECT_EQ(reread.quickKillPresets(), QuickKillPreset::defaults());
    EXPECT_EQ(QDir(settings.folder.path()).entryList(QDir::Files).size(), 1);
}

TEST(Preferences, TwoWritersKeepEachOthersKeys) {
    TemporarySettings settings;
    Preferences other(settings.path);
    settings.preferences.alertCachesBigGB.set(7);
    other.pollIntervalSeconds.set(5);
    settings.preferences.showInDock.set(false);
    const Preferences reread(settings.path);
    EXPECT_EQ(reread.alertCachesBigGB(), 7.0);
    EXPECT_EQ(reread.pollIntervalSeconds(), 5.0);
    EXPECT_FALSE(reread.showInDock());
}

TEST(Preferences, HistoryLengthFollowsRetentionAndIntervalWithAMinimum) {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    using enum HistoryRetention;
    const std::tuple<HistoryRetention, double, int> cases[] = {{fiveMin, 2, 150},
                                                               {fiveMin, 10, 60},
                                                               {oneHour, 0.25, 7200},
                                                               {oneHour, -1, 7200},
                                                               {twentyFive, 7, 214}};
    for (const auto& [retention, interval, samples] : cases) {
        prefs.historyRetention.set(retention);
        prefs.pollIntervalSeconds.set(interval);
        EXPECT_EQ(prefs.historyRetentionSamples(), samples);
    }
}

#include "Preferences.h"

#include "support/TemporarySettings.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

void write(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(text), text.size());
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(Preferences, FreshOnesReadTheDefaultsAndWriteNothing) {
    const TemporarySettings settings;
    const Preferences& prefs = settings.preferences;
    EXPECT_TRUE(prefs.startAtLogin());
    EXPECT_FALSE(prefs.pauseOnLowPower());
    EXPECT_EQ(prefs.menuBarFormat(), MenuBarFormat::both);
    EXPECT_EQ(prefs.pollIntervalSeconds(), 2.0);
    EXPECT_EQ(prefs.alertIdleAgentMinRSSMB(), 500.0);
    EXPECT_TRUE(prefs.quickKillPresetsJSON().isEmpty());
    EXPECT_EQ(prefs.historyRetentionSamples(), 750);
    EXPECT_FALSE(QFile::exists(settings.path));
}

TEST(Preferences, ReadableValuesAreTakenAndOthersAreTheDefault) {
    struct Case {
        const char* line;
        double interval;
        bool paused;
        MenuBarFormat format;
    };
    const Case cases[] = {
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
    for (const Case& c : cases) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("s.ini"));
        write(path, QByteArray("[General]\n") + c.line + '\n');
        const Preferences prefs(path);
        EXPECT_EQ(prefs.pollIntervalSeconds(), c.interval) << c.line;
        EXPECT_EQ(prefs.pauseOnLowPower(), c.paused) << c.line;
        EXPECT_EQ(prefs.menuBarFormat(), c.format) << c.line;
    }
}

TEST(Preferences, ADamagedFileIsKeptBesideAndItsReadableValuesStay) {
    const TemporarySettings place;
    const QByteArray damaged("\0\xff[[\x01\npref.showInDock\n[General]\npref.pauseOnLowPower=true\n", 57);
    write(place.path, damaged);
    Preferences prefs(place.path);
    EXPECT_TRUE(prefs.pauseOnLowPower());
    prefs.startAtLogin.set(false);
    EXPECT_EQ(read(place.path + QStringLiteral(".damaged")), damaged);
    const Preferences again(place.path);
    EXPECT_TRUE(again.pauseOnLowPower());
    EXPECT_FALSE(again.startAtLogin());
}

TEST(Preferences, WhatIsNoFileIsLeftAloneAndValuesLastAsLongAsTheProgram) {
    const TemporarySettings place;
    const QString pipe = place.folder.filePath(QStringLiteral("pipe"));
    const QString link = place.folder.filePath(QStringLiteral("link"));
    const QString folder = place.folder.filePath(QStringLiteral("folder"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(pipe, link));
    ASSERT_TRUE(QDir().mkdir(folder));
    for (const QString& path : {pipe, link, folder}) {
        Preferences prefs(path);
        EXPECT_EQ(prefs.pollIntervalSeconds(), 2) << qPrintable(path);
        prefs.pollIntervalSeconds.set(5);
        EXPECT_EQ(prefs.pollIntervalSeconds(), 5) << qPrintable(path);
    }
    const auto kept =
        QDir(place.folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    EXPECT_EQ(kept, QStringList({QStringLiteral("folder"), QStringLiteral("link"), QStringLiteral("pipe")}));
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
    EXPECT_TRUE(read(settings.path).contains("pref.pollIntervalSeconds=10"));

    prefs.menuBarFormat.set(MenuBarFormat::ramOnly);
    prefs.quickKillPresetsJSON.set("[{\"a\":\"\xc3\xa9, b\"}]");
    const Preferences reread(settings.path);
    EXPECT_EQ(reread.menuBarFormat(), MenuBarFormat::ramOnly);
    EXPECT_EQ(reread.quickKillPresetsJSON(), QByteArray("[{\"a\":\"\xc3\xa9, b\"}]"));
}

TEST(Preferences, AFullDiskLosesNothing) {
    TemporarySettings settings;
    settings.preferences.alertCachesBigGB.set(7);
    settings.preferences.storeQuickKillPresets(QuickKillPreset::defaults());
    const QByteArray before = read(settings.path);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit tight{.rlim_cur = static_cast<rlim_t>(before.size() / 2), .rlim_max = limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    settings.preferences.showInDock.set(false);
    const QByteArray meanwhile = read(settings.path);
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(meanwhile, before);
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

TEST(Preferences, HistoryLengthFollowsRetentionAndIntervalWithAFloor) {
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    struct Case {
        HistoryRetention retention;
        double interval;
        int samples;
    };
    const Case cases[] = {{HistoryRetention::fiveMin, 2, 150},
                          {HistoryRetention::fiveMin, 10, 60},
                          {HistoryRetention::oneHour, 0.25, 7200},
                          {HistoryRetention::oneHour, -1, 7200},
                          {HistoryRetention::twentyFive, 7, 214}};
    for (const Case& c : cases) {
        prefs.historyRetention.set(c.retention);
        prefs.pollIntervalSeconds.set(c.interval);
        EXPECT_EQ(prefs.historyRetentionSamples(), c.samples);
    }
}

#include "Core/ActionLog/ActionLog.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Cleanup/ProjectLeftovers.h"
#include "Platform/CleanupFixture.h"
#include "Platform/CleanupTargets.h"
#include "Preferences.h"

#include <algorithm>
#include <fstream>

using namespace Qt::StringLiterals;
using Cleaner::CleanResult;

namespace {

using SystemTargetsOnDisk = CleanupOnDisk;

TEST_F(SystemTargetsOnDisk, CleaningAFolderKeepsWhatStays) {
    const QString model =
        home.makeFile(u".cache/huggingface/hub/models--a--b/blob"_s, QByteArray(900'000, 'x'));
    const QString index = home.makeFile(u".cache/huggingface/index"_s, QByteArray(50'000, 'x'));
    const QString other = home.makeFile(u".cache/other/file"_s, QByteArray(300'000, 'x'));
    CacheTarget caches = target(u"User caches"_s);
    caches.rule.kept = {home.path(u".cache/huggingface/hub"_s), home.path(u".cache/none"_s)};
    caches = scanned(caches);
    EXPECT_TRUE(caches.sizeBytes >= 350'000 && caches.sizeBytes < 900'000) << caches.sizeBytes;
    const CleanResult result = clean(caches);
    EXPECT_TRUE(result.done) << qPrintable(result.reason);
    EXPECT_TRUE(QFileInfo::exists(model));
    EXPECT_FALSE(QFileInfo::exists(other) || QFileInfo::exists(index));
}

TEST_F(SystemTargetsOnDisk, OfTheJournalCountsWhatIsOver500MB) {
    const QString journal = home.makeFile(u"bin/journalctl"_s);
    for (const QString& program : {journal, home.makeFile(u"bin/pkexec"_s)})
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    home.makeFile(u".profile"_s, "PATH=" + QFile::encodeName(home.path(u"bin"_s)) + ":$PATH\n");
    const auto targets = Platform::native().cleanupTargets->all();
    const auto target = std::ranges::find(targets, u"System journal over 500 MB"_s, &PlatformTarget::name);
    const std::pair<QByteArray, quint64> cases[] = {{"1.5G", 1'086'324'736}, {"501M", 1 << 20}, {"24.0M", 0}};
    for (const auto& [size, over] : cases) {
        std::ofstream(journal.toStdString()) << "#!/bin/sh\necho Archived and active journals take up "
                                             << size.toStdString() << " in the file system.\n";
        const ToolResult result = QCoro::waitFor(
            tools->run(CleanupPlan::shellRequest(target->sizeCommand.value(), std::chrono::seconds(20))));
        EXPECT_EQ(result.output.trimmed(), QByteArray::number(over)) << size.toStdString();
    }
}

TEST_F(SystemTargetsOnDisk, OfLeftoversStaysWhatIsNeverCleaned) {
    home.makeFile(u"shop/package.json"_s);
    const QString cache = home.makeFile(u"shop/node_modules/deep/cache"_s);
    const QString kept = home.makeFile(u"shop/node_modules/deep/notes.db"_s);
    Preferences preferences(home.path(u"settings.ini"_s));
    preferences.cleanupExcludes.set({u"*.db"_s});
    Platform platform;
    platform.tools = tools;
    platform.clock = clock;
    ActionLog log(clock);
    ProjectLeftovers leftovers(platform, preferences, log);
    QCoro::waitFor(leftovers.search({}));
    QCoro::waitFor(leftovers.remove(leftovers.projects()));
    EXPECT_FALSE(QFile::exists(cache));
    EXPECT_TRUE(QFile::exists(kept));
    EXPECT_EQ(leftovers.lastRemoval()->failures.size(), 1);
}

TEST_F(SystemTargetsOnDisk, RemovesLeftoversOfProjectsWhateverTheirNames) {
    const std::string top = std::filesystem::canonical(home.path().toStdString()).string();
    const std::string names[] = {"shop", "two\nlines", "caf\xe9"};
    for (const std::string& name : names) {
        std::filesystem::create_directories(top + '/' + name + "/node_modules/deep");
        std::ofstream(top + '/' + name + "/package.json") << "{}";
        std::ofstream(top + '/' + name + "/node_modules/deep/file") << "x";
    }
    Platform platform;
    platform.tools = tools;
    platform.clock = clock;
    ActionLog log(clock);
    const Preferences preferences(home.path(u"settings.ini"_s));
    ProjectLeftovers leftovers(platform, preferences, log);
    QCoro::waitFor(leftovers.search({}));
    ASSERT_EQ(leftovers.projects().size(), 3);
    EXPECT_TRUE(leftovers.searchFailure().isEmpty());

    const QList<LeftoverProject> found = leftovers.projects();
    std::filesystem::rename(top + "/shop/node_modules", top + "/shop/was");
    std::filesystem::create_directories(top + "/shop/node_modules/new");
    QCoro::waitFor(leftovers.remove(found));
    EXPECT_EQ(leftovers.lastRemoval()->folders, 2);
    EXPECT_EQ(leftovers.lastRemoval()->failures,
              QStringList(QString::fromStdString(top) +
                          u"/shop/node_modules (something in it is new, or is on the "
                          "list of what is never cleaned)"_s));
    EXPECT_TRUE(std::filesystem::exists(top + "/shop/node_modules/new")) << "it came after the search";
    for (const std::string& name : {names[1], names[2]})
        EXPECT_FALSE(std::filesystem::exists(top + '/' + name + "/node_modules"));
    for (const std::string& name : names) {
        EXPECT_TRUE(std::filesystem::exists(top + '/' + name + "/package.json"));
        std::filesystem::remove_all(top + '/' + name);
    }
    QCoro::waitFor(leftovers.search({home.path(u"no such folder"_s)}));
    EXPECT_FALSE(leftovers.searchFailure().isEmpty());
}

} // namespace

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Cleanup/CleanupOverlap.h"

#include "support/Each.h"
#include "support/FakePlaces.h"
#include "support/Listing.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const CleanupRule weekOldFiles{.measure = CleanupRule::Measure::oldFiles, .olderThanDays = 7};

CacheTarget scanned(const QString& name, const CleanupRule& rule, const QList<ListedFolder>& listed) {
    CacheTarget target{.name = name, .rule = rule, .listed = listed};
    for (const ListedFolder& folder : listed)
        target.sizeBytes += folder.sizeBytes;
    return target;
}

TEST(CleanupPlan, CountsOnceWhatSeveralTargetsContain) {
    const TemporaryHome home;
    const QString caches = home.makeFolder(u"caches"_s);
    const QString uv = home.makeFolder(u"caches/uv"_s);
    const QString logs = home.makeFolder(u"caches/uv/logs"_s);
    const QString namesake = home.makeFolder(u"caches of mine"_s);
    const QString mounted = home.makeFolder(u"caches/mounted"_s);
    const QString downloads = home.makeFolder(u"downloads"_s);
    const auto here = [](quint64 bytes) { return withTotal(listingOf({}), bytes); };
    QList<CacheTarget> targets = {
        scanned(u"logs"_s, {}, {{logs, 10, here(10)}}),
        scanned(u"caches"_s, {}, {{caches, 1000, here(1000)}}),
        scanned(u"uv"_s, {},
                {{uv, 100, here(100)},
                 {namesake, 7, here(7)},
                 {mounted, 50, withTotal(listingOf({}, "65"), 50)}}),
        scanned(u"caches again"_s, {}, {{caches, 1000, here(1000)}}),
        scanned(u"old"_s, weekOldFiles,
                {{home.path(), 35, listingOf({{"caches/a", 5}, {"downloads/b", 30}})}}),
        scanned(u"older"_s, weekOldFiles, {{downloads, 34, listingOf({{"b", 30}, {"c", 4}})}}),
    };
    CleanupOverlap::mark(targets);
    EXPECT_EQ(each(targets, &CacheTarget::sharedBytes), QList<quint64>({10, 0, 100, 1000, 5, 30}));
    EXPECT_EQ(CleanupOverlap::totalBytes(targets), 1000U + 7 + 50 + 30 + 4);

    QList<CacheTarget> some = {targets[0], targets[2], targets[5]};
    CleanupOverlap::mark(some);
    EXPECT_EQ(CleanupOverlap::totalBytes(some), 100U + 7 + 50 + 34) << "nothing else is to go";
}

TEST(CleanupPlan, NamesTheLargestEntries) {
    QList<std::pair<QByteArray, quint64>> files;
    for (quint64 i = 1; i <= 200; ++i)
        files.append({"deep/file " + QByteArray::number(i * 7 % 201), i * 7 % 201});
    files.append({"gone.trashinfo", 999});
    const CacheTarget target{.name = u"x"_s,
                             .listed = {{u"/a"_s, 0, listingOf(files)},
                                        {u"/b"_s, 0, {}},
                                        {u"/c"_s, 0, listingOf({{"largest", 500}})}}};
    const CleanupPlan::Names names = CleanupPlan::namesOf(target, 3);
    EXPECT_EQ(each(names.shown, &CacheEntry::path),
              QStringList({u"largest"_s, u"file 200"_s, u"file 199"_s}));
    EXPECT_EQ(names.shown.first().sizeBytes, 500u);
    EXPECT_EQ(names.count, 201);
    EXPECT_EQ(CleanupPlan::namesOf(target, 300).shown.size(), 201);
}

TEST(CleanupPlan, ReadsAListingUpToTheFirstMalformedRecord) {
    const std::pair<QByteArray, QByteArrayList> cases[] = {
        {listingOf({{"two\nlines", 3}, {" caf\xe9 ", 0}}), {"two\nlines", " caf\xe9 "}},
        {listingOf({{"a", 1}}) + "7 8 0 - cut off", {"a"}},
        {listingOf({{"a", 1}}) + "7 -8 0 - b" + '\0' + listingOf({{"c", 1}}), {"a"}},
        {"64:2", {}},
        {{}, {}},
    };
    for (const auto& [text, paths] : cases) {
        CleanupPlan::ListingReader reader(text);
        QByteArrayList read;
        while (const auto entry = reader.next())
            read.append(entry->path.toByteArray());
        EXPECT_EQ(read, paths) << text.toStdString();
    }
}

} // namespace

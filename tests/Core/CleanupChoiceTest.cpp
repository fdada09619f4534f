#include "Core/Cleanup/CleanupChoice.h"

#include "Core/Cleanup/CleanupOverlap.h"
#include "support/Listing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Levels = CleanupChoice::Levels;
using Tick = CleanupChoice::Tick;

QByteArray marked(QByteArray listing, const QByteArray& path, const QByteArray& marks) {
    return listing.replace(" - " + path + '\0', ' ' + marks + ' ' + path + '\0');
}

/// A target whose folders take what their listings say.
CacheTarget targetOf(const QString& name, const QList<std::pair<QString, QByteArray>>& folders) {
    CacheTarget target{.name = name, .symbol = {}};
    for (const auto& [path, listing] : folders) {
        const quint64 bytes = listing.split(' ')[1].toULongLong();
        target.listed.append({path, bytes, listing});
        target.sizeBytes += bytes;
    }
    return target;
}

quint64 together(QList<CacheTarget> targets) {
    CleanupOverlap::mark(targets);
    return CleanupOverlap::totalBytes(targets);
}

struct CleanupChoiceTest : testing::Test {
    CleanupChoice::Index named(const CleanupChoice& choice, const QString& name,
                               CleanupChoice::Index above = CleanupChoice::top) {
        for (const auto child : choice.children(above)) {
            if (choice.nameOf(child) == name)
                return child;
            if (const auto below = named(choice, name, child))
                return below;
        }
        return CleanupChoice::top;
    }
    QStringList shownIn(const CleanupChoice& choice, CleanupChoice::Index above = CleanupChoice::top) {
        QStringList names;
        for (const auto child : choice.shown(above))
            names.append(choice.nameOf(child));
        return names;
    }

    CacheTarget npm =
        targetOf(u"npm"_s, {{u"/h/.npm"_s, marked(listingOf({{"a", 5}, {"b", 3}, {"c", 9}}), "b", "d")}});
    CacheTarget logs =
        targetOf(u"logs"_s, {{u"/h/l"_s, listingOf({{"x", 1}})}, {u"/h/m"_s, listingOf({{"y", 2}})}});
};

} // namespace

TEST_F(CleanupChoiceTest, WhatIsChosenIsAListingOfIt) {
    CleanupChoice choice({npm, logs}, Levels::ofTargets);
    EXPECT_EQ(choice.chosen(), (QList<CacheTarget>{npm, logs})) << "all of it, as it was listed";
    EXPECT_EQ(choice.sum(), (CleanupChoice::Sum{20, 5, 0}));

    choice.setTicked(named(choice, u"b"_s), false);
    choice.setTicked(named(choice, u"/h/m"_s), false);
    EXPECT_EQ(choice.node(named(choice, u"npm"_s)).tick, Tick::some);
    const QList<CacheTarget> chosen = choice.chosen();
    EXPECT_EQ(chosen[0].sizeBytes, 14u);
    EXPECT_FALSE(chosen[0].listed[0].listing.contains(" b"));
    EXPECT_TRUE(chosen[0].listed[0].listing.startsWith(npm.listed[0].listing.left(8)));
    EXPECT_EQ(chosen[1].listed, QList<ListedFolder>{logs.listed[0]});
    EXPECT_EQ(choice.sum(), (CleanupChoice::Sum{15, 3, 2}));
    EXPECT_EQ(choice.leftOut(), (QStringList{u"/h/.npm/b"_s, u"/h/m"_s}));

    choice.setTicked(named(choice, u"npm"_s), false);
    EXPECT_EQ(choice.chosen().size(), 1);
    choice.setTicked(named(choice, u"npm"_s), true);
    EXPECT_EQ(choice.chosen()[0], npm);
}

TEST_F(CleanupChoiceTest, WhatAProgramUsesAndWhatIsInsideAreChosenOnTheirOwn) {
    npm.listed[0].listing = marked(npm.listed[0].listing, "c", "u");
    CleanupChoice choice({npm}, Levels::ofFolders);
    EXPECT_EQ(choice.node(named(choice, u"c"_s)).tick, Tick::none);
    EXPECT_TRUE(choice.leftOut().isEmpty()) << "nobody left it out";
    const auto inner = named(choice, u"b"_s);
    EXPECT_FALSE(choice.insert(inner, {}));
    EXPECT_TRUE(choice.insert(inner, marked(listingOf({{"b/x", 1}, {"b/y", 2}}), "b/y", "du")));
    EXPECT_EQ(choice.node(inner).tick, Tick::some);
    const ListedFolder part = choice.chosen()[0].listed[0];
    EXPECT_EQ(part.sizeBytes, 6u);
    EXPECT_TRUE(part.listing.contains(" b/x") && !part.listing.contains(" b/y") &&
                !part.listing.contains(" - c"));
    choice.setTicked(choice.children(CleanupChoice::top)[0], true);
    EXPECT_EQ(choice.sum(), (CleanupChoice::Sum{17, 4, 0})) << "by hand even what is in use";
    choice.setTicked(choice.children(CleanupChoice::top)[0], false);
    EXPECT_TRUE(choice.chosen().isEmpty());
}

TEST_F(CleanupChoiceTest, OrderAndFilter) {
    CleanupChoice choice(
        {targetOf(u"npm"_s, {{u"/h"_s, listingOf({{"Bb", 5}, {"ab", 3}, {"caf\xe9\n", 9}})}})},
        Levels::ofFolders);
    const auto folder = choice.shown(CleanupChoice::top)[0];
    EXPECT_EQ(shownIn(choice, folder)[1], u"Bb"_s) << "the largest first";
    choice.sort(CleanupChoice::Order::name, false);
    EXPECT_EQ(shownIn(choice, folder).first(2), (QStringList{u"Bb"_s, u"ab"_s}));
    choice.filter(u"B"_s);
    EXPECT_EQ(shownIn(choice, folder), (QStringList{u"Bb"_s, u"ab"_s}));
    EXPECT_TRUE(choice.isTicked(folder));
    choice.setTicked(folder, false);
    EXPECT_EQ(choice.sum(), (CleanupChoice::Sum{9, 1, 2})) << "what is hidden stays as it is";
    EXPECT_FALSE(choice.isTicked(folder));
    choice.filter(u"/H"_s);
    EXPECT_EQ(shownIn(choice, folder).size(), 3) << "all of a folder that is searched for";
    choice.setTicked(CleanupChoice::top, true);
    EXPECT_EQ(choice.sum(), (CleanupChoice::Sum{17, 3, 0}));
    choice.filter({});
    EXPECT_EQ(shownIn(choice, folder).size(), 3);
}

TEST_F(CleanupChoiceTest, AnEntryIsFoundByWhatAPersonCallsIt) {
    CacheTarget models =
        targetOf(u"models"_s, {{u"/h/blobs"_s, listingOf({{"sha256-9", 7}, {"sha256-1", 4}})}});
    models.listed[0].names = {{u"sha256-9"_s, u"a:8b"_s}, {u"sha256-1"_s, u"b:1b"_s}};
    CleanupChoice choice({models}, Levels::ofFolders);
    const auto folder = choice.shown(CleanupChoice::top)[0];
    choice.sort(CleanupChoice::Order::name, false);
    EXPECT_EQ(shownIn(choice, folder), (QStringList{u"a:8b — sha256-9"_s, u"b:1b — sha256-1"_s}));
    choice.filter(u"b:1"_s);
    EXPECT_EQ(shownIn(choice, folder), QStringList(u"b:1b — sha256-1"_s));
}

TEST_F(CleanupChoiceTest, WhatTwoTargetsListCountsOnce) {
    const CacheTarget all = targetOf(u"all"_s, {{u"/c"_s, listingOf({{"pip", 5}, {"uv", 3}})}});
    const CacheTarget pip = targetOf(u"pip"_s, {{u"/c/pip"_s, listingOf({{"a", 4}, {"b", 1}})}});
    CacheTarget old = targetOf(u"old"_s, {{u"/c"_s, listingOf({{"pip/a", 4}, {"zz", 7}})}});
    old.rule.measure = CleanupRule::Measure::oldFiles;
    EXPECT_EQ(together({pip, all}), 8u);
    EXPECT_EQ(together({all, old}), 8u) << "all of the folder goes, what is not listed too";
    EXPECT_EQ(together({pip, old}), 12u);

    CleanupChoice choice({all, pip, old}, Levels::ofTargets);
    EXPECT_EQ(choice.sum().bytes, 8u);
    choice.setTicked(named(choice, u"pip"_s, named(choice, u"all"_s)), false);
    EXPECT_EQ(choice.sum().bytes, 3 + 5 + 7u);
    const CacheTarget elsewhere = targetOf(u"x"_s, {{u"/c/pip"_s, listingOf({{"a", 4}}, "65")}});
    EXPECT_EQ(together({all, elsewhere}), 12u) << "another file system is mounted there";
}

#include "Core/Models.h"

#include <gtest/gtest.h>

template <typename E> void expectRoundTrip() {
    for (const E value : allCases<E>()) {
        EXPECT_FALSE(rawValue(value).isEmpty());
        EXPECT_EQ(fromRawValue<E>(rawValue(value)), value);
        EXPECT_FALSE(fromRawValue<E>(rawValue(value).toUpper() + u'x').has_value());
    }
    EXPECT_FALSE(fromRawValue<E>(u"").has_value());
}

TEST(Models, RawValuesGoBothWaysAndUnknownOnesGiveNothing) {
    expectRoundTrip<ThermalState>();
    expectRoundTrip<ProcGroup>();
    expectRoundTrip<Alert::Severity>();
    expectRoundTrip<ActionLogEntry::Kind>();
}

TEST(Models, ZeroSampleStaysTheSame) {
    EXPECT_EQ(SystemSample::zero(), SystemSample::zero());
    EXPECT_FALSE(SystemSample::zero().id.isNull());
    EXPECT_EQ(SystemSample::zero().memUsedPercent(), 0);
}

TEST(CacheCatalogue, NamesAreUniqueAndSpecialOnesExact) {
    const QList<CacheTarget>& all = CacheTarget::defaults();
    ASSERT_EQ(all.size(), 15);
    QStringList names;
    for (const CacheTarget& target : all) {
        EXPECT_FALSE(names.contains(target.name)) << qPrintable(target.name);
        EXPECT_EQ(target.sizeBytes, 0U);
        EXPECT_FALSE(target.lastScanned.has_value());
        names.append(target.name);
    }
    for (const auto* special : {"Old /tmp (>7d)", "Old Downloads (>30d)", "Old Desktop screenshots (>30d)"})
        EXPECT_TRUE(names.contains(QString::fromLatin1(special))) << special;
    EXPECT_EQ(all.last().name, QStringLiteral("Docker"));
    EXPECT_TRUE(all.last().paths.isEmpty());
    EXPECT_EQ(all.last().pruneCommand, QStringLiteral("docker system prune -af --volumes"));
}

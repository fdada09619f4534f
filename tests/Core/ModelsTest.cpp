#include "Core/Models.h"
#include "support/Each.h"

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

TEST(CacheCatalogue, NamesAreUniqueAndSpecialOnesExact) {
    const QList<CacheTarget>& all = CacheTarget::defaults();
    ASSERT_EQ(all.size(), 15);
    QStringList names = each(all, &CacheTarget::name);
    EXPECT_EQ(names.removeDuplicates(), 0);
    for (const auto* special : {"Old /tmp (>7d)", "Old Downloads (>30d)", "Old Desktop screenshots (>30d)"})
        EXPECT_TRUE(names.contains(QString::fromLatin1(special))) << special;
    EXPECT_EQ(names.last(), QStringLiteral("Docker"));
}

#include "Core/Formatters.h"

#include "support/Bytes.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Formatters, DurationChoosesItsUnitBeforeRounding) {
    const std::pair<double, const char*> cases[] = {
        {0, "0s"},      {42, "42s"},      {59.6, "60s"},  {60, "1m"},
        {89, "1m"},     {90, "2m"},       {150, "3m"},    {3599, "60m"},
        {3600, "1.0h"}, {5400, "1.5h"},   {4140, "1.1h"}, // a little less than 1.15
        {4500, "1.2h"},                                   // exactly 1.25
        {42.5, "42s"},  {86400, "24.0h"}, {-5, "0s"},     {std::numeric_limits<double>::quiet_NaN(), "0s"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(Formatters::duration(seconds).toStdString(), text) << seconds;
}

TEST(Formatters, AgoCountsWholeUnits) {
    const std::pair<double, const char*> cases[] = {
        {-10, "just now"},
        {0.9, "just now"},
        {1, "1 second ago"},
        {59.9, "59 seconds ago"},
        {60, "1 minute ago"},
        {7199, "1 hour ago"},
        {86400 * 6.9, "6 days ago"},
        {86400 * 14, "2 weeks ago"},
        {86400.0 * 800, "2 years ago"},
        {std::numeric_limits<double>::quiet_NaN(), "just now"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(Formatters::ago(seconds).toStdString(), text) << seconds;
}

TEST(Formatters, BytesStepBy1024WithAtMostOneDecimal) {
    const std::pair<quint64, const char*> cases[] = {
        {0, "0 bytes"},        {1, "1 byte"},           {1023, "1023 bytes"},
        {KiB, "1 KB"},         {KiB * 3 / 2, "1.5 KB"}, {MiB - 1, "1 MB"},
        {512 * MiB, "512 MB"}, {GiB * 3 / 2, "1.5 GB"}, {GiB * 1024, "1 TB"},
        {1280, "1.2 KB"},      {1048524, "1023.9 KB"},  {std::numeric_limits<quint64>::max(), "16 EB"},
    };
    for (const auto& [count, text] : cases)
        EXPECT_EQ(Formatters::bytes(count).toStdString(), text) << count;
}

TEST(Formatters, PercentRoundsAsPrintf) {
    const std::pair<double, const char*> cases[] = {{12.5, "12%"},
                                                    {13.5, "14%"},
                                                    {12.51, "13%"},
                                                    {400, "400%"},
                                                    {std::numeric_limits<double>::infinity(), "0%"}};
    for (const auto& [percent, text] : cases)
        EXPECT_EQ(Formatters::percent(percent).toStdString(), text) << percent;
}

TEST(Formatters, TextFromOutsideCannotBreakOrReverseALine) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"plain <b>name</b>", u"plain <b>name</b>"},
        {u"two\nlines\ttab", u"two\u240alines\u2409tab"},
        {u"del\x7f", u"del\u2421"},
        {u"evil\u202Etxt", u"evil\ufffdtxt"},
        {u"para\u2029graph", u"para\ufffdgraph"},
        {u"שלום", u"שלום"},
        {u"\U0001F469\u200D\U0001F4BB", u"\U0001F469\u200D\U0001F4BB"}, // one person at a computer
        {u"cla\u200Dude\u200D", u"cla\uFFFDude\uFFFD"},
    };
    for (const auto& [raw, shown] : cases)
        EXPECT_EQ(Formatters::visible(QString::fromUtf16(raw)), QString::fromUtf16(shown));
}

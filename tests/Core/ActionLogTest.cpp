#include "Core/ActionLog/ActionLog.h"
#include "Core/ActionLog/ActionLogFile.h"
#include "Core/ActionLog/ActionLogReader.h"
#include "Core/Iso8601.h"
#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/Files.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct ActionLogTest : testing::Test {
    TemporaryHome home;
    QString file = home.path(u"Library/Logs/Tavrin/actions.log"_s);

    QByteArray written() const { return contentOf(file); }
    QStringList details(const QByteArray& content) const {
        home.makeFile(u"Library/Logs/Tavrin/actions.log"_s, content);
        return each(ActionLogReader::read(), &LoggedAction::detail);
    }
    static ActionLogEntry entry(const QString& detail, qint64 seconds = 1'794'839'023) {
        return {.id = QUuid::createUuid(),
                .timestamp = Instant(std::chrono::seconds(seconds)) + std::chrono::milliseconds(999),
                .kind = ActionLogEntry::Kind::clean,
                .detail = detail,
                .freedBytes = 1048576,
                .success = true};
    }
};

} // namespace

TEST(Iso8601Test, AcceptsOnlyWholeSecondsInStrictForm) {
    const Instant expected(std::chrono::seconds(1'794'839'023));
    EXPECT_EQ(Iso8601::format(expected), "2026-11-16T14:23:43Z");
    EXPECT_EQ(Iso8601::format(Instant(std::chrono::milliseconds(-1))), "1969-12-31T23:59:59Z");
    for (const char* text :
         {"2026-11-16T14:23:43Z", "2026-11-16T15:23:43+01:00", "2026-11-16T12:53:43-01:30"})
        EXPECT_EQ(Iso8601::parse(text), expected) << text;
    for (const char* text : {"2024-02-29T00:00:00Z", "1677-09-21T00:12:44Z", "2262-04-11T23:47:16Z"})
        EXPECT_TRUE(Iso8601::parse(text)) << text;
    const QByteArray wrong = "|2026-11-16|2026-11-16T14:23:43|2026-11-16T14:23:43.5Z|2026-11-16T14:23:43z|"
                             "2026-11-16 14:23:43Z|2026-11-16t14:23:43Z|2026-13-16T14:23:43Z|"
                             "2026-00-16T14:23:43Z|2025-02-29T00:00:00Z|2026-11-16T24:00:00Z|"
                             "2026-11-16T14:60:43Z|2026-11-16T14:23:60Z|2026-11-16T14:23:43+0100|"
                             "2026-11-16T14:23:43+24:00|26-11-16T14:23:43Z|2026-11-16T14:23:4xZ|"
                             "0000-01-01T00:00:00Z|1677-09-21T00:12:43Z|2262-04-11T23:47:17Z|"
                             "9999-12-31T23:59:59-23:59|-026-11-16T14:23:43Z|2026-11-16T14:23:43ZZ|"
                             " 2026-11-16T14:23:43Z";
    for (const QByteArray& text : wrong.split('|'))
        EXPECT_FALSE(Iso8601::parse(text)) << text.data();
}

TEST_F(ActionLogTest, TheNewest200AreKeptAndTheFileHasAll) {
    ActionLog log(std::make_shared<FakeClock>());
    int announced = 0;
    QObject::connect(&log, &ActionLog::objectWillChange, &log,
                     [&] { EXPECT_EQ(log.entries().size(), std::min(announced++, 200)); });
    for (int i = 0; i < 203; ++i)
        log.record(ActionLogEntry::Kind::clean, QString::number(i), 0, true);
    EXPECT_EQ(announced, 203);
    ASSERT_EQ(log.entries().size(), 200);
    EXPECT_EQ(log.entries().first().detail, u"202"_s);
    EXPECT_EQ(log.entries().last().detail, u"3"_s);
    EXPECT_EQ(ActionLogReader::read().size(), 203);
}

TEST_F(ActionLogTest, EachActionIsOneLineAndReadsBack) {
    ActionLogFile::append(entry(u"Xcode DerivedData"_s));
    ActionLogEntry failed = entry(u"two\ttabs “quoted”"_s, 1'794'839'024);
    failed.kind = ActionLogEntry::Kind::forceKill;
    failed.success = false;
    failed.freedBytes = 18446744073709551615ULL;
    ActionLogFile::append(failed);
    EXPECT_EQ(written(), "2026-11-16T14:23:43Z\tclean\tok\t1048576\tXcode DerivedData\n"
                         "2026-11-16T14:23:44Z\tforceKill\tfail\t18446744073709551615\ttwo\ttabs “quoted”\n");
    const QList<LoggedAction> read = ActionLogReader::read();
    ASSERT_EQ(read.size(), 2);
    EXPECT_EQ(read[0], (LoggedAction{.timestamp = Instant(std::chrono::seconds(1'794'839'024)),
                                     .kind = u"forceKill"_s,
                                     .success = false,
                                     .freedBytes = 18446744073709551615ULL,
                                     .detail = u"two\ttabs “quoted”"_s}));
    EXPECT_EQ(read[1].id(), u"1794839023.0-Xcode DerivedData"_s);
}

TEST_F(ActionLogTest, DamagedLinesHideNoOther) {
    const QByteArray good = "2026-11-16T14:23:43Z\tquit\tok\t1\tgood\n";
    QList<QByteArray> damaged = {"",
                                 "not a record",
                                 "2026-11-16T14:23:43.0Z\tquit\tok\t1\tdetail",
                                 QByteArray(1 << 20, 'x'),
                                 QByteArray(1 << 16, '\t'),
                                 QByteArray(8, '\0')};
    for (const char* rest :
         {"1\t", "1", "-1\tdetail", "4.5\tdetail", "+\tdetail", " 1\tdetail", "18446744073709551616\tdetail"})
        damaged.append(QByteArray("2026-11-16T14:23:43Z\tquit\tok\t") + rest);
    for (const QByteArray& line : std::as_const(damaged))
        EXPECT_EQ(details(good + line + '\n' + good), (QStringList{u"good"_s, u"good"_s}))
            << line.left(80).data();
    EXPECT_EQ(details(good + "2026-11-16T14:23:43Z\tquit\tok\t1\tcut"), (QStringList{u"good"_s, u"cut"_s}));
}

TEST_F(ActionLogTest, ALineThatWasCutShortDamagesNoOther) {
    home.makeFile(u"Library/Logs/Tavrin/actions.log"_s, "2026-11-16T14:23:43Z\tclean\tok");
    ActionLogFile::append(entry(u"one"_s));
    ActionLogFile::append(entry(u"two"_s));
    EXPECT_EQ(written(), "2026-11-16T14:23:43Z\tclean\tok\n"
                         "2026-11-16T14:23:43Z\tclean\tok\t1048576\tone\n"
                         "2026-11-16T14:23:43Z\tclean\tok\t1048576\ttwo\n");
}

TEST_F(ActionLogTest, ALineThatDoesNotFitLeavesTheFileAsItWas) {
    ActionLogFile::append(entry(u"one"_s));
    const QByteArray before = written();
    {
        const FullDisk full(static_cast<rlim_t>(before.size()) + 40);
        ActionLogFile::append(entry(u"“two”"_s));
    }
    EXPECT_EQ(written(), before);
}

TEST_F(ActionLogTest, UnusualLinesAreKept) {
    const QByteArray stamp = "2026-11-16T14:23:43Z";
    EXPECT_EQ(details("\t" + stamp + "\t\tquit\tok\t\t1\trun of tabs\n"), QStringList(u"run of tabs"_s));
    EXPECT_EQ(details(stamp + "\tquit\tok\t1\t\tdetail\t"), QStringList(u"\tdetail\t"_s));
    EXPECT_EQ(details(stamp + "\tquit\tok\t+42\t" + QByteArray("a\0b", 3)),
              QStringList(QString::fromLatin1("a\0b", 3)));
    home.makeFile(u"Library/Logs/Tavrin/actions.log"_s, stamp + "\tunheard\tOK\t+42\td\n");
    const LoggedAction action = ActionLogReader::read().value(0);
    EXPECT_EQ(action.kind, u"unheard"_s);
    EXPECT_FALSE(action.success);
    EXPECT_EQ(action.freedBytes, 42U);
}

TEST_F(ActionLogTest, NewestFirstAndEqualSecondsInFileOrder) {
    EXPECT_EQ(details("2026-11-16T14:23:43Z\tquit\tok\t1\ta\n"
                      "2026-11-16T14:23:45Z\tquit\tok\t1\tb\n"
                      "2026-11-16T14:23:43Z\tquit\tok\t1\tc\n"
                      "2026-11-16T14:23:44Z\tquit\tok\t1\td\n"),
              (QStringList{u"b"_s, u"d"_s, u"a"_s, u"c"_s}));
}

TEST_F(ActionLogTest, ExportQuotesTheDetailAlone) {
    EXPECT_EQ(ActionLogReader::exportCSV(), u"timestamp,kind,success,freed_bytes,detail\n"_s);
    ActionLogFile::append(entry(u"say \"hi\", then go"_s));
    EXPECT_EQ(ActionLogReader::exportCSV(),
              u"timestamp,kind,success,freed_bytes,detail\n"
              "2026-11-16T14:23:43Z,clean,true,1048576,\"say \"\"hi\"\", then go\"\n"_s);
}

TEST_F(ActionLogTest, ClearEmptiesTheFileInPlace) {
    ActionLogFile::append(entry(u"one"_s));
    QFile other(file);
    ASSERT_TRUE(other.open(QIODevice::WriteOnly | QIODevice::Append));
    ActionLogReader::clear();
    EXPECT_EQ(written(), "");
    EXPECT_TRUE(ActionLogReader::read().isEmpty());
    ActionLogFile::append(entry(u"two"_s));
    other.write("from another writer\n");
    other.close();
    EXPECT_EQ(written(), "2026-11-16T14:23:43Z\tclean\tok\t1048576\ttwo\nfrom another writer\n");
}

TEST_F(ActionLogTest, APipeOrFolderInItsPlaceNeitherBlocksNorCrashes) {
    home.makeFolder(u"Library/Logs/Tavrin"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    ActionLogFile::append(entry(u"lost"_s));
    ActionLogReader::clear();
    EXPECT_TRUE(ActionLogReader::read().isEmpty());
    ASSERT_TRUE(QFile::remove(file));
    home.makeFolder(u"Library/Logs/Tavrin/actions.log"_s);
    ActionLogFile::append(entry(u"lost"_s));
    EXPECT_TRUE(ActionLogReader::read().isEmpty());
}

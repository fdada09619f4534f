#include "AppModel.h"
#include "Core/ActionLogFile.h"
#include "Core/ActionLogReader.h"
#include "support/FakePlatform.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

const Instant someTime = Instant(std::chrono::seconds(1'794'839'023)); // 2026-11-16T14:23:43Z

struct ActionLogTest : testing::Test {
    TemporaryHome home;

    static void write(const QByteArray& text) {
        QDir().mkpath(QFileInfo(ActionLogReader::path()).path());
        QFile file(ActionLogReader::path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    static QByteArray file() {
        QFile log(ActionLogReader::path());
        return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    }
};

ActionLogEntry entry(const QString& detail, bool success = true) {
    return {.id = QUuid::createUuid(),
            .timestamp = someTime,
            .kind = ActionLogEntry::Kind::clean,
            .detail = detail,
            .freedBytes = 1048576,
            .success = success};
}

} // namespace

TEST_F(ActionLogTest, OneLineAnActionByteForByte) {
    Cleaner::appendActionLog(entry(QStringLiteral("Xcode DerivedData")));
    Cleaner::appendActionLog(entry(QStringLiteral("tab\there é"), false));
    EXPECT_EQ(file(), QByteArray("2026-11-16T14:23:43Z\tclean\tok\t1048576\tXcode DerivedData\n"
                                 "2026-11-16T14:23:43Z\tclean\tfail\t1048576\ttab\there é\n"));
    const auto read = ActionLogReader::read();
    ASSERT_EQ(read.size(), 2);
    EXPECT_EQ(read[0].detail, QStringLiteral("Xcode DerivedData"));
    EXPECT_EQ(read[1].detail, QStringLiteral("tab\there é"));
    EXPECT_FALSE(read[1].success);
    EXPECT_EQ(read[0].timestamp, someTime);
    EXPECT_EQ(read[0].id(), QStringLiteral("1794839023.0-Xcode DerivedData"));
}

TEST_F(ActionLogTest, DamagedLinesAreSkippedOneByOne) {
    const char* good = "2026-11-16T14:23:43Z\tquit\tok\t7\tdetail";
    const std::pair<const char*, int> cases[] = {
        {"", 0},
        {"\n\n\n", 0},
        {"2026-11-16T14:23:43.5Z\tquit\tok\t7\tfraction", 0},
        {"2026-11-16 14:23:43Z\tquit\tok\t7\tblank", 0},
        {"2026-02-30T14:23:43Z\tquit\tok\t7\tno such day", 0},
        {"2026-11-16T14:23:43Z\tquit\tok\t7\t", 0},
        {"2026-11-16T14:23:43Z\tquit\tok\t-1\td", 0},
        {"2026-11-16T14:23:43Z\tquit\tok\t4.5\td", 0},
        {"2026-11-16T14:23:43Z\tquit\tok\t18446744073709551616\td", 0},
        {"2026-11-16T14:23:43Z\tquit\tok\t18446744073709551615\td", 1},
        {"2026-11-16T14:23:43Z\tquit\tok\t+42\td", 1},
        {"2026-11-16T14:23:43Z\t\t\tquit\tOK\t42\td", 1},
        {"2026-11-16T14:23:43Z\tunheard of\tok\t42\td", 1},
        {"\xff\xfe\t\xff", 0},
    };
    for (const auto& [line, kept] : cases) {
        write(QByteArray(good) + '\n' + line + '\n' + good);
        EXPECT_EQ(ActionLogReader::read().size(), 2 + kept) << line;
    }
}

TEST_F(ActionLogTest, NewestFirstAndEqualSecondsInFileOrder) {
    write("2026-01-01T00:00:00Z\tquit\tok\t1\ta\n2026-01-02T00:00:00Z\tquit\tok\t1\tb\n"
          "2026-01-01T00:00:00Z\tquit\tno\t1\tc, \"d\"\n");
    EXPECT_EQ(ActionLogReader::exportCSV(),
              QStringLiteral("timestamp,kind,success,freed_bytes,detail\n"
                             "2026-01-02T00:00:00Z,quit,true,1,\"b\"\n"
                             "2026-01-01T00:00:00Z,quit,true,1,\"a\"\n"
                             "2026-01-01T00:00:00Z,quit,false,1,\"c, \"\"d\"\"\"\n"));
}

TEST_F(ActionLogTest, ClearLeavesAnEmptyFileThatGrowsAgain) {
    Cleaner::appendActionLog(entry(QStringLiteral("a")));
    ActionLogReader::clear();
    EXPECT_TRUE(QFile::exists(ActionLogReader::path()));
    EXPECT_TRUE(ActionLogReader::read().isEmpty());
    Cleaner::appendActionLog(entry(QStringLiteral("b")));
    EXPECT_EQ(ActionLogReader::read().size(), 1);
}

TEST_F(ActionLogTest, APipeInItsPlaceStallsNobody) {
    QDir().mkpath(QFileInfo(ActionLogReader::path()).path());
    ASSERT_EQ(mkfifo(qPrintable(ActionLogReader::path()), 0600), 0);
    Cleaner::appendActionLog(entry(QStringLiteral("a")));
    EXPECT_TRUE(ActionLogReader::read().isEmpty());
    ActionLogReader::clear();
}

TEST_F(ActionLogTest, TheModelKeepsTheNewest200AndTheFileAll) {
    const FakePlatform fakes;
    TemporarySettings settings;
    AppModel model(fakes.platform(), settings.preferences);
    for (int i = 0; i < 201; ++i)
        model.log(entry(QString::number(i)));
    ASSERT_EQ(model.actionLog().size(), 200);
    EXPECT_EQ(model.actionLog().first().detail, QStringLiteral("200"));
    EXPECT_EQ(model.actionLog().last().detail, QStringLiteral("1"));
    EXPECT_EQ(file().count('\n'), 201);
}

#include "Platform/SingleInstance.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct SingleInstanceTest : testing::Test {
    QTemporaryDir runtime;
    QByteArray before = qgetenv("XDG_RUNTIME_DIR");

    SingleInstanceTest() {
        QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    }
    ~SingleInstanceTest() override { qputenv("XDG_RUNTIME_DIR", before); }

    static bool isCalled(const SingleInstance& instance) {
        QEventLoop loop;
        QObject::connect(&instance, &SingleInstance::startedAgain, &loop, &QEventLoop::quit);
        QTimer::singleShot(std::chrono::seconds(10), &loop, [&loop] { loop.exit(1); });
        return loop.exec() == 0;
    }
};

} // namespace

TEST_F(SingleInstanceTest, OnePerDisplayAndTheSecondCallsTheFirst) {
    SingleInstance first(u"\n:0"_s);
    SingleInstance otherDisplay(u"\n:1"_s);
    SingleInstance second(u"\n:0"_s);
    int calls = 0;
    QByteArray request;
    QObject::connect(&first, &SingleInstance::startedAgain, &first, [&](const QByteArray& asked) {
        ++calls;
        request = asked;
    });
    EXPECT_TRUE(first.claim());
    EXPECT_TRUE(otherDisplay.claim());
    EXPECT_FALSE(second.claim("cleanup"));
    EXPECT_TRUE(isCalled(first));
    EXPECT_EQ(request, "cleanup");
    QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    EXPECT_EQ(calls, 1);
}

TEST_F(SingleInstanceTest, TheSecondHandsOnItsRightToComeForward) {
    constexpr const char* token = "XDG_ACTIVATION_TOKEN";
    SingleInstance first(u"\n:0"_s);
    ASSERT_TRUE(first.claim());
    for (const QByteArray& given : {QByteArray("launcher-1"), QByteArray()}) {
        qputenv(token, given);
        EXPECT_FALSE(SingleInstance(u"\n:0"_s).claim());
        qunsetenv(token);
        EXPECT_TRUE(isCalled(first));
        EXPECT_EQ(qgetenv(token), given);
        qunsetenv(token);
    }
}

TEST_F(SingleInstanceTest, AnotherAccountHasARuntimeFolderOfItsOwn) {
    SingleInstance mine(u"\n:0"_s);
    ASSERT_TRUE(mine.claim());
    const QTemporaryDir theirs;
    qputenv("XDG_RUNTIME_DIR", theirs.path().toUtf8());
    EXPECT_TRUE(SingleInstance(u"\n:0"_s).claim());
}

TEST_F(SingleInstanceTest, OneAlsoWhereTheRuntimeFolderIsNotTheUsers) {
    const QByteArray temporaryBefore = qgetenv("TMPDIR");
    const TemporaryHome home;
    qputenv("TMPDIR", QFile::encodeName(home.makeFolder(u"tmp"_s)));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.makeFile(u"unusable"_s)));
    const QString madeByQt = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    for (const bool isTaken : {false, true}) {
        if (isTaken) {
            QDir(madeByQt).removeRecursively();
            home.makeFile(u"tmp/"_s + QFileInfo(madeByQt).fileName());
        }
        SingleInstance first(u"\n:0"_s);
        EXPECT_TRUE(first.claim()) << isTaken;
        EXPECT_FALSE(SingleInstance(u"\n:0"_s).claim()) << isTaken;
        // Where root would have made it.
        EXPECT_TRUE(QDir::root().entryList({u"tavrin-*"_s}, QDir::AllEntries | QDir::System).isEmpty());
    }
    qputenv("TMPDIR", temporaryBefore);
}

TEST_F(SingleInstanceTest, ASocketThatNobodyListensToIsTakenOver) {
    const pid_t child = fork();
    if (child == 0) { // ends without clearing up, as after a crash
        SingleInstance crashed(u"\n:0"_s);
        _exit(crashed.claim() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_FALSE(QDir(runtime.path()).entryList({u"*.socket"_s}, QDir::System).isEmpty());
    EXPECT_TRUE(SingleInstance(u"\n:0"_s).claim());
}

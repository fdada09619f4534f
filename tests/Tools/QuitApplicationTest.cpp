#include "Tools/QuitApplication.h"

#include "Platform/Linux/LinuxApplications.h"
#include "Tools/DesktopWindows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/prctl.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Tools::QuitOutcome;

constexpr Tools::QuitTimeouts shortTimeouts{
    .afterAsking = 5s, .beforeForce = 300ms, .withoutWindow = 300ms, .afterEachSignal = 300ms};
constexpr Tools::QuitTimeouts minTimeouts{
    .afterAsking = 300ms, .beforeForce = 300ms, .withoutWindow = 5s, .afterEachSignal = 300ms};

struct End {
    void operator()(QProcess* process) const {
        process->kill();
        process->waitForFinished();
        delete process;
    }
};
/// A program that ends with its scope, or with the test however that ends.
using Program = std::unique_ptr<QProcess, End>;

Program spawn(const QString& program, const QStringList& arguments) {
    Program process(new QProcess);
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->start(program, arguments);
    process->waitForStarted();
    return process;
}

bool isRunning(QProcess& process) {
    process.waitForFinished(0);
    return process.state() == QProcess::Running;
}

/// Returns the exit status or the negated signal; 999 while the process runs.
int endOf(QProcess& process) {
    if (!process.waitForFinished(5000) && process.state() != QProcess::NotRunning)
        return 999;
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -process.exitCode();
}

/// A display of the test's own, with or without a window manager.
class QuitApplication : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        m_server = spawn(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"640x480x24"_s,
                                     u"-noreset"_s, u"-nolisten"_s, u"tcp"_s});
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_server->canReadLine(); }, 10'000)) << "Xvfb is needed";
        qputenv("DISPLAY", ':' + m_server->readLine().trimmed());
        qunsetenv("XAUTHORITY");
        if (qstrlen(GetParam()) == 0)
            return;
        m_manager = spawn(QString::fromLatin1(GetParam()), {u"--sm-disable"_s});
        const auto isManaging = [] {
            const auto xprop = spawn(u"xprop"_s, {u"-root"_s, u"_NET_CLIENT_LIST"_s});
            return xprop->waitForFinished() && xprop->readAll().contains("window id");
        };
        ASSERT_TRUE(QTest::qWaitFor(isManaging, 10'000)) << GetParam() << " and xprop are needed";
    }

    /// Copies the program `original` to `path`.
    QString install(const QString& path, const QString& original) {
        const QString copy = m_folder.filePath(path);
        QDir().mkpath(QFileInfo(copy).path());
        EXPECT_TRUE(QFile::copy(original, copy)) << qPrintable(original);
        return copy;
    }

    /// Starts the test's windowed program, copied to `path`, and waits for its window.
    Program show(const QString& path, const QString& manner, const QStringList& more = {}) {
        const auto program = install(path, QCoreApplication::applicationDirPath() + u"/window_app"_s);
        Program process;
        bool listed = false;
        // A window manager that is just starting may miss a window.
        for (int tries = 0; tries < 5 && !listed; ++tries) {
            process = spawn(program, QStringList({u"Window"_s, manner}) + more);
            listed = QTest::qWaitFor([&] { return hasWindow(*process); }, 4000);
        }
        EXPECT_TRUE(listed) << qPrintable(path);
        return process;
    }

    static bool hasWindow(const QProcess& process) {
        for (const auto& window : Tools::DesktopWindows().list()) {
            if (window.pid == process.processId())
                return true;
        }
        return false;
    }

    /// Adds an application to the menu.
    void list(const QString& id, const QString& name, const QString& program) {
        QDir().mkpath(m_folder.filePath(u"share/applications"_s));
        QFile entry(m_folder.filePath(u"share/applications/"_s + id + u".desktop"_s));
        ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
        entry.write(
            u"[Desktop Entry]\nType=Application\nName=%1\nExec=%2 %u\n"_s.arg(name, program).toUtf8());
    }

    QString data() const { return m_folder.filePath(u"share"_s); }

    QuitOutcome quit(const QString& name, bool forced, const Tools::QuitTimeouts& timeouts) {
        LinuxApplications applications{DesktopEntries({m_folder.filePath(u"share/applications"_s)})};
        return Tools::quitApplication(name, forced, applications, timeouts);
    }

    /// Starts a process without a window.
    Program sleeper(const QString& path) {
        return spawn(install(path, QFileInfo(u"/bin/sleep"_s).canonicalFilePath()), {u"60"_s});
    }

private:
    QTemporaryDir m_folder;
    Program m_server;
    Program m_manager;
};

} // namespace

TEST_P(QuitApplication, ClosesTheWindowsOfTheOneThatIsNamed) {
    const auto byBundle = show(u"ByBundle.app/Contents/one"_s, u"polite"_s);
    const auto byEntry = show(u"two"_s, u"polite"_s);
    const auto other = show(u"ByBundles.app/ByBundle"_s, u"polite"_s);
    list(u"org.example.two"_s, u"By Entry"_s, byEntry->program());
    for (const auto& [name, process] :
         {std::pair(u"ByBundle"_s, byBundle.get()), std::pair(u"By Entry"_s, byEntry.get())}) {
        EXPECT_EQ(quit(name, false, shortTimeouts), QuitOutcome::Quit) << qPrintable(name);
        EXPECT_EQ(endOf(*process), 0) << qPrintable(name);
    }
    EXPECT_TRUE(isRunning(*other));
}

TEST_P(QuitApplication, LeavesOneThatRefusesUnlessItIsForced) {
    const auto refusing = show(u"Notes.app/Contents/notes"_s, u"stubborn"_s);
    const auto helper = sleeper(u"Notes.app/Contents/Helper.app/helper"_s);
    const auto stranger = sleeper(u"Notes2.app/helper"_s);
    const auto namesake = sleeper(u"Notes"_s);

    EXPECT_EQ(quit(u"Notes"_s, false, minTimeouts), QuitOutcome::StillRunning);
    EXPECT_TRUE(isRunning(*refusing) && isRunning(*helper));

    EXPECT_EQ(quit(u"Notes"_s, true, shortTimeouts), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*refusing), -SIGKILL);
    EXPECT_EQ(endOf(*helper), -SIGTERM);
    EXPECT_TRUE(isRunning(*stranger) && isRunning(*namesake));
}

TEST_P(QuitApplication, NeverBelievesWhatAWindowSaysOfItsProcess) {
    const auto hidden = sleeper(u"Meant.app/meant"_s);
    const auto claiming = show(u"claimant"_s, u"polite"_s, {QString::number(hidden->processId())});
    EXPECT_EQ(quit(u"Meant"_s, true, shortTimeouts), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*hidden), -SIGTERM);
    EXPECT_TRUE(isRunning(*claiming));
}

TEST_P(QuitApplication, OneThatOnlyWentToTheTrayGetsASignal) {
    const auto hiding = show(u"Chat.app/chat"_s, u"hiding"_s);
    EXPECT_EQ(quit(u"Chat"_s, false, minTimeouts), QuitOutcome::StillRunning);
    EXPECT_FALSE(hasWindow(*hiding)) << "the test needs one that hides";
    EXPECT_TRUE(isRunning(*hiding)) << "it may still be closing";
    hiding->kill();
    const auto again = show(u"Chat2.app/chat"_s, u"hiding"_s);
    EXPECT_EQ(quit(u"Chat2"_s, false, shortTimeouts), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*again), -SIGTERM);

    const auto asking = show(u"Editor.app/editor"_s, u"stubborn"_s);
    EXPECT_EQ(quit(u"Editor"_s, false, {.afterAsking = 600ms, .withoutWindow = 100ms}),
              QuitOutcome::StillRunning);
    EXPECT_TRUE(isRunning(*asking));
}

TEST_P(QuitApplication, ASignalEndsOneWithoutAWindowAndNoNamesake) {
    const auto hidden = sleeper(u"Hidden.app/hidden"_s);
    EXPECT_EQ(quit(u"Nowhere"_s, false, minTimeouts), QuitOutcome::NotFound);
    EXPECT_EQ(quit(u"Nowhere"_s, true, minTimeouts), QuitOutcome::NotFound);
    const auto namesake = sleeper(u"Hidden"_s); // is called like it, and nothing of it
    EXPECT_EQ(quit(u"Hidden"_s, false, shortTimeouts), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*hidden), -SIGTERM);
    EXPECT_EQ(quit(u"Hidden"_s, true, shortTimeouts), QuitOutcome::NotFound);
    EXPECT_TRUE(isRunning(*namesake));
}

TEST_P(QuitApplication, TheSignalIsForTheMainProcessNotForACrashHandler) {
    const auto main = sleeper(u"Tree.app/main"_s);
    QTest::qWait(50); // more than a tick of the kernel's clock
    const auto handler = sleeper(u"Tree.app/handler"_s);
    const auto second = spawn(main->program(), {u"60"_s});
    EXPECT_EQ(quit(u"Tree"_s, false, minTimeouts), QuitOutcome::StillRunning);
    EXPECT_EQ(endOf(*main), -SIGTERM);
    EXPECT_EQ(endOf(*second), -SIGTERM) << "another profile of the same application";
    EXPECT_TRUE(isRunning(*handler));
}

TEST_P(QuitApplication, AMenuNameMeansTheProgramsOfItsEntryAlone) {
    const auto main = show(u"opt/notes/notes"_s, u"polite"_s);
    const auto helper = sleeper(u"opt/notes/notes-helper"_s);
    const auto namesake = show(u"elsewhere/notes"_s, u"polite"_s);
    list(u"org.example.Notes"_s, u"Night Notes"_s, main->program());
    EXPECT_EQ(quit(u"Night Notes"_s, true, shortTimeouts), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*main), 0);
    EXPECT_EQ(endOf(*helper), -SIGTERM);
    EXPECT_TRUE(isRunning(*namesake));
}

TEST_P(QuitApplication, OfTwoOfOneNameTheIdSaysWhich) {
    const auto one = show(u"one"_s, u"polite"_s);
    const auto two = show(u"two"_s, u"polite"_s);
    list(u"org.example.one"_s, u"Notes"_s, one->program());
    list(u"org.example.two"_s, u"Notes"_s, two->program());
    EXPECT_EQ(quit(u"Notes"_s, true, minTimeouts), QuitOutcome::Ambiguous);
    EXPECT_EQ(quit(u"org.example.one"_s, true, shortTimeouts), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*one), 0);
    EXPECT_TRUE(isRunning(*two));
}

TEST_P(QuitApplication, IsWhatTheProgramDoes) {
    const auto tell = [](const QString& script) {
        QProcess tool;
        tool.start(QCoreApplication::applicationDirPath() + u"/../libexec/tavrin/osascript"_s,
                   {u"-e"_s, script});
        tool.waitForFinished();
        return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
    };
    const auto quoted = show(u"Say \"hi\".app/say"_s, u"polite"_s);
    EXPECT_EQ(tell(u"tell application \"Say \\\"hi\\\"\" to quit"_s), 0);
    EXPECT_EQ(endOf(*quoted), 0);
    EXPECT_EQ(tell(u"tell application \"Say \\\"hi\\\"\" to quit"_s), 1);

    const auto refusing = show(u"Refusing.app/refusing"_s, u"stubborn"_s);
    EXPECT_EQ(tell(u"tell application \"Refusing\" to quit saving no"_s), 0);
    EXPECT_EQ(endOf(*refusing), -SIGKILL);

    list(u"parent"_s, u"Parent"_s, QCoreApplication::applicationFilePath());
    qputenv("XDG_DATA_HOME", QFile::encodeName(data()));
    EXPECT_EQ(tell(u"tell application \"Parent\" to quit saving no"_s), 1) << "its own parent";
    qunsetenv("XDG_DATA_HOME");
}

INSTANTIATE_TEST_SUITE_P(Desktop, QuitApplication, testing::Values("", "openbox"),
                         [](const auto& test) { return *test.param ? test.param : "noManager"; });

TEST(WithoutADisplay, NoWindowIsFound) {
    qputenv("DISPLAY", ":4294967295");
    EXPECT_TRUE(Tools::DesktopWindows().list().empty());
    LinuxApplications applications;
    EXPECT_EQ(Tools::quitApplication(u"Nowhere"_s, false, applications), QuitOutcome::NotFound);
}

#include "Tools/QuitApplication.h"

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
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Tools::QuitOutcome;

constexpr Tools::QuitPatience shortPatience{
    .afterClosing = 5s, .beforeForce = 300ms, .afterEachSignal = 300ms};
constexpr Tools::QuitPatience noPatience{
    .afterClosing = 300ms, .beforeForce = 300ms, .afterEachSignal = 300ms};

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

/// What ended the process, a signal's number negated; 999 while it runs.
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

    /// A copy of the program `original` under `path`.
    QString install(const QString& path, const QString& original) {
        const QString copy = m_folder.filePath(path);
        QDir().mkpath(QFileInfo(copy).path());
        EXPECT_TRUE(QFile::copy(original, copy)) << qPrintable(original);
        return copy;
    }

    /// Starts the test's windowed program, copied to `path`, and waits for its window to be listed.
    Program show(const QString& path, const QString& name, const QString& manner,
                 const QStringList& more = {}) {
        const auto program = install(path, QCoreApplication::applicationDirPath() + u"/window_app"_s);
        Program process;
        bool listed = false;
        // A window manager that is just starting may miss a window.
        for (int tries = 0; tries < 5 && !listed; ++tries) {
            process = spawn(program, QStringList({name, manner}) + more);
            listed = QTest::qWaitFor([&] { return isListed(name.toStdString()); }, 4000);
        }
        EXPECT_TRUE(listed) << qPrintable(name);
        return process;
    }

    static bool isListed(const std::string& name) {
        for (const auto& window : Tools::DesktopWindows().list()) {
            if (window.className == name)
                return true;
        }
        return false;
    }

    /// A process without a window.
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
    const auto byClass = show(u"one"_s, u"ByClass"_s, u"polite"_s);
    const auto byProgram = show(u"ByProgram"_s, u"Two"_s, u"polite"_s);
    const auto byBundle = show(u"ByBundle.app/Contents/three"_s, u"Three"_s, u"polite"_s);
    const auto other = show(u"ByClasses.app/four"_s, u"ByClasses"_s, u"polite"_s);
    for (const auto& [name, process] :
         {std::pair("byclass", byClass.get()), //
          std::pair("byprogram", byProgram.get()), std::pair("ByBundle", byBundle.get())}) {
        EXPECT_EQ(Tools::quitApplication(name, false, shortPatience), QuitOutcome::Quit) << name;
        EXPECT_EQ(endOf(*process), 0) << name;
    }
    EXPECT_TRUE(isRunning(*other));
}

TEST_P(QuitApplication, LeavesOneThatRefusesUnlessItIsForced) {
    const auto refusing = show(u"Notes.app/Contents/notes"_s, u"Writer"_s, u"stubborn"_s);
    const auto helper = sleeper(u"Notes.app/Contents/Helper.app/helper"_s);
    const auto stranger = sleeper(u"Notes"_s + u"2.app/helper"_s);

    EXPECT_EQ(Tools::quitApplication("Notes", false, noPatience), QuitOutcome::StillRunning);
    EXPECT_TRUE(isRunning(*refusing) && isRunning(*helper));

    EXPECT_EQ(Tools::quitApplication("Notes", true, shortPatience), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*refusing), -SIGKILL);
    EXPECT_EQ(endOf(*helper), -SIGTERM);
    EXPECT_TRUE(isRunning(*stranger));
}

TEST_P(QuitApplication, NeverBelievesAWindowThatNamesAStranger) {
    const auto stranger = sleeper(u"stranger"_s);
    const auto claiming =
        show(u"claimant"_s, u"Claiming"_s, u"stubborn"_s, {QString::number(stranger->processId())});
    EXPECT_EQ(Tools::quitApplication("Claiming", true, shortPatience), QuitOutcome::Quit);
    EXPECT_FALSE(isListed("Claiming"));
    EXPECT_TRUE(isRunning(*stranger));
}

TEST_P(QuitApplication, LeavesAProgramThatGotTheIdOfAClosedWindow) {
    const auto closing = show(u"Old.app/old"_s, u"Old"_s, u"polite"_s);
    const auto helper = sleeper(u"Old.app/helper"_s); // for which it waits before it uses force
    QuitOutcome outcome = QuitOutcome::NotFound;
    std::thread quitting([&outcome] {
        outcome = Tools::quitApplication("Old", true, {.beforeForce = 2s, .afterEachSignal = 1s});
    });
    EXPECT_EQ(endOf(*closing), 0);
    const auto next = show(u"next"_s, u"Next"_s, u"polite"_s);
    EXPECT_TRUE(isRunning(*helper)) << "too late for the test";
    quitting.join();
    EXPECT_EQ(outcome, QuitOutcome::Quit);
    EXPECT_TRUE(isRunning(*next));
}

TEST_P(QuitApplication, ASignalEndsOneWithoutAWindowAndNoNamesake) {
    const auto hidden = sleeper(u"Hidden.app/hidden"_s);
    EXPECT_EQ(Tools::quitApplication("Nowhere", false, noPatience), QuitOutcome::NotFound);
    EXPECT_EQ(Tools::quitApplication("Nowhere", true, noPatience), QuitOutcome::NotFound);
    const auto namesake = sleeper(u"Hidden"_s); // is called like it, and nothing of it
    EXPECT_EQ(Tools::quitApplication("Hidden", false, shortPatience), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*hidden), -SIGTERM);
    EXPECT_EQ(Tools::quitApplication("Hidden", true, shortPatience), QuitOutcome::NotFound);
    EXPECT_TRUE(isRunning(*namesake));
}

TEST_P(QuitApplication, AMenuNameMeansTheProgramsOfItsEntryAlone) {
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
    const auto main = show(u"opt/notes/notes"_s, u"Writer"_s, u"polite"_s);
    const auto helper = sleeper(u"opt/notes/notes-helper"_s);
    const auto namesake = show(u"elsewhere/notes"_s, u"Night Notes"_s, u"polite"_s);
    QDir(data.path()).mkpath(u"applications"_s);
    QFile entry(data.filePath(u"applications/org.example.Notes.desktop"_s));
    ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
    entry.write("[Desktop Entry]\nType=Application\nName=Night Notes\nExec=" +
                QFile::encodeName(main->program()) + " %u\n");
    entry.close();
    EXPECT_EQ(Tools::quitApplication("Night Notes", true, shortPatience), QuitOutcome::Quit);
    EXPECT_EQ(endOf(*main), 0);
    EXPECT_EQ(endOf(*helper), -SIGTERM);
    EXPECT_TRUE(isRunning(*namesake));
    qunsetenv("XDG_DATA_HOME");
}

TEST_P(QuitApplication, IsWhatTheProgramDoes) {
    const auto quit = [](const QString& script) {
        QProcess tool;
        tool.start(QCoreApplication::applicationDirPath() + u"/../libexec/tavrin/osascript"_s,
                   {u"-e"_s, script});
        tool.waitForFinished();
        return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
    };
    const auto quoted = show(u"quoted"_s, u"Say \"hi\""_s, u"polite"_s);
    EXPECT_EQ(quit(u"tell application \"Say \\\"hi\\\"\" to quit"_s), 0);
    EXPECT_EQ(endOf(*quoted), 0);
    EXPECT_EQ(quit(u"tell application \"Say \\\"hi\\\"\" to quit"_s), 1);

    const auto refusing = show(u"refusing"_s, u"Refusing"_s, u"stubborn"_s);
    EXPECT_EQ(quit(u"tell application \"Refusing\" to quit saving no"_s), 0);
    EXPECT_FALSE(isListed("Refusing"));

    const QString own = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    EXPECT_EQ(quit(u"tell application \"%1\" to quit saving no"_s.arg(own)), 1) << "its own parent";
}

INSTANTIATE_TEST_SUITE_P(Desktop, QuitApplication, testing::Values("", "openbox"),
                         [](const auto& test) { return *test.param ? test.param : "noManager"; });

TEST(WithoutADisplay, NoWindowIsFound) {
    qputenv("DISPLAY", ":4294967295");
    EXPECT_TRUE(Tools::DesktopWindows().list().empty());
    EXPECT_EQ(Tools::quitApplication("Nowhere", false), QuitOutcome::NotFound);
}

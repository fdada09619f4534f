#include "AppModel.h"
#include "Platform/Child.h"
#include "Platform/Identity.h"
#include "Platform/Linux/LinuxProcessTable.h"
#include "Platform/Linux/LinuxSignals.h"
#include "support/FakeRelief.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QCoroTask>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr uid_t nobody = 65534;

/// The machine's processes, limited to those that the test started.
class OwnProcesses : public LinuxProcessTable {
public:
    QList<qint32> pids;

    int listAllPids(std::span<qint32> room) override {
        LinuxProcessTable::listAllPids(m_everything);
        std::copy(pids.begin(), pids.end(), room.begin());
        return static_cast<int>(pids.size());
    }

    /// Waits until a server that `parent` started has `minBytes`.
    qint32 childOf(qint32 parent, quint64 minBytes) {
        qint32 child = 0;
        const auto isThere = [&] {
            const int count = LinuxProcessTable::listAllPids(m_everything);
            for (const qint32 pid : std::span(m_everything).first(static_cast<std::size_t>(count))) {
                const auto info = kernelInfo(pid);
                if (info && info->parentPid == parent && origin(pid).argumentArea.contains("mcp-server") &&
                    taskInfo(pid).value_or(TaskInfo()).residentBytes >= minBytes)
                    child = pid;
            }
            return child > 0;
        };
        return QTest::qWaitFor(isThere) ? child : 0;
    }

private:
    std::array<qint32, 4096> m_everything{};
};

/// Switches the whole program to another user, who may not signal root's processes.
struct AsNobody {
    AsNobody() { isSwitched = setresuid(nobody, nobody, 0) == 0; }
    ~AsNobody() {
        if (isSwitched && setresuid(0, 0, 0) != 0)
            abort();
    }
    bool isSwitched = false;
};

struct ReliefOnProcessesTest : testing::Test {
    TemporaryHome home;
    TemporarySettings settings;
    std::shared_ptr<OwnProcesses> processes = std::make_shared<OwnProcesses>();
    std::unique_ptr<AppModel> model;

    ReliefOnProcessesTest() {
        QFile::setPermissions(home.path(), QFile::Permissions(0x7777));
        Platform platform = Platform::native();
        platform.processes = processes;
        platform.relief = std::make_shared<FakeRelief>();
        model = std::make_unique<AppModel>(platform, settings.preferences);
        model->actions().setFreeRAMDelays({.beforeSecondPass = 200ms, .beforeMeasuring = {}});
    }
    void tick() { QMetaObject::invokeMethod(model.get(), "tick"); }
};

void sleepUntilKilled(int socket) {
    static_cast<void>(!write(socket, "r", 1));
    for (;;)
        pause();
}

void ignoreTerminate(int socket) {
    signal(SIGTERM, SIG_IGN);
    sleepUntilKilled(socket);
}

int endedBy(pid_t pid) {
    siginfo_t ended{};
    waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOWAIT);
    return ended.si_status;
}

} // namespace

TEST_F(ReliefOnProcessesTest, OneEndsWhenAskedOneIsKilledOneIsGone) {
    const Child polite(sleepUntilKilled);
    const Child stubborn(ignoreTerminate);
    Child gone([](int) {});
    const qint32 gonePid = gone.pid();
    gone.exitStatus();
    ASSERT_EQ(polite.heard(), 'r');
    ASSERT_EQ(stubborn.heard(), 'r');
    processes->pids = {polite.pid(), stubborn.pid()};
    tick();
    const FreeRAMResult result =
        QCoro::waitFor(model->actions().freeRAM({polite.pid(), stubborn.pid(), gonePid}));
    ASSERT_EQ(result.perPid.size(), 3);
    EXPECT_EQ(endedBy(polite.pid()), SIGTERM);
    EXPECT_EQ(result.perPid[0].outcome, KillOutcome::quit); // although it is a zombie
    EXPECT_EQ(endedBy(stubborn.pid()), SIGKILL);
    EXPECT_EQ(result.perPid[1].outcome, KillOutcome::forced);
    EXPECT_GT(result.perPid[1].before, 0U);
    EXPECT_EQ(result.perPid[2].outcome, KillOutcome::quit);
    EXPECT_EQ(result.perPid[2].name, u"pid %1"_s.arg(gonePid));
}

TEST_F(ReliefOnProcessesTest, AnotherUsersProcessIsDeniedAndNeverChosenByRule) {
    if (getuid() != 0)
        GTEST_SKIP() << "may not become another user";
    const Child child(sleepUntilKilled);
    ASSERT_EQ(child.heard(), 'r');
    processes->pids = {child.pid()};
    tick();
    ASSERT_EQ(model->processes().size(), 1);
    const QString name = model->processes().first().name;
    EXPECT_EQ(model->actions().previewMatches(name, 0, 0), 1);
    {
        const AsNobody switched;
        ASSERT_TRUE(switched.isSwitched);
        const FreeRAMResult result = QCoro::waitFor(model->actions().freeRAM({child.pid()}));
        EXPECT_EQ(result.perPid[0].outcome, KillOutcome::denied);
        EXPECT_EQ(model->actions().previewMatches(name, 0, 0), 0);
        EXPECT_EQ(model->actions().quickKill(name, u"all"_s, 0, 0, true),
                  (ProcessActions::QuickKillResult{0, 0}));
        EXPECT_EQ(LinuxSignals().hold(child.pid())->send(Signal::terminate), SignalResult::notPermitted);
    }
    EXPECT_EQ(LinuxSignals().hold(child.pid())->send(Signal::probe), SignalResult::delivered);
}

/// Uses the published server of docs/testing.md where it is installed.
TEST_F(ReliefOnProcessesTest, AServerIsAnOrphanOnceItsHostIsGoneAndThenItCanBeKilled) {
    const QString published = qEnvironmentVariable("TAVRIN_MCP_SERVER");
    const QString label =
        published.isEmpty() ? home.makeFile(u"bin/mcp-server-demo"_s, "read x\n") : published;
    const QString claude = home.path(u"claude"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sh"_s, claude));
    // The servers wait for the test's end of the socket.
    const QString command = (published.isEmpty() ? u"sh "_s : QString()) + label;
    const auto script =
        home.makeFile(u"host"_s, "exec 3<&0\n" + command.toUtf8() + " <&3 >/dev/null 2>&1 &\nwait\n")
            .toStdString();
    Child host(claude.toStdString(), {"claude", script});
    Child shell("/bin/sh", {"sh", script});
    const quint64 minBytes = published.isEmpty() ? 0 : 20 << 20; // of a runtime that has begun
    const qint32 hosted = processes->childOf(host.pid(), minBytes);
    const qint32 orphan = processes->childOf(shell.pid(), minBytes);
    ASSERT_GT(hosted, 0);
    ASSERT_GT(orphan, 0);
    processes->pids = {host.pid(), shell.pid(), hosted, orphan};
    tick();
    const auto& live = model->mcpReport().live;
    ASSERT_EQ(live.size(), 2);
    EXPECT_EQ(live.first().pid, orphan);
    EXPECT_TRUE(live.first().isOrphan);
    EXPECT_EQ(live.first().parentName, u"sh"_s);
    EXPECT_EQ(live.last().pid, hosted);
    EXPECT_FALSE(live.last().isOrphan);
    EXPECT_EQ(live.last().displayLabel, label);
    EXPECT_EQ(live.last().parentName, u"claude"_s);

    host.end();
    processes->pids = {hosted};
    tick();
    ASSERT_EQ(live.size(), 1);
    EXPECT_TRUE(live.first().isOrphan);
    EXPECT_EQ(live.first().parentName, u"(init or gone)"_s);
    EXPECT_EQ(model->mcpReport().orphanBytes(), model->processes().first().rssBytes);
    EXPECT_EQ(model->actions().killOrphanMCPs(false), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !processes->taskInfo(hosted); }));
    EXPECT_EQ(model->actionLog().entries().first().detail, u"[orphan MCPs] killed=1/1"_s);
    EXPECT_TRUE(processes->taskInfo(orphan)); // not listed
}

/// Makes pidfd_open(2) fail with ENOSYS from now on.
bool forgetPidfdOpen() {
    sock_filter program[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                             BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_open, 0, 1),
                             BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
                             BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog filter{std::size(program), program};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0 &&
           syscall(SYS_pidfd_open, getpid(), 0) < 0 && errno == ENOSYS;
}

/// Sends signals without pidfd to children of this process. Returns the first step that fails, 0 for none.
int firstWrongWithoutPidfd() {
    LinuxSignals signalSender;
    auto first = std::make_unique<Child>(sleepUntilKilled);
    const qint32 pid = first->pid();
    const auto handle = signalSender.hold(pid);
    if (handle->send(Signal::probe) != SignalResult::delivered)
        return 1;
    first.reset();
    if (handle->send(Signal::probe) != SignalResult::noSuchProcess)
        return 2;
    if (signalSender.hold(pid)->send(Signal::probe) != SignalResult::noSuchProcess)
        return 3;
    std::this_thread::sleep_for(30ms); // the kernel counts starts in hundredths of a second
    if (cloneAs(pid) != pid)
        return -1;
    const bool leftAlone =
        handle->send(Signal::kill) == SignalResult::noSuchProcess && waitpid(pid, nullptr, WNOHANG) == 0;
    const bool reached = signalSender.hold(pid)->send(Signal::kill) == SignalResult::delivered;
    waitpid(pid, nullptr, 0);
    return leftAlone ? reached ? 0 : 5 : 4;
}

TEST(LinuxSignals, WithoutPidfdAnIdThatPassedOnIsLeftAlone) {
    Child child([](int) { _exit(forgetPidfdOpen() ? firstWrongWithoutPidfd() : 99); });
    const int wrong = child.exitStatus();
    if (wrong == 255)
        GTEST_SKIP() << "may not choose a process id";
    EXPECT_EQ(wrong, 0);
}

TEST(LinuxSignals, AHandleOutlivesItsProcess) {
    LinuxSignals signalSender;
    Child child(sleepUntilKilled);
    ASSERT_EQ(child.heard(), 'r');
    const auto handle = signalSender.hold(child.pid());
    EXPECT_EQ(handle->send(Signal::probe), SignalResult::delivered);
    EXPECT_EQ(handle->send(Signal::kill), SignalResult::delivered);
    EXPECT_EQ(endedBy(child.pid()), SIGKILL);
    const qint32 pid = child.pid();
    child.end();
    EXPECT_EQ(handle->send(Signal::probe), SignalResult::noSuchProcess);
    EXPECT_EQ(signalSender.hold(pid)->send(Signal::kill), SignalResult::noSuchProcess);
    for (const qint32 group : {0, -1, -pid})
        EXPECT_EQ(signalSender.hold(group)->send(Signal::probe), SignalResult::noSuchProcess) << group;
}

#include "Platform/Linux/LinuxProcessTable.h"

#include "Platform/Child.h"
#include "Platform/Linux/PageReclaim.h"

#include <QDateTime>
#include <QFile>
#include <QLocale>

#include <gtest/gtest.h>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstring>
#include <source_location>
#include <span>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

std::vector<qint32> listed(LinuxProcessTable& table) {
    std::vector<qint32> pids(4096);
    pids.resize(static_cast<size_t>(std::max(0, table.listAllPids(pids))));
    return pids;
}

bool isListed(LinuxProcessTable& table, qint32 pid) {
    return std::ranges::count(listed(table), pid) == 1;
}

QByteArray ps(qint32 pid, const std::string& column) {
    return outputOf("LC_ALL=C ps -p " + std::to_string(pid) + " -o " + column + "=").trimmed();
}

void waitForCommands(int socket) {
    for (char command; read(socket, &command, 1) == 1;) {
    }
}

/// Starts a separate program with arguments that sleeps until it is killed.
Child waitingProgram() {
    return Child("/bin/sleep", {"sleep", "1000"});
}

TEST(ProcessTable, AgreesWithPs) {
    LinuxProcessTable table;
    const auto child = waitingProgram();
    const auto pid = child.pid();
    ASSERT_TRUE(isListed(table, pid));
    std::this_thread::sleep_for(100ms); // until it has started up

    const auto task = table.taskInfo(pid);
    ASSERT_TRUE(task);
    EXPECT_NEAR(static_cast<double>(task->residentBytes / 1024), ps(pid, "rss").toDouble(), 128);
    EXPECT_EQ(task->virtualBytes / 1024, ps(pid, "vsz").toULongLong());
    EXPECT_EQ(task->threads, 1);

    const auto kernel = table.kernelInfo(pid);
    ASSERT_TRUE(kernel);
    EXPECT_EQ(kernel->parentPid, getpid());
    EXPECT_EQ(kernel->uid, ps(pid, "euid").toUInt());
    const auto started = QLocale::c().toDateTime(QString::fromLatin1(ps(pid, "lstart").simplified()),
                                                 u"ddd MMM d hh:mm:ss yyyy"_s);
    ASSERT_TRUE(started.isValid());
    EXPECT_NEAR(static_cast<double>(std::chrono::system_clock::to_time_t(kernel->start)),
                static_cast<double>(started.toSecsSinceEpoch()), 2);

    const auto origin = table.origin(pid);
    EXPECT_EQ(origin.shortName, "sleep");
    EXPECT_EQ(origin.argumentArea, QByteArray("sleep\0001000\0", 11));
    EXPECT_EQ(origin.executablePath, QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(pid)).toUtf8());
}

TEST(ProcessTable, FollowsThreadsThatComeAndGo) {
    LinuxProcessTable table;
    const Child child([](int socket) {
        std::vector<std::jthread> threads;
        for (char command; read(socket, &command, 1) == 1;) {
            if (command == '+')
                for (int more = 0; more < 3; ++more)
                    threads.emplace_back([](std::stop_token stop) {
                        while (!stop.stop_requested())
                            std::this_thread::sleep_for(1ms);
                    });
            else
                threads.clear();
            static_cast<void>(!write(socket, &command, 1));
        }
    });
    const auto threads = [&] {
        const auto task = table.taskInfo(child.pid());
        return task ? task->threads : -1;
    };
    EXPECT_EQ(threads(), 1);
    EXPECT_EQ(threads(), 1);
    child.tell('+');
    ASSERT_EQ(child.heard(), '+');
    EXPECT_EQ(threads(), 4);
    EXPECT_EQ(static_cast<int>(ps(child.pid(), "nlwp").toInt()), 4);
    child.tell('-');
    ASSERT_EQ(child.heard(), '-');
    // A joined thread is counted for a moment more.
    for (int look = 0; look < 100 && threads() != 1; ++look)
        std::this_thread::sleep_for(5ms);
    EXPECT_EQ(threads(), 1);
}

/// Keeps so many cores busy until '.' is received, and answers each character with the process's CPU time.
void burn(int socket, int threadCount) {
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([](std::stop_token stop) {
            while (!stop.stop_requested()) {
            }
        });
    for (char command; read(socket, &command, 1) == 1;) {
        if (command == '.')
            threads.clear();
        timespec used{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
        static_cast<void>(!write(socket, &used, sizeof used));
    }
}

double usedByOwnAccount(const Child& child, char command) {
    child.tell(command);
    timespec used{};
    for (char& byte : std::span(reinterpret_cast<char*>(&used), sizeof used))
        byte = child.heard();
    return static_cast<double>(used.tv_sec) * 1e9 + static_cast<double>(used.tv_nsec);
}

TEST(ProcessTable, ReadsWhatABusyChildUses) {
    constexpr double tolerance = 2e7;
    LinuxProcessTable table;
    for (const int threads : {1, 4}) {
        const Child child([threads](int socket) { burn(socket, threads); });
        const auto read = [&] { return static_cast<double>(table.taskInfo(child.pid()).value().cpuTimeNs); };
        for (double before = 0; before < 1e8;) { // on a busy machine this takes longer
            std::this_thread::sleep_for(50ms);
            before = usedByOwnAccount(child, '?');
            EXPECT_GE(read(), before - tolerance);
            EXPECT_LE(read(), usedByOwnAccount(child, '?') + tolerance);
        }
        const double atRest = usedByOwnAccount(child, '.');
        EXPECT_NEAR(read(), atRest, tolerance);
    }
}

TEST(ProcessTable, SeesASleepingProcessLoseASharedFile) {
    constexpr quint64 bytes = quint64(8) << 20;
    const int file = memfd_create("shared", MFD_CLOEXEC);
    ASSERT_EQ(ftruncate(file, bytes), 0);
    const Child child([file](int socket) {
        void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        std::memset(memory, 'x', bytes);
        static_cast<void>(!write(socket, "!", 1));
        waitForCommands(socket);
    });
    ASSERT_EQ(child.heard(), '!');
    LinuxProcessTable table;
    const auto resident = [&] {
        listed(table);
        return table.taskInfo(child.pid()).value().residentBytes;
    };
    const quint64 before = resident();
    EXPECT_EQ(resident(), before);
    ASSERT_EQ(ftruncate(file, 0), 0);
    ::close(file);
    quint64 after = before;
    for (int pass = 0; pass < 5; ++pass)
        after = resident();
    EXPECT_LE(after + bytes, before + (quint64(1) << 20));
}

TEST(PageReclaim, CountsWhatTheKernelTookByAnyWay) {
    EXPECT_EQ(
        PageReclaim::pagesTaken("nr_free_pages 9\npgsteal_kswapd 40\npgscan_kswapd 7\npgsteal_direct 2\n"),
        42U);
    EXPECT_EQ(PageReclaim::pagesTaken("nr_free_pages 9\n"), std::nullopt);
    EXPECT_EQ(PageReclaim::pagesTaken("pgsteal_kswapd \n"), std::nullopt);
    PageReclaim unknown("/nonexistent");
    EXPECT_TRUE(unknown.hasWorked() && unknown.hasWorked());
    PageReclaim real("/proc");
    EXPECT_TRUE(real.hasWorked());
}

TEST(ProcessTable, AnswersNothingOfAProcessThatIsGone) {
    LinuxProcessTable table;
    auto known = waitingProgram();
    auto unknown = waitingProgram();
    const std::vector<qint32> pids = {known.pid(), unknown.pid()};
    listed(table);
    ASSERT_TRUE(table.taskInfo(known.pid()));
    known.end();
    unknown.end();
    for (const auto pid : pids) {
        EXPECT_FALSE(table.taskInfo(pid));
        EXPECT_FALSE(table.kernelInfo(pid));
        const auto origin = table.origin(pid);
        EXPECT_EQ(origin.executablePath + origin.shortName + origin.argumentArea, "");
        EXPECT_FALSE(origin.kernelInfo);
        EXPECT_FALSE(isListed(table, pid));
    }
}

TEST(ProcessTable, LeavesOutTheFiguresOfAZombie) {
    LinuxProcessTable table;
    const auto child = waitingProgram();
    ASSERT_TRUE(isListed(table, child.pid()));
    ASSERT_TRUE(table.taskInfo(child.pid()));
    child.kill();
    siginfo_t ended;
    waitid(P_PID, static_cast<id_t>(child.pid()), &ended, WEXITED | WNOWAIT);
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_TRUE(isListed(table, child.pid()));
        EXPECT_FALSE(table.taskInfo(child.pid()));
    }
    LinuxProcessTable fresh;
    EXPECT_TRUE(isListed(fresh, child.pid()));
    EXPECT_FALSE(fresh.taskInfo(child.pid()));
}

TEST(ProcessTable, TakesAReusedIdForAnotherProcess) {
    LinuxProcessTable table;
    Child first([](int socket) { burn(socket, 1); });
    const auto pid = first.pid();
    listed(table);
    while (table.taskInfo(pid).value().cpuTimeNs < 50'000'000)
        std::this_thread::sleep_for(5ms);
    ASSERT_EQ(table.taskInfo(pid)->threads, 2);
    first.end();
    const auto second = cloneAs(pid);
    if (second < 0)
        GTEST_SKIP() << "may not choose a process id";
    const auto task = table.taskInfo(pid);
    ::kill(second, SIGKILL);
    waitpid(second, nullptr, 0);
    ASSERT_TRUE(task);
    EXPECT_LT(task->cpuTimeNs, 50'000'000u);
    EXPECT_EQ(task->threads, 1);
    EXPECT_FALSE(table.taskInfo(pid));
}

TEST(ProcessTable, LeavesOutKernelThreads) {
    LinuxProcessTable table;
    const auto pids = listed(table);
    EXPECT_EQ(std::ranges::count(pids, getpid()), 1);
    bool isTheSameTwice = false; // when no other program starts a process in between
    for (int tries = 0; tries < 200 && !isTheSameTwice; ++tries)
        isTheSameTwice = listed(table) == listed(table);
    EXPECT_TRUE(isTheSameTwice);
    int kernelThreads = 0;
    for (const auto& row : outputOf("ps -e -o pid=,flags=,vsz=").split('\n')) {
        // ps shows only some of the flags; a kernel thread is a child of 2, or 2 itself.
        const auto fields = row.simplified().split(' ');
        if (fields.size() < 3 || ps(fields.at(0).toInt(), "ppid") != "2")
            continue;
        ++kernelThreads;
        EXPECT_EQ(std::ranges::count(pids, fields.at(0).toInt()), 0) << row.constData();
    }
    if (kernelThreads == 0)
        GTEST_SKIP() << "no kernel thread can be seen from here";
}

TEST(ProcessTable, KeepsNoDescriptorsOfProcessesThatWent) {
    constexpr int others = 60; // processes of other programs that start and end meanwhile
    LinuxProcessTable table;
    listed(table);
    const auto before = openDescriptors();
    {
        std::vector<std::unique_ptr<Child>> children;
        for (int child = 0; child < 200; ++child)
            children.push_back(std::make_unique<Child>(waitForCommands));
        const auto sockets = static_cast<int>(children.size());
        listed(table);
        for (const auto& child : children)
            ASSERT_TRUE(table.taskInfo(child->pid()));
        const auto whileAsleep = openDescriptors();
        EXPECT_NEAR(whileAsleep, before + sockets + 200, others);
        for (const auto& child : children) // which wakes it
            child->tell('.');
        for (int look = 0; look < 100 && openDescriptors() < whileAsleep + 200 - others; ++look) {
            std::this_thread::sleep_for(5ms);
            for (const auto& child : children)
                ASSERT_TRUE(table.taskInfo(child->pid()));
        }
        EXPECT_GE(openDescriptors(), whileAsleep + 200 - others);
    }
    for (const auto pid : listed(table)) // which may still have the PIDs of those that are gone
        table.taskInfo(pid);
    EXPECT_NEAR(openDescriptors(), before, others);
}

TEST(ProcessTable, FillsNoMoreThanTheRoomGiven) {
    LinuxProcessTable table;
    const auto all = listed(table);
    std::vector<qint32> few(3, -7);
    ASSERT_EQ(table.listAllPids(std::span(few).first(2)), 2);
    EXPECT_EQ(few, (std::vector<qint32>{all.at(0), all.at(1), -7}));
}

/// Ends a child process with the line of a false condition as its status.
void require(bool condition, std::source_location place = std::source_location::current()) {
    if (!condition)
        _exit(static_cast<int>(place.line() % 255 + 1));
}

/// Requires that the table answers for `pid` under the limit on descriptors.
void checkUnderLimit(rlim_t limit, qint32 pid) {
    const rlimit both{limit, limit};
    require(setrlimit(RLIMIT_NOFILE, &both) == 0);
    LinuxProcessTable table;
    for (int pass = 0; pass < 3; ++pass) {
        require(isListed(table, pid));
        for (const auto each : listed(table))
            table.taskInfo(each);
        const auto task = table.taskInfo(pid);
        require(task && task->threads == 1 && task->residentBytes > 0);
        require(task->cpuTimeNs > 0 && task->cpuTimeNs <= 10'000'000'000);
        require(task->virtualBytes / 1024 == ps(pid, "vsz").toULongLong());
        require(table.origin(pid).shortName == "sleep");
    }
}

TEST(ProcessTable, DoesWithFewDescriptors) {
    const auto subject = waitingProgram();
    for (const rlim_t limit : {64, 134, 144}) {
        Child child([&](int) { checkUnderLimit(limit, subject.pid()); });
        EXPECT_EQ(child.exitStatus(), 0) << "limit " << limit;
    }
}

/// Requires the public figures of another user's process.
void checkForeign(qint32 pid) {
    LinuxProcessTable table;
    const auto task = table.taskInfo(pid);
    const auto kernel = table.kernelInfo(pid);
    require(isListed(table, pid) && task && task->residentBytes > 0);
    require(kernel && kernel->uid != geteuid());
    require(table.origin(pid).executablePath.isEmpty());
    require(table.origin(pid).shortName == "sleep" && table.origin(pid).argumentArea.startsWith("sleep"));
}

TEST(ProcessTable, SeesWhatIsPublicOfAnotherUsersProcess) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs a second user";
    const auto subject = waitingProgram();
    Child child([&](int) {
        require(setresuid(65534, 65534, 65534) == 0);
        checkForeign(subject.pid());
    });
    EXPECT_EQ(child.exitStatus(), 0);
}

TEST(ProcessTable, TheOwnerIsToldAlsoWhereTheFilesAreRoots) {
    LinuxProcessTable table;
    const bool isRoot = geteuid() == 0;
    const Child child([isRoot](int socket) {
        if (isRoot && setresuid(65534, 65534, 65534) != 0)
            _exit(9);
        prctl(PR_SET_DUMPABLE, 0); // as for a program with more rights than its user
        static_cast<void>(!write(socket, "!", 1));
        waitForCommands(socket);
    });
    ASSERT_EQ(child.heard(), '!');
    const auto kernel = table.kernelInfo(child.pid());
    ASSERT_TRUE(kernel);
    EXPECT_EQ(kernel->uid, isRoot ? 65534 : geteuid());
    struct stat file;
    ASSERT_EQ(::stat(("/proc/" + std::to_string(child.pid()) + "/stat").c_str(), &file), 0);
    EXPECT_EQ(file.st_uid, 0u);
}

} // namespace

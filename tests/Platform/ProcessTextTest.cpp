#include "Platform/Child.h"
#include "Platform/Linux/ControlGroup.h"
#include "Platform/Linux/LinuxProcessTable.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>

#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QByteArray argumentsOf(const std::vector<std::string>& arguments) {
    QByteArray area;
    for (const auto& argument : arguments)
        area.append(argument.c_str(), static_cast<qsizetype>(argument.size()) + 1);
    return area;
}

TEST(ProcessText, NamesOfEveryKindAreReadAsTheyStand) {
    LinuxProcessTable table;
    for (const char* name :
         {"plain", "two words", ") R 1 (", "a\nb) S 7 7", "\xff\xfe\x80", "<b>&amp;", "fifteen-letters"}) {
        const Child child([name](int socket) {
            prctl(PR_SET_NAME, name);
            char word = '!';
            static_cast<void>(!write(socket, &word, 1));
            static_cast<void>(!read(socket, &word, 1));
        });
        ASSERT_EQ(child.heard(), '!');
        EXPECT_EQ(table.origin(child.pid()).shortName, name);
        const auto kernel = table.kernelInfo(child.pid());
        ASSERT_TRUE(kernel) << name;
        EXPECT_EQ(kernel->parentPid, getpid()) << name;
    }
}

TEST(ProcessText, ArgumentsOfEveryKindAreReadWhole) {
    LinuxProcessTable table;
    const std::vector<std::vector<std::string>> tails = {
        {"plain"},
        {"two words", "(paren)", "new\nline", "", "<b>bold</b>", "\xff\xfe\x80"},
        std::vector<std::string>(10, std::string(100'000, 'x')),
    };
    for (const auto& tail : tails) {
        std::vector<std::string> arguments = {"sh", "-c", "read line"};
        arguments.insert(arguments.end(), tail.begin(), tail.end());
        const Child child("/bin/sh", arguments);
        EXPECT_TRUE(table.origin(child.pid()).argumentArea == argumentsOf(arguments))
            << tail.front().substr(0, 20);
    }
}

TEST(ProcessText, AProgramThatWasRemovedIsStillNamed) {
    LinuxProcessTable table;
    const QTemporaryDir folder;
    const auto program = folder.filePath(u"a-program-with-a-long-name (v2)"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, program));
    const Child child(program.toStdString(), {"other", "1000"});
    ASSERT_TRUE(QFile::remove(program));
    EXPECT_EQ(table.origin(child.pid()).executablePath, QFile::encodeName(program));
}

TEST(ProcessText, TheHashFollowsNameArgumentsAndProgram) {
    LinuxProcessTable table;
    // Each line takes the shell one step on; it answers when the step is done.
    const Child child("/bin/sh",
                      {"sh", "-c",
                       "printf ! >&0; read line; printf %s renamed > /proc/$$/comm; printf ! >&0; read line;"
                       "exec sh -c 'printf ! >&0; read line' sh other-argument"});
    std::optional<quint64> last;
    for (const char* step : {"started", "renamed", "another program"}) {
        ASSERT_EQ(child.heard(), '!') << step;
        const auto hash = table.textHash(child.pid());
        ASSERT_TRUE(hash) << step;
        EXPECT_NE(hash, last) << step;
        EXPECT_EQ(hash, table.origin(child.pid()).textHash) << step;
        for (int again = 0; again < 3; ++again)
            EXPECT_EQ(table.textHash(child.pid()), hash) << step; // with open descriptors and without
        EXPECT_EQ(table.workingDirectory(child.pid()), QFile::encodeName(QDir::currentPath())) << step;
        last = hash;
        child.tell('\n');
    }
    EXPECT_FALSE(table.textHash(999'999'999));
}

TEST(ProcessText, ControlGroupsTellWhoKeepsAProcess) {
    using Kind = ProcessKeeper::Kind;
    const std::string user = "0::/user.slice/user-1000.slice/user@1000.service/";
    const std::tuple<std::string, Kind, const char*> cases[] = {
        {"", Kind::none, ""},
        {"0::/\n", Kind::none, ""},
        {"0::/user.slice/user-1000.slice/session-2.scope\n", Kind::none, ""},
        {user + "app.slice/app-gnome-org.gnome.Terminal-2481.scope\n", Kind::none, ""},
        {user + "app.slice/app-org.kde.konsole@4f2c.service\n", Kind::none, ""},
        {user + "init.scope\n", Kind::none, ""},
        {user + "app.slice/mcp-notes.service\n", Kind::service, "mcp-notes.service"},
        {"0::/system.slice/mcp-gateway.service\n", Kind::service, "mcp-gateway.service"},
        {"0::/system.slice/docker-0123abcd.scope\n", Kind::container, "docker-0123abcd.scope"},
        {user + "user.slice/libpod-77.scope/container\n", Kind::container, "libpod-77.scope"},
        {"12:pids:/docker/0123abcd\n1:name=systemd:/docker/0123abcd\n", Kind::container, "0123abcd"},
        {"1:name=systemd:/system.slice/docker.service\n", Kind::service, "docker.service"},
        {"0::/lxc.payload.dev/system.slice/mcp.service\n", Kind::container, "lxc.payload.dev"},
    };
    for (const auto& [text, kind, name] : cases) {
        const ProcessKeeper keeper = ControlGroup::keeper(QByteArray::fromStdString(text));
        EXPECT_EQ(keeper.kind, kind) << text;
        EXPECT_EQ(keeper.name, name) << text;
    }
    using namespace std::string_literals;
    EXPECT_EQ(ControlGroup::mainPid(QByteArray::fromStdString("A=1\0SYSTEMD_EXEC_PID=4711\0B=2\0"s)), 4711);
    EXPECT_EQ(ControlGroup::mainPid("NOT_SYSTEMD_EXEC_PID=4711"), 0);
    EXPECT_EQ(ControlGroup::mainPid("SYSTEMD_EXEC_PID=-4711"), 0);
}

TEST(ProcessText, StatLinesAreParsedFromTheLastParenthesis) {
    const std::string figures =
        " S 41 2 3 4 5 4194304 7 8 9 10 1100 22 13 14 15 16 17 18 1900 20480 21 22 23\n";
    for (const char* name : {"sh", "a b", "x) R 1 1 (y", ")))", "", "line\nfeed"}) {
        const auto stat = ProcStat::parse("7 (" + std::string(name) + ")" + figures);
        ASSERT_TRUE(stat) << name;
        EXPECT_EQ(stat->name, name);
        EXPECT_EQ(stat->parentPid, 41);
        EXPECT_EQ(stat->flags, 4194304u);
        EXPECT_EQ(stat->cpuTicks, 1122u);
        EXPECT_EQ(stat->threads, 17);
        EXPECT_EQ(stat->startTicks, 1900u);
        EXPECT_EQ(stat->virtualBytes, 20480u);
        EXPECT_EQ(stat->residentPages, 21u);
    }
    for (const char* broken :
         {"", "7", "7 (sh", "7 (sh)", "7 (sh) S", "7 (sh) S 1 2 3", "7 (sh) S a b c d e f g"})
        EXPECT_FALSE(ProcStat::parse(broken)) << broken;
}

// PIDs above the kernel's maximum, so that they have no CPU clock.
const QByteArray statLine =
    "(recorded) S 41 2 3 4 5 %FLAGS 7 8 9 10 300 200 13 14 15 16 3 18 1900 %SIZE 21 22 23\n";

QByteArray stat(const char* flags, const char* size) {
    return "5000000 " + QByteArray(statLine).replace("%FLAGS", flags).replace("%SIZE", size);
}

TEST(ProcessText, OddFoldersAreLookedAtWithCare) {
    TemporaryFolder proc;
    proc.makeFile(u"5000001/stat"_s, stat("0", "8192"));
    proc.makeFile(u"5000001/statm"_s, "2 1 0 0 0 0 0\n");
    proc.makeFile(u"5000002/stat"_s, stat("2129984", "0"));
    proc.makeFile(u"5000002/statm"_s, "0 0 0 0 0 0 0\n");
    proc.makeFile(u"5000003/stat"_s, stat("0", "8192"));
    proc.makeFile(u"5000005/statm"_s, "garbage\n");
    for (const auto& folder :
         {u"5000001/task/5000001"_s, u"5000001/task/5000009"_s, u"5000002/task/5000002"_s, u"5000004"_s,
          u"5000005/task"_s, u"self"_s, u"12a"_s, u"99999999999"_s, u"0"_s, u"sys"_s})
        proc.makeFolder(folder);

    LinuxProcessTable table(proc.path().toStdString());
    for (int pass = 0; pass < 2; ++pass) {
        std::vector<qint32> pids(16);
        pids.resize(static_cast<size_t>(table.listAllPids(pids)));
        std::ranges::sort(pids);
        EXPECT_EQ(pids, (std::vector<qint32>{5000001, 5000003, 5000004, 5000005}));
        const quint64 page = static_cast<quint64>(sysconf(_SC_PAGESIZE));
        const auto fiveSeconds = 500'000'000'000 / static_cast<quint64>(sysconf(_SC_CLK_TCK));
        EXPECT_EQ(table.taskInfo(5000001), (TaskInfo{2 * page, page, page, fiveSeconds, 2}));
        EXPECT_EQ(table.taskInfo(5000003), (TaskInfo{8192, 21 * page, std::nullopt, fiveSeconds, 3}));
        EXPECT_FALSE(table.taskInfo(5000004));
        EXPECT_FALSE(table.taskInfo(5000005));
        EXPECT_FALSE(table.kernelInfo(5000004));
    }
}

TEST(ProcessText, AKernelThreadsIdMayComeBackAsAProcess) {
    TemporaryFolder proc;
    proc.makeFile(u"5000001/stat"_s, stat("2097152", "0"));
    LinuxProcessTable table(proc.path().toStdString());
    std::vector<qint32> pids(16);
    EXPECT_EQ(table.listAllPids(pids), 0);
    // The old folder is kept, so that its inode is not reused.
    ASSERT_TRUE(QDir(proc.path()).rename(u"5000001"_s, u"gone"_s));
    proc.makeFile(u"5000001/stat"_s, stat("0", "8192"));
    EXPECT_EQ(table.listAllPids(pids), 1);
    EXPECT_TRUE(table.taskInfo(5000001));
    EXPECT_LT(LinuxProcessTable("/nonexistent").listAllPids(pids), 1) << "a folder that cannot be listed";
}

} // namespace

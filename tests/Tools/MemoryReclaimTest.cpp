#include "Tools/MemoryReclaim.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Tools::ReclaimBudget;

constexpr std::uint64_t mib = 1 << 20;

} // namespace

TEST(MemoryReclaim, TheGroupIsTheHighestOfTheUsersOwn) {
    const std::string user = "/user.slice/user-1000.slice";
    const std::string service = user + "/user@1000.service";
    const std::string application = service + "/app.slice/a.scope";
    struct Case {
        std::string ownGroup;
        std::vector<std::string> reclaimable; ///< the groups that have the file
        std::string expected;                 ///< empty: none
        const char* mountRoot = "/";
    };
    const Case cases[] = {
        {application, {application}, application},
        {application, {service, service + "/app.slice"}, service},
        {user + "/session-2.scope", {"/user.slice", user}, user},
        {"/user.slice/user-10000.slice/session-2.scope", {"/user.slice", "/user.slice/user-10000.slice"}, {}},
        {"/x/user@1000.service/a.scope",
         {"/x", "/x/user@1000.service", "/x/user@1000.service/a.scope"},
         "/x/user@1000.service"},
        {"/system.slice/a.service", {"/system.slice"}, {}},
        {"/system.slice/a.service", {"/system.slice/a.service"}, "/system.slice/a.service"},
        {user + "/session-2.scope", {}, {}},
        {"/box/user@1000.service/a", {"/user@1000.service"}, "/user@1000.service", "/box"},
        {"/boxes/a", {"/boxes/a", "es/a"}, {}, "/box"},
    };
    for (const auto& [ownGroup, reclaimable, expected, mountRoot] : cases) {
        TemporaryFolder tree;
        const QByteArray mountPoint = tree.path().toUtf8() + "/cgroup";
        tree.makeFile(u"proc/self/mountinfo"_s,
                      "25 30 0:23 / /sys rw,relatime shared:7 - sysfs sysfs rw\n"
                      "26 25 0:24 / " +
                          mountPoint +
                          "/v1 rw shared:8 - cgroup cgroup rw,memory\n"
                          "27 25 0:25 " +
                          QByteArray(mountRoot) + ' ' + mountPoint +
                          " rw,nosuid shared:9 master:1 - cgroup2 cgroup2 rw,nsdelegate\n");
        tree.makeFile(u"proc/self/cgroup"_s,
                      "4:memory:/v1\n0::" + QByteArray::fromStdString(ownGroup) + '\n');
        for (const std::string& group : reclaimable)
            tree.makeFile(u"cgroup"_s + QString::fromStdString(group) + u"/memory.reclaim"_s, {});
        const auto found = Tools::reclaimableGroup(tree.path().toStdString() + "/proc", 1000);
        EXPECT_EQ(found.value_or(""), expected.empty() ? "" : mountPoint.toStdString() + expected)
            << ownGroup;
    }
}

TEST(MemoryReclaim, AsksForATenthAndNeverMoreThanAGigabyte) {
    EXPECT_EQ(Tools::reclaimTarget(0, {}), 0u);
    EXPECT_EQ(Tools::reclaimTarget(1000 * mib, {}), 100 * mib);
    EXPECT_EQ(Tools::reclaimTarget(64'000 * mib, {}), 1024 * mib);
}

TEST(MemoryReclaim, StopsWhenItIsMetRefusedOrOutOfTime) {
    struct Case {
        std::vector<int> answers; ///< of the first requests; 0 for the rest
        int requestsInTime;
        int expected;
        std::vector<std::uint64_t> asked;
    };
    const Case cases[] = {{{}, 9, 0, {32 * mib, 32 * mib, 6 * mib}},
                          {{0, EAGAIN}, 9, 0, {32 * mib, 32 * mib}},
                          {{EINVAL}, 9, EINVAL, {32 * mib}},
                          {{}, 1, 0, {32 * mib}},
                          {{}, 0, 0, {}}};
    for (const Case& test : cases) {
        std::vector<std::uint64_t> asked;
        const auto request = [&](std::uint64_t bytes) {
            asked.push_back(bytes);
            return asked.size() <= test.answers.size() ? test.answers[asked.size() - 1] : 0;
        };
        const auto isTimeUp = [&] { return static_cast<int>(asked.size()) >= test.requestsInTime; };
        EXPECT_EQ(Tools::reclaimInSteps(70 * mib, 32 * mib, request, isTimeUp), test.expected);
        EXPECT_EQ(asked, test.asked);
    }
}

TEST(MemoryReclaim, WritesOneNumberOfBytesARequest) {
    TemporaryFolder tree;
    tree.makeFile(u"memory.current"_s, QByteArray::number(quint64(700 * mib)) + '\n');
    tree.makeFile(u"memory.reclaim"_s, {});
    EXPECT_EQ(Tools::reclaim(tree.path().toStdString(), {}), 0);
    EXPECT_EQ(contentOf(tree.path() + u"/memory.reclaim"_s), "33554432\n33554432\n6291456\n");
}

TEST(MemoryReclaim, ReportsWhatTheKernelObjectsTo) {
    TemporaryFolder tree;
    tree.makeFile(u"memory.current"_s, "99999999\n");
    const auto folder = tree.path().toStdString();
    EXPECT_EQ(Tools::reclaim(folder, {}), ENOENT);
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, tree.path() + u"/memory.reclaim"_s));
    EXPECT_EQ(Tools::reclaim(folder, {}), ENOSPC);
}

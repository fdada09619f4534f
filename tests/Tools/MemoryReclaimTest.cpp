#include "Tools/MemoryReclaim.h"

#include "Platform/RecordedTree.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

namespace {

using Tools::ReclaimBudget;

constexpr std::uint64_t mib = 1 << 20;

struct GroupCase {
    const char* name;
    QByteArray ownGroup;
    std::vector<const char*> reclaimable; ///< the groups that have the file
    const char* expected;                 ///< nullptr: none
    const char* mountRoot = "/";
};

const GroupCase groupCases[] = {
    {"ownApplication",
     "/user.slice/user-1000.slice/user@1000.service/app.slice/a.scope",
     {"/user.slice/user-1000.slice/user@1000.service/app.slice/a.scope"},
     "/user.slice/user-1000.slice/user@1000.service/app.slice/a.scope"},
    {"highestThatTakesIt",
     "/user.slice/user-1000.slice/user@1000.service/app.slice/a.scope",
     {"/user.slice/user-1000.slice/user@1000.service",
      "/user.slice/user-1000.slice/user@1000.service/app.slice"},
     "/user.slice/user-1000.slice/user@1000.service"},
    {"notAboveTheUsersSlice",
     "/user.slice/user-1000.slice/session-2.scope",
     {"/user.slice", "/user.slice/user-1000.slice"},
     "/user.slice/user-1000.slice"},
    {"notAnotherUsersSlice",
     "/user.slice/user-10000.slice/session-2.scope",
     {"/user.slice", "/user.slice/user-10000.slice"},
     nullptr},
    {"serviceManagerAlone",
     "/x/user@1000.service/a.scope",
     {"/x", "/x/user@1000.service", "/x/user@1000.service/a.scope"},
     "/x/user@1000.service"},
    {"onlyTheOwnGroupElsewhere", "/system.slice/a.service", {"/system.slice"}, nullptr},
    {"ownGroupElsewhere", "/system.slice/a.service", {"/system.slice/a.service"}, "/system.slice/a.service"},
    {"noFile", "/user.slice/user-1000.slice/session-2.scope", {}, nullptr},
    {"belowAMountedPart", "/box/user@1000.service/a", {"/user@1000.service"}, "/user@1000.service", "/box"},
    {"outsideAMountedPart", "/boxes/a", {"/boxes/a", "es/a"}, nullptr, "/box"},
};

void PrintTo(const GroupCase& test, std::ostream* out) {
    *out << test.name;
}

class ReclaimableGroup : public testing::TestWithParam<GroupCase> {};

} // namespace

TEST_P(ReclaimableGroup, IsTheHighestOfTheUsersOwn) {
    RecordedTree tree;
    const QByteArray mountPoint = tree.path().toUtf8() + "/cgroup";
    tree.with(QStringLiteral("proc/self/mountinfo"),
              "25 30 0:23 / /sys rw,relatime shared:7 - sysfs sysfs rw\n"
              "26 25 0:24 / " +
                  mountPoint +
                  "/v1 rw shared:8 - cgroup cgroup rw,memory\n"
                  "27 25 0:25 " +
                  QByteArray(GetParam().mountRoot) + ' ' + mountPoint +
                  " rw,nosuid shared:9 master:1 - cgroup2 cgroup2 rw,nsdelegate\n");
    tree.with(QStringLiteral("proc/self/cgroup"), "4:memory:/v1\n0::" + GetParam().ownGroup + '\n');
    for (const char* group : GetParam().reclaimable)
        tree.with(QStringLiteral("cgroup") + QString::fromLatin1(group) + QStringLiteral("/memory.reclaim"),
                  {});

    const auto found = Tools::reclaimableGroup(tree.path().toStdString() + "/proc", 1000);
    const char* expected = GetParam().expected;
    EXPECT_EQ(found.value_or("none"), expected ? mountPoint.toStdString() + expected : "none");
}

INSTANTIATE_TEST_SUITE_P(MemoryReclaim, ReclaimableGroup, testing::ValuesIn(groupCases),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(MemoryReclaim, AsksForATenthAndNeverMoreThanAGigabyte) {
    EXPECT_EQ(Tools::reclaimTarget(0, {}), 0u);
    EXPECT_EQ(Tools::reclaimTarget(1000 * mib, {}), 100 * mib);
    EXPECT_EQ(Tools::reclaimTarget(64'000 * mib, {}), 1024 * mib);
}

TEST(MemoryReclaim, StopsWhenItIsMetRefusedOrOutOfTime) {
    struct Case {
        const char* name;
        std::vector<int> answers; ///< of the first requests; 0 for the rest
        int requestsInTime;
        int expected;
        std::vector<std::uint64_t> asked;
    };
    for (const Case& test : std::initializer_list<Case>{
             {"met", {}, 9, 0, {32 * mib, 32 * mib, 6 * mib}},
             {"nothing more to give", {0, EAGAIN}, 9, 0, {32 * mib, 32 * mib}},
             {"refused", {EINVAL}, 9, EINVAL, {32 * mib}},
             {"out of time", {}, 1, 0, {32 * mib}},
             {"no time", {}, 0, 0, {}},
         }) {
        std::vector<std::uint64_t> asked;
        const auto request = [&](std::uint64_t bytes) {
            asked.push_back(bytes);
            return asked.size() <= test.answers.size() ? test.answers[asked.size() - 1] : 0;
        };
        const auto isTimeUp = [&] { return static_cast<int>(asked.size()) >= test.requestsInTime; };
        EXPECT_EQ(Tools::reclaimInSteps(70 * mib, 32 * mib, request, isTimeUp), test.expected) << test.name;
        EXPECT_EQ(asked, test.asked) << test.name;
    }
}

TEST(MemoryReclaim, WritesOneNumberOfBytesARequest) {
    RecordedTree tree;
    tree.with(QStringLiteral("memory.current"), QByteArray::number(quint64(700 * mib)) + '\n');
    tree.with(QStringLiteral("memory.reclaim"), {});
    EXPECT_EQ(Tools::reclaim(tree.path().toStdString(), {}), 0);
    QFile written(tree.path() + QStringLiteral("/memory.reclaim"));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), "33554432\n33554432\n6291456\n");
}

TEST(MemoryReclaim, ReportsWhatTheKernelObjectsTo) {
    RecordedTree tree;
    tree.with(QStringLiteral("memory.current"), "99999999\n");
    const auto folder = tree.path().toStdString();
    EXPECT_EQ(Tools::reclaim(folder, {}), ENOENT);
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), tree.path() + QStringLiteral("/memory.reclaim")));
    EXPECT_EQ(Tools::reclaim(folder, {}), ENOSPC);
}

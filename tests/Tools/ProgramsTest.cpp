#include "Tools/MemoryReclaim.h"

#include "Tools/ToolProcess.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Returns the pages that the kernel has reclaimed from the group (cgroup v2, memory.stat: pgsteal).
quint64 pagesTakenBack(const std::string& group) {
    std::ifstream file(group + "/memory.stat");
    std::string key;
    for (quint64 count = 0; file >> key >> count;) {
        if (key == "pgsteal")
            return count;
    }
    return 0;
}

} // namespace

TEST(Programs, RefuseWhatTheyDoNotUnderstand) {
    const std::initializer_list<std::pair<QString, QStringList>> refused = {
        {u"memory_pressure"_s, {}},
        {u"memory_pressure"_s, {u"-l"_s, u"critical"_s}},
        {u"memory_pressure"_s, {u"-S"_s, u"-l"_s, u"warn"_s}},
        {u"osascript"_s, {}},
        {u"osascript"_s, {u"-e"_s}},
        {u"osascript"_s, {u"-e"_s, u"beep"_s}},
        {u"osascript"_s, {u"-e"_s, u"do shell script \"id\""_s}},
        {u"osascript"_s, {u"tell application \"Notes\" to quit"_s}},
        {u"purge"_s, {u"--now"_s}},
        {u"du"_s, {u"-sk"_s, u"-x"_s}},
        {u"du"_s, {u"-sk"_s, u"-x"_s, QString()}},
        {u"du"_s, {u"-sk"_s, u"-L"_s, u"/tmp"_s}},
    };
    for (const auto& [tool, arguments] : refused) {
        const EndedTool ended = runTool(tool, arguments);
        EXPECT_EQ(ended.status, 2) << qPrintable(tool + u' ' + arguments.join(u' '));
        EXPECT_FALSE(ended.error.isEmpty()) << qPrintable(tool);
    }
}

TEST(Programs, MemoryPressureAsksTheKernelOfThisMachineOrSaysWhyNot) {
    const auto group = Tools::reclaimableGroup("/proc", getuid());
    // Content of a file that is on disk already is what a kernel gives back first.
    QTemporaryFile file(QCoreApplication::applicationDirPath() + u"/cached-XXXXXX"_s);
    ASSERT_TRUE(file.open());
    const QByteArray content(64 << 20, 'x');
    ASSERT_EQ(file.write(content), content.size());
    ASSERT_TRUE(file.flush());
    ASSERT_EQ(fsync(file.handle()), 0);
    const quint64 before = group ? pagesTakenBack(*group) : 0;
    QElapsedTimer time;
    time.start();
    const EndedTool ended = runTool(u"memory_pressure"_s, {u"-l"_s, u"warn"_s});
    EXPECT_LT(time.elapsed(), 5000);
    EXPECT_EQ(ended.status, group ? 0 : 126) << ended.error.constData();
    EXPECT_EQ(ended.error.isEmpty(), group.has_value());
    const quint64 after = group ? pagesTakenBack(*group) : 1;
    EXPECT_GT(after, before);
}

TEST(Programs, TheAdministratorRunsNothingFromABuildTree) {
    const EndedTool ended = runTool(
        u"osascript"_s, {u"-e"_s, u"do shell script \"/usr/sbin/purge\" with administrator privileges"_s});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(ended.error.contains("build tree") || ended.error.contains("others can change"))
        << ended.error.constData();
}

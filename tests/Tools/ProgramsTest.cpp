#include "Tools/MemoryReclaim.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct Ended {
    int status = -1;
    QByteArray complaint;
};

Ended runTool(const QString& name, const QStringList& arguments) {
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u"/../libexec/tavrin/"_s + name, arguments);
    process.waitForFinished();
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardError()};
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
    };
    for (const auto& [tool, arguments] : refused) {
        const Ended ended = runTool(tool, arguments);
        EXPECT_EQ(ended.status, 2) << qPrintable(tool + u' ' + arguments.join(u' '));
        EXPECT_FALSE(ended.complaint.isEmpty()) << qPrintable(tool);
    }
}

TEST(Programs, MemoryPressureAsksTheKernelOfThisMachineOrSaysWhyNot) {
    QElapsedTimer time;
    time.start();
    const Ended ended = runTool(u"memory_pressure"_s, {u"-l"_s, u"warn"_s});
    const bool canAsk = Tools::reclaimableGroup("/proc", getuid()).has_value();
    EXPECT_EQ(ended.status, canAsk ? 0 : 126) << ended.complaint.constData();
    EXPECT_EQ(ended.complaint.isEmpty(), canAsk);
    EXPECT_LT(time.elapsed(), 5000);
}

TEST(Programs, TheAdministratorRunsNothingFromABuildTree) {
    const Ended ended = runTool(
        u"osascript"_s, {u"-e"_s, u"do shell script \"/usr/sbin/purge\" with administrator privileges"_s});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(ended.complaint.contains("build tree") || ended.complaint.contains("others can change"))
        << ended.complaint.constData();
}

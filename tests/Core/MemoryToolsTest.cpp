#include "Core/MemoryTools.h"

#include "support/ScriptedTools.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ToolCase {
    const char* name;
    QCoro::Task<bool> (*call)(std::shared_ptr<ToolRunner>);
    ToolResult answer;
    bool expected;
};

QCoro::Task<bool> quitNotes(std::shared_ptr<ToolRunner> tools) {
    return Cleaner::runOsascript(std::move(tools), u"tell application \"Notes\" to quit"_s);
}

const ToolResult notLaunched{};
const ToolResult crashed{.launched = true};

const ToolCase toolCases[] = {
    {"pressureEnds", Cleaner::memoryPressure, ScriptedTools::exited(0), true},
    {"pressureFails", Cleaner::memoryPressure, ScriptedTools::exited(1), true},
    {"pressureIsTerminated", Cleaner::memoryPressure, crashed, true},
    {"pressureIsMissing", Cleaner::memoryPressure, notLaunched, false},
    {"purgeEnds", Cleaner::deepPurge, ScriptedTools::exited(0), true},
    {"purgeIsCancelled", Cleaner::deepPurge, ScriptedTools::exited(1), false},
    {"purgeIsMissing", Cleaner::deepPurge, notLaunched, false},
    {"scriptEnds", quitNotes, ScriptedTools::exited(0), true},
    {"scriptFails", quitNotes, ScriptedTools::exited(1), false},
    {"scriptCrashes", quitNotes, crashed, false},
    {"scriptRunnerIsMissing", quitNotes, notLaunched, false},
};

class MemoryTool : public testing::TestWithParam<ToolCase> {};

} // namespace

TEST_P(MemoryTool, TurnsTheEndOfItsToolIntoAnAnswer) {
    const auto tools = std::make_shared<ScriptedTools>();
    tools->answer = [](const ToolRequest&) { return GetParam().answer; };
    EXPECT_EQ(QCoro::waitFor(GetParam().call(tools)), GetParam().expected);
    EXPECT_EQ(tools->requests.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Cleaner, MemoryTool, testing::ValuesIn(toolCases),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(MemoryTools, SendExactlyTheseRequests) {
    const auto tools = std::make_shared<ScriptedTools>();
    QCoro::waitFor(Cleaner::memoryPressure(tools));
    QCoro::waitFor(Cleaner::deepPurge(tools));
    QCoro::waitFor(quitNotes(tools));

    ASSERT_EQ(tools->requests.size(), 3);
    const auto& [pressure, purge, quit] =
        std::tie(tools->requests[0], tools->requests[1], tools->requests[2]);
    EXPECT_EQ(pressure.launchPath, u"/usr/bin/memory_pressure"_s);
    EXPECT_EQ(pressure.arguments, QStringList({u"-l"_s, u"warn"_s}));
    EXPECT_EQ(pressure.terminateAfter, std::chrono::milliseconds(1500));

    EXPECT_EQ(purge.launchPath, u"/usr/bin/osascript"_s);
    ASSERT_EQ(purge.arguments.size(), 2);
    EXPECT_EQ(purge.arguments[1], u"do shell script \"/usr/sbin/purge\" with administrator privileges"_s);
    EXPECT_EQ(purge.arguments[1].size(), 63);
    EXPECT_FALSE(purge.terminateAfter) << "a prompt waits for as long as the person needs";

    EXPECT_EQ(quit.arguments, QStringList({u"-e"_s, u"tell application \"Notes\" to quit"_s}));
    EXPECT_FALSE(quit.captureOutput);
}

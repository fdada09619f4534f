#include "Core/Relief/MemoryTools.h"

#include "support/ScriptedTools.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<bool> quitNotes(std::shared_ptr<ToolRunner> tools) {
    return Cleaner::runOsascript(std::move(tools), u"tell application \"Notes\" to quit"_s);
}

} // namespace

TEST(MemoryTools, TurnTheEndOfTheirToolIntoAnAnswer) {
    const std::pair<const char*, ToolResult> ends[] = {{"0", ScriptedTools::exited(0)},
                                                       {"1", ScriptedTools::exited(1)},
                                                       {"crashed", {.launched = true}},
                                                       {"missing", {}}};
    using Tools = std::shared_ptr<ToolRunner>;
    const auto reported = [](const Cleaner::MemoryAnswer& answer) {
        EXPECT_EQ(answer.reason, answer.done ? QString() : u"said why"_s);
        return answer.done;
    };
    const std::tuple<const char*, std::function<bool(Tools)>, const char*> tools[] = {
        {"pressure",
         [&](const Tools& runner) { return reported(QCoro::waitFor(Cleaner::memoryPressure(runner))); },
         "0 1 crashed"}, // which ends it when it has had its time
        {"purge", [&](const Tools& runner) { return reported(QCoro::waitFor(Cleaner::deepPurge(runner))); },
         "0"},
        {"script", [](const Tools& runner) { return QCoro::waitFor(quitNotes(runner)); }, "0"}};
    for (const auto& [name, call, good] : tools) {
        for (const auto& [end, result] : ends) {
            const auto runner = std::make_shared<ScriptedTools>();
            runner->answer = [&result = result](const ToolRequest&) {
                ToolResult answer = result;
                answer.complaint = u"said why"_s;
                return answer;
            };
            EXPECT_EQ(call(runner), QByteArray(good).split(' ').contains(end)) << name << end;
            EXPECT_EQ(runner->requests.size(), 1) << name << end;
        }
    }
}

TEST(MemoryTools, SendExactlyTheseRequests) {
    const auto tools = std::make_shared<ScriptedTools>();
    QCoro::waitFor(Cleaner::memoryPressure(tools));
    QCoro::waitFor(Cleaner::deepPurge(tools));
    QCoro::waitFor(quitNotes(tools));
    EXPECT_EQ(tools->commandLines(),
              (QStringList{u"/usr/bin/memory_pressure -l warn"_s,
                           u"/usr/bin/osascript -e do shell script \"/usr/sbin/purge\" with administrator "
                           "privileges"_s,
                           u"/usr/bin/osascript -e tell application \"Notes\" to quit"_s}));
    EXPECT_EQ(tools->requests[0].terminateAfter, std::chrono::milliseconds(1500));
    EXPECT_EQ(tools->requests[1].arguments.size(), 2);
    EXPECT_FALSE(tools->requests[1].terminateAfter) << "a prompt waits for as long as the person needs";
    EXPECT_EQ(tools->requests[2].arguments.size(), 2);
    EXPECT_FALSE(tools->requests[2].captureOutput);
}

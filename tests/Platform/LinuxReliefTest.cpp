#include "Platform/Linux/LinuxRelief.h"

#include "support/ScriptedTools.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct LinuxReliefTest : testing::Test {
    std::shared_ptr<ScriptedTools> tools = std::make_shared<ScriptedTools>();
    LinuxRelief relief{tools};
};

} // namespace

TEST_F(LinuxReliefTest, TheEndOfTheToolIsTheOutcome) {
    const std::pair<const char*, ToolResult> ends[] = {{"0", ScriptedTools::exited(0)},
                                                       {"1", ScriptedTools::exited(1)},
                                                       {"crashed", {.launched = true}},
                                                       {"missing", {}}};
    using Ask = QCoro::Task<Outcome> (*)(Relief&);
    const std::tuple<const char*, Ask, const char*> requests[] = {
        {"reclaim", [](Relief& asked) { return asked.reclaimMemory(); },
         "0 1 crashed"}, // which ends the tool when it has had its time
        {"drop", [](Relief& asked) { return asked.dropCaches({}); }, "0"},
        {"quit", [](Relief& asked) { return asked.quitApplication(u"Notes"_s, false); }, "0"}};
    for (const auto& [name, ask, good] : requests) {
        for (const auto& [end, result] : ends) {
            tools->requests.clear();
            tools->answer = [&result = result](const ToolRequest&) {
                ToolResult answer = result;
                answer.errorLine = u"said why"_s;
                return answer;
            };
            const bool isGood = QByteArray(good).split(' ').contains(end);
            EXPECT_EQ(QCoro::waitFor(ask(relief)),
                      isGood ? Outcome::success() : Outcome::failure(u"said why"_s))
                << name << end;
            EXPECT_EQ(tools->requests.size(), 1) << name << end;
        }
    }
}

TEST_F(LinuxReliefTest, SendsExactlyTheseRequests) {
    QCoro::waitFor(relief.reclaimMemory());
    QCoro::waitFor(relief.dropCaches({}));
    QCoro::waitFor(relief.quitApplication(u"Notes"_s, false));
    QCoro::waitFor(relief.quitApplication(u"The \"Best\" %1"_s, true));
    EXPECT_EQ(
        tools->commandLines(),
        (QStringList{u"/usr/bin/memory_pressure -l warn"_s,
                     u"/usr/bin/osascript -e do shell script \"/usr/sbin/purge\" with administrator "
                     "privileges"_s,
                     u"/usr/bin/osascript -e tell application \"Notes\" to quit"_s,
                     u"/usr/bin/osascript -e tell application \"The \\\"Best\\\" %1\" to quit saving no"_s}));
    EXPECT_EQ(tools->requests[0].timeout, std::chrono::milliseconds(1500));
    EXPECT_EQ(tools->requests[1].arguments.size(), 2);
    EXPECT_FALSE(tools->requests[1].timeout) << "a prompt waits for as long as the person needs";
    EXPECT_EQ(tools->requests[2].arguments.size(), 2);
    EXPECT_FALSE(tools->requests[2].captureOutput);
}

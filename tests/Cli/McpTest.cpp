#include "Cli/CliFixture.h"
#include "Cli/Machine.h"
#include "Cli/Mcp/McpServer.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct McpTest : CliTest {
    Environment environment{.platform = fakes.platform(),
                            .preferences = settings.preferences,
                            .terminal = terminal,
                            .running = running,
                            .betweenReadings = std::chrono::milliseconds(1)};
    Machine machine{environment, {}};
    McpServer server{machine, {u"1.2.3"_s, 90}};
    QList<QJsonObject> answers;

    McpTest() {
        QObject::connect(&server, &McpServer::answered, &server,
                         [this](const QJsonObject& answer) { answers.append(answer); });
    }
    QJsonObject ask(const QByteArray& line) {
        const qsizetype before = answers.size();
        server.take(line);
        const bool hasAnswer = QTest::qWaitFor([&] { return answers.size() > before; }, 2000);
        return hasAnswer ? answers.constLast() : QJsonObject();
    }
    QJsonObject call(const QByteArray& tool, const QByteArray& arguments = "{}") {
        return ask(R"({"jsonrpc":"2.0","id":"x","method":"tools/call","params":{"name":")" + tool +
                   R"(","arguments":)" + arguments + "}}");
    }
    static QJsonObject resultOf(const QJsonObject& answer) { return answer.value(u"result"_s).toObject(); }
    static QJsonObject told(const QJsonObject& answer) {
        return resultOf(answer).value(u"structuredContent"_s).toObject();
    }
    static int codeOf(const QJsonObject& answer) {
        return answer.value(u"error"_s).toObject().value(u"code"_s).toInt();
    }
};

} // namespace

TEST_F(McpTest, GreetsAsTheProtocolHasIt) {
    for (const auto& [asked, given] :
         {std::pair{u"2024-11-05"_s, u"2024-11-05"_s}, std::pair{u"2025-06-18"_s, u"2025-06-18"_s},
          std::pair{u"1999-01-01"_s, u"2025-06-18"_s}}) {
        const QJsonObject answer =
            ask(R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"protocolVersion":")" +
                asked.toUtf8() + R"("}})");
        EXPECT_EQ(answer.value(u"id"_s).toInt(), 1);
        EXPECT_EQ(resultOf(answer).value(u"protocolVersion"_s).toString(), given);
        EXPECT_TRUE(resultOf(answer).value(u"capabilities"_s).toObject().contains(u"tools"_s));
    }
    EXPECT_EQ(ask(R"({"jsonrpc":"2.0","id":2,"method":"ping"})").value(u"result"_s).toObject(),
              QJsonObject());
    const QJsonArray offered =
        resultOf(ask(R"({"jsonrpc":"2.0","id":3,"method":"tools/list"})")).value(u"tools"_s).toArray();
    QStringList names;
    for (const QJsonValue& tool : offered) {
        names.append(tool.toObject().value(u"name"_s).toString());
        EXPECT_TRUE(tool.toObject().value(u"annotations"_s).toObject().value(u"readOnlyHint"_s).toBool());
        EXPECT_FALSE(tool.toObject().value(u"description"_s).toString().isEmpty());
    }
    EXPECT_EQ(names, (QStringList{u"memory_status"_s, u"sessions"_s, u"what_holds_memory"_s, u"orphans"_s,
                                  u"caches"_s}));
}

TEST_F(McpTest, RefusesWhatIsNoRequest) {
    for (const auto& [line, code] :
         {std::pair{"{", -32700}, std::pair{"[]", -32600}, std::pair{R"({"id":1,"method":"ping"})", -32600},
          std::pair{R"({"jsonrpc":"2.0","id":{},"method":"ping"})", -32600},
          std::pair{R"({"jsonrpc":"2.0","id":1,"method":"tools/destroy"})", -32601}})
        EXPECT_EQ(codeOf(ask(line)), code) << line;
    EXPECT_EQ(codeOf(call("rm")), -32602);
    EXPECT_EQ(codeOf(call("caches", R"({"scan":"yes"})")), -32602);
    EXPECT_EQ(codeOf(call("what_holds_memory", R"({"limit":0})")), -32602);
    EXPECT_EQ(codeOf(call("sessions", R"({"kill":true})")), -32602);
    answers.clear();
    for (const char* silent :
         {"", "   ", R"({"jsonrpc":"2.0","method":"notifications/initialized"})",
          R"({"jsonrpc":"2.0","id":5,"result":{}})",
          R"({"jsonrpc":"2.0","method":"notifications/cancelled","params":{"requestId":77}})"})
        server.take(silent);
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(McpTest, AnAgentSeesWhatItStartedAndNotTheServerAsALeak) {
    add(60, 1, "claude");
    addSized(61, "node", 700 * MiB, 60).arguments = QByteArray("node\0/srv/app/node_modules/.bin/vite", 36);
    add(90, 60, "tavrinctl", "tavrinctl mcp");
    const QJsonObject session = told(call("sessions")).value(u"sessions"_s).toArray().first().toObject();
    EXPECT_TRUE(session.value(u"is_caller"_s).toBool());
    EXPECT_EQ(session.value(u"processes"_s).toArray().at(1).toObject().value(u"rss_bytes"_s).toInteger(),
              qint64(700 * MiB));
    const QJsonObject held = told(call("what_holds_memory", R"({"limit":1})"));
    EXPECT_EQ(held.value(u"processes"_s).toArray().size(), 1);
    EXPECT_EQ(told(call("memory_status")).value(u"process_count"_s).toInt(), 4);
    EXPECT_FALSE(told(call("caches")).value(u"targets"_s).toArray().isEmpty());
    end(60); // the server and what the agent started are left
    reparent(61);
    reparent(90);
    call("orphans");
    fakes.clock->advance(10); // for what would end by itself
    const QJsonObject orphans = told(call("orphans"));
    EXPECT_EQ(orphans.value(u"servers"_s).toArray().size(), 0);
    const QJsonArray leftOvers = orphans.value(u"left_overs"_s).toArray();
    ASSERT_EQ(leftOvers.size(), 1);
    const QJsonArray processes = leftOvers.first().toObject().value(u"processes"_s).toArray();
    ASSERT_EQ(processes.size(), 1);
    EXPECT_EQ(processes.first().toObject().value(u"pid"_s).toInt(), 61);
    EXPECT_TRUE(signalSender->sent().isEmpty());
}

TEST_F(McpTest, ACancelledCallGetsNoAnswer) {
    const auto request = [](int id) {
        return QStringLiteral(
                   R"({"jsonrpc":"2.0","id":%1,"method":"tools/call","params":{"name":"memory_status"}})")
            .arg(id)
            .toUtf8();
    };
    for (const int id : {1, 2, 3})
        server.take(request(id));
    server.take(R"({"jsonrpc":"2.0","method":"notifications/cancelled","params":{"requestId":1}})");
    server.take(R"({"jsonrpc":"2.0","method":"notifications/cancelled","params":{"requestId":2}})");
    server.take(R"({"jsonrpc":"2.0","id":9,"method":"ping"})");
    ASSERT_EQ(answers.size(), 1) << "a ping does not wait for calls";
    bool isFinished = false;
    QObject::connect(&server, &McpServer::finished, &server, [&isFinished] { isFinished = true; });
    server.finish();
    ASSERT_TRUE(QTest::qWaitFor([&] { return isFinished; }));
    ASSERT_EQ(answers.size(), 2);
    EXPECT_EQ(answers.constLast().value(u"id"_s).toInt(), 3);
}

#include "Cli/CliFixture.h"
#include "Core/ActionLog/ActionLogReader.h"

using namespace Qt::StringLiterals;

namespace {

struct ReadingTest : CliTest {
    QStringList names(const QString& list) const {
        QStringList result;
        for (const QJsonValue& value : this->list(list))
            result.append(value.toObject().value(u"name"_s).toString());
        return result;
    }
};

} // namespace

TEST_F(ReadingTest, EveryDocumentSaysWhatItIsAndWhatIsUnknown) {
    addSized(20, "claude", 900 * MiB);
    for (const QString& kind : {u"status"_s, u"groups"_s, u"processes"_s, u"sessions"_s, u"servers"_s,
                                u"alerts"_s, u"caches"_s, u"log"_s}) {
        EXPECT_EQ(run(kind + u" --json"_s), 0) << qPrintable(kind) << terminal.errors.constData();
        EXPECT_EQ(document().value(u"schema"_s).toInt(), 1) << qPrintable(kind);
        EXPECT_EQ(document().value(u"kind"_s).toString(), kind);
        EXPECT_EQ(document().value(u"source"_s).toString(), u"direct"_s);
    }
    fakes.host->memory = {};
    EXPECT_EQ(run(u"status --json --no-cpu"_s), 0);
    for (const QString& key : {u"cpu_percent"_s, u"memory_used_bytes"_s, u"swap_total_bytes"_s})
        EXPECT_TRUE(document().value(key).isNull()) << qPrintable(key);
    EXPECT_EQ(document().value(u"disk_free_bytes"_s).toInteger(), 1600 << 10);
    EXPECT_EQ(document().value(u"process_count"_s).toInt(), 2);
    run(u"processes --json"_s);
    const QJsonObject claude = list(u"processes"_s).first().toObject();
    EXPECT_EQ(claude.value(u"rss_bytes"_s).toInteger(), qint64(900 * MiB));
    EXPECT_EQ(claude.value(u"group"_s).toString(), u"agents"_s);
    EXPECT_EQ(claude.value(u"started_at"_s).toString(), u"1970-01-01T00:00:20Z"_s);
    EXPECT_TRUE(claude.value(u"idle_seconds"_s).isNull()) << "one look does not know";
}

TEST_F(ReadingTest, AsksTheRunningProgramFirst) {
    running.documents[u"status"_s] = R"({"schema":1,"kind":"status","source":"program","cpu_percent":42})";
    EXPECT_EQ(run(u"status --json"_s), 0);
    EXPECT_EQ(document().value(u"cpu_percent"_s).toInt(), 42);
    EXPECT_EQ(fakes.processes->metadataLookUps, 0);
    EXPECT_EQ(run(u"status --json --local"_s), 0);
    EXPECT_EQ(document().value(u"source"_s).toString(), u"direct"_s);
    EXPECT_EQ(running.asked, QStringList(u"status"_s));
    // Of another version, and nonsense.
    for (const QByteArray& other :
         {QByteArray(R"({"schema":2,"kind":"status"})"), QByteArray("{"), QByteArray()}) {
        running.documents[u"status"_s] = other;
        EXPECT_EQ(run(u"status --json"_s), 0);
        EXPECT_EQ(document().value(u"source"_s).toString(), u"direct"_s) << other.constData();
    }
}

TEST_F(ReadingTest, ProcessesAreChosenAndOrdered) {
    addSized(30, "small", 10 * MiB);
    addSized(31, "firefox", 500 * MiB);
    addSized(32, "Alpha", 20 * MiB, 31);
    const auto order = [&](const QString& options) {
        EXPECT_EQ(run(u"processes --json "_s + options), 0);
        return names(u"processes"_s).join(u' ');
    };
    EXPECT_EQ(order(u"--no-cpu"_s), u"firefox Alpha small systemd"_s);
    EXPECT_EQ(order(u"--sort name"_s), u"Alpha firefox small systemd"_s);
    EXPECT_EQ(order(u"--sort pid"_s), u"systemd small firefox Alpha"_s);
    EXPECT_EQ(order(u"--group browsers"_s), u"firefox"_s);
    EXPECT_EQ(order(u"--min-mb 15"_s), u"firefox Alpha"_s);
    EXPECT_EQ(order(u"--tree --sort pid"_s), u"systemd small firefox Alpha"_s);
    EXPECT_EQ(list(u"processes"_s).at(3).toObject().value(u"depth"_s).toInt(), 2);
    for (const QString& wrong : {u"--sort size"_s, u"--group none"_s, u"--min-mb many"_s, u"--min-mb -1"_s}) {
        EXPECT_EQ(run(u"processes "_s + wrong), 2) << qPrintable(wrong);
        EXPECT_EQ(terminal.errors.count('\n'), 1) << terminal.errors.constData();
    }
    reparent(31, 32); // a circle
    EXPECT_EQ(order(u"--tree --sort pid"_s), u"systemd small firefox Alpha"_s);
}

TEST_F(ReadingTest, NamesFromOutsideGiveTheTerminalNoOrders) {
    addSized(40, "evil\033[2J\nname\x7f", 100 * MiB, 1).arguments = "a\0b\u202e\u009bm";
    for (const QString& format : {u""_s, u" --json"_s}) {
        EXPECT_EQ(run(u"processes --no-cpu --min-mb 50"_s + format), 0);
        const QString text = QString::fromUtf8(terminal.output);
        for (const QChar forbidden : {QChar(u'\033'), QChar(0x7f), QChar(0x9b), QChar(0x202e)})
            EXPECT_FALSE(text.contains(forbidden)) << qPrintable(format) << int(forbidden.unicode());
    }
    EXPECT_TRUE(names(u"processes"_s).first().contains(u'\033')) << "the document has the name itself";
    run(u"processes --no-cpu --min-mb 50"_s);
    EXPECT_EQ(lines().size(), 2);
}

TEST_F(ReadingTest, TablesFitEveryTerminal) {
    addSized(50, "a-program-with-a-long-name", 100 * MiB).arguments =
        "program 測試測試測試測試測試測試測試測試";
    addSized(51, "claude", 100 * MiB);
    for (const QString& command : {u"status"_s, u"groups"_s, u"processes"_s, u"sessions"_s, u"caches"_s}) {
        for (const int width : {20, 40, 80}) {
            terminal.columns = width;
            EXPECT_EQ(run(command), 0);
            for (QString line : lines()) {
                if (line.startsWith(u"Nothing"))
                    continue; // a sentence, which a terminal breaks
                line.remove(u"\033[1m"_s).remove(u"\033[0m"_s);
                // Every character of this alphabet takes two columns.
                EXPECT_LE(line.size() + line.count(u'測') + line.count(u'試'), width) << qPrintable(line);
            }
        }
    }
    EXPECT_TRUE(terminal.output.contains("\033[1m"));
    terminal.columns.reset();
    run(u"processes"_s);
    EXPECT_FALSE(terminal.output.contains('\033')) << "no colour in a file";
    EXPECT_TRUE(terminal.output.contains("a-program-with-a-long-name"));
}

TEST_F(ReadingTest, TheExitStatusTellsOfAlertsAndFailures) {
    EXPECT_EQ(run(u"alerts --exit-code"_s), 0);
    EXPECT_EQ(lines(), QStringList(u"No alerts."_s));
    fakes.host->memory.activeBytes = 15 * GiB + 512 * MiB;
    EXPECT_EQ(run(u"alerts"_s), 0);
    EXPECT_EQ(run(u"alerts --exit-code --json"_s), 1);
    EXPECT_EQ(list(u"alerts"_s).first().toObject().value(u"id"_s).toString(), u"ram_low"_s);
    for (const QString& wrong : {u""_s, u"statsu"_s, u"status --jsn"_s, u"status now"_s, u"end-session"_s,
                                 u"log --since soon"_s, u"log --kind none"_s, u"watch --interval 0"_s}) {
        EXPECT_EQ(run(wrong), 2) << qPrintable(wrong);
        EXPECT_TRUE(terminal.output.isEmpty());
        EXPECT_EQ(terminal.errors.count('\n'), 1) << terminal.errors.constData();
    }
    terminal.outcome = Outcome::failure(u"No space left on device"_s);
    EXPECT_EQ(run(u"status"_s), 4);
    EXPECT_TRUE(terminal.errors.contains("No space left on device"));
    terminal.outcome = Outcome::failure({}); // nobody reads any more
    EXPECT_EQ(run(u"watch --interval 1"_s), 4);
    EXPECT_TRUE(terminal.errors.isEmpty());
}

TEST_F(ReadingTest, HelpNamesEveryCommandAndOption) {
    EXPECT_EQ(run(u"--help"_s), 0);
    for (const QString& command : {u"status"_s, u"end-leftovers"_s, u"mcp"_s, u"--no-cpu"_s})
        EXPECT_TRUE(terminal.output.contains(command.toUtf8())) << qPrintable(command);
    EXPECT_EQ(run(u"free --help"_s), 0);
    for (const QString& option : {u"--min-idle"_s, u"--dry-run"_s, u"--yes"_s, u"--json"_s})
        EXPECT_TRUE(terminal.output.contains(option.toUtf8())) << qPrintable(option);
    EXPECT_EQ(run(u"--version"_s), 0);
    EXPECT_EQ(terminal.output, "tavrinctl 1.2.3\n");
}

TEST_F(ReadingTest, TheLogIsReadBackByTimeAndKind) {
    model->actionLog().record(ActionLogEntry::Kind::clean, u"npm cache"_s, 5 * MiB, true);
    fakes.clock->advance(7200);
    model->actionLog().record(ActionLogEntry::Kind::quit, u"pid=7"_s, 0, false);
    const auto details = [&](const QString& options) {
        EXPECT_EQ(run(u"log --json"_s + options), 0);
        QStringList result;
        for (const QJsonValue& value : list(u"actions"_s))
            result.append(value.toObject().value(u"detail"_s).toString());
        return result;
    };
    EXPECT_EQ(details({}), (QStringList{u"pid=7"_s, u"npm cache"_s}));
    EXPECT_EQ(details(u" --since 1h"_s), QStringList(u"pid=7"_s));
    EXPECT_EQ(details(u" --since 3d --kind clean"_s), QStringList(u"npm cache"_s));
    EXPECT_EQ(details(u" --since 2100-01-01"_s), QStringList());
    for (const QString& any : {u" --since 1000000d"_s, u" --since 0001-01-01"_s})
        EXPECT_EQ(details(any).size(), 2) << qPrintable(any);
    EXPECT_EQ(details(u" --since 9999-01-01"_s), QStringList());
    QFile log(ActionLogReader::path());
    ASSERT_TRUE(log.open(QFile::WriteOnly));
    log.write("\xff\xfe");
    log.close();
    EXPECT_EQ(run(u"log"_s), 1);
    EXPECT_TRUE(terminal.errors.contains("cannot be read"));
}

TEST_F(ReadingTest, SessionsHaveIdsAndWhatTheyStarted) {
    add(60, 1, "claude");
    add(61, 60, "node", "node /srv/app/node_modules/.bin/vite");
    fakes.listeningPorts->listening = {{.id = 9, .uid = 1000, .port = 5173}};
    fakes.listeningPorts->byProcess[61] = {9};
    EXPECT_EQ(run(u"sessions --json"_s), 0);
    const QJsonObject session = list(u"sessions"_s).first().toObject();
    EXPECT_EQ(session.value(u"id"_s).toString(), u"60-1o"_s);
    const QJsonObject server = session.value(u"processes"_s).toArray().at(1).toObject();
    EXPECT_EQ(server.value(u"part"_s).toString(), u"dev_server"_s);
    EXPECT_EQ(server.value(u"ports"_s).toArray(), QJsonArray{5173});
    EXPECT_EQ(run(u"sessions"_s), 0);
    EXPECT_TRUE(terminal.output.contains("5173"));
}

TEST_F(ReadingTest, WatchWritesALineForEachInterval) {
    for (const QString& wrong : {u"soon"_s, u"0"_s, u"-1"_s})
        EXPECT_EQ(run(u"watch --count "_s + wrong), 2) << qPrintable(wrong);
    EXPECT_EQ(run(u"watch --interval 0.25 --count 2"_s), 0);
    ASSERT_EQ(lines().size(), 2);
    for (const QString& line : lines())
        EXPECT_EQ(QJsonDocument::fromJson(line.toUtf8()).object().value(u"kind"_s).toString(), u"status"_s);
}

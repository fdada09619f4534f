#include "Core/SessionsFixture.h"

#include "Core/ActionLog/ActionLogReader.h"
#include "Core/Pressure/PressureWatch.h"

using namespace Qt::StringLiterals;

namespace {

struct MemoryWatchTest : SessionsTest {
    MemoryWatchTest() {
        fakes.host->memory = {
            .activeBytes = 4 * GiB, .swapUsedBytes = 0, .swapTotalBytes = GiB, .totalBytes = 16 * GiB};
        fakes.clock->wall = Instant(std::chrono::hours(24 * 365));
        settings.preferences.alertRAMLowEnabled.set(false);
    }
    /// Lets minutes pass in which processes take MiB a minute each.
    void grow(double minutes, const QHash<qint32, quint64>& takers) {
        for (int second = 0; second < minutes * 60; second += 10) {
            for (auto taker = takers.begin(); taker != takers.end(); ++taker) {
                const quint64 bytes = *taker * MiB / 6;
                fakes.processes->processes[taker.key()].task->residentBytes += bytes;
                fakes.host->memory.activeBytes += bytes;
            }
            fakes.clock->advance(10);
            tick();
        }
    }
    Alert alert(const QString& id) const {
        const auto found = std::ranges::find(model->alerts(), id, &Alert::id);
        return found == model->alerts().end() ? Alert() : *found;
    }
    QStringList kills() const {
        QStringList titles;
        for (const Alert& each : model->alerts()) {
            if (each.id.startsWith(u"memory_kill"))
                titles.append(each.title.section(u" at "_s, 0, 0) +
                              (each.detail.isEmpty() ? QString() : u" (guess)"_s));
        }
        return titles;
    }
};

} // namespace

TEST_F(MemoryWatchTest, TheForecastNamesTheSessionWithAllThatItStarted) {
    add(100, 1, "claude").folder = "/home/user/src/app";
    add(101, 100, "node", "node server.js");
    add(200, 1, "java");
    grow(5, {{100, 200}, {101, 300}, {200, 60}});
    const Alert full = alert(u"memory_full"_s);
    // 12 GiB and 1 GiB of swap at 560 MiB a minute, five of them gone.
    EXPECT_EQ(full.title, u"Memory full in about 20 min — claude in /home/user/src/app grows 500 MB/min"_s);
    EXPECT_EQ(full.severity, Alert::Severity::danger);
    EXPECT_EQ(full.actionPid, 100);
    EXPECT_EQ(full.actionTarget, u"session"_s);
    ASSERT_NE(model->incident(u"memory_full"_s), nullptr);
    grow(2, {});
    EXPECT_EQ(alert(u"memory_full"_s), Alert());
}

TEST_F(MemoryWatchTest, ASessionThatStartsMoreAndMoreIsNamedThoughNoneOfThemGrows) {
    add(100, 1, "claude").folder = "/home/user/src/app";
    for (qint32 pid = 101; pid < 140; ++pid) {
        const auto now = fakes.clock->wall;
        auto& child = add(pid, 100, "node", "node server.js");
        child.task->residentBytes = 80 * MiB;
        child.info->start = now;
        fakes.host->memory.activeBytes += 80 * MiB;
        grow(1 / 6.0, {});
    }
    const QString title = alert(u"memory_full"_s).title;
    EXPECT_TRUE(title.contains(u"— claude in /home/user/src/app grows 480 MB/min")) << qPrintable(title);
}

TEST_F(MemoryWatchTest, TheForecastNamesAProcessAGroupOrNobody) {
    add(200, 1, "java");
    grow(6, {{200, 500}});
    EXPECT_EQ(alert(u"memory_full"_s).title, u"Memory full in about 20 min — java grows 500 MB/min"_s);
    EXPECT_EQ(alert(u"memory_full"_s).actionTarget, u"process"_s);
    fakes.processes->processes[200].info->uid = 0;
    settings.preferences.alertForecastEnabled.set(false);
    pass(1);
    EXPECT_EQ(alert(u"memory_full"_s), Alert());
    settings.preferences.alertForecastEnabled.set(true);

    end(200);
    QHash<qint32, quint64> tabs;
    for (qint32 pid = 300; pid < 320; ++pid) {
        add(pid, 1, "firefox");
        tabs.insert(pid, 30);
    }
    grow(16, tabs);
    EXPECT_TRUE(alert(u"memory_full"_s).title.contains(u"— Browsers grow 600 MB/min"))
        << qPrintable(alert(u"memory_full"_s).title);
    EXPECT_FALSE(alert(u"memory_full"_s).actionPid);
}

TEST_F(MemoryWatchTest, NobodyIsBlamedWhoDoesNotGrow) {
    add(200, 1, "java");
    for (int second = 0; second < 360; second += 10) {
        fakes.host->memory.activeBytes += 100 * MiB;
        grow(0.1, {});
    }
    EXPECT_EQ(alert(u"memory_full"_s).title, u"Memory full in about 15 min"_s);
    EXPECT_FALSE(alert(u"memory_full"_s).actionPid);
}

TEST_F(MemoryWatchTest, PressureIsJudgedByTheSystemsCallsAndByItsFigures) {
    PressureWatch watch;
    const PressureWatch::Uptime start(std::chrono::hours(1));
    EXPECT_EQ(watch.severity({}, start), std::nullopt);
    EXPECT_EQ(watch.severity(PressureLevel{.some = 7.5, .full = 2.5}, start), std::nullopt);
    EXPECT_EQ(watch.severity(PressureLevel{.some = 7.6}, start), Alert::Severity::warn);
    EXPECT_EQ(watch.severity(PressureLevel{.some = 9, .full = 2.6}, start), Alert::Severity::danger);
    watch.heard(Pressure::Stall::full, start);
    watch.heard(Pressure::Stall::some, start + std::chrono::seconds(5));
    EXPECT_EQ(watch.severity({}, start + std::chrono::seconds(9)), Alert::Severity::danger);
    EXPECT_EQ(watch.severity({}, start + std::chrono::seconds(11)), Alert::Severity::warn);
    EXPECT_EQ(watch.severity({}, start + std::chrono::seconds(15)), std::nullopt);
}

TEST_F(MemoryWatchTest, AStallIsHeardBetweenTwoTicks) {
    settings.preferences.pollIntervalSeconds.set(10);
    model->start();
    ASSERT_EQ(alert(u"pressure"_s), Alert());
    fakes.clock->advance(0.6);
    Q_EMIT fakes.pressure->memoryStalled(Pressure::Stall::full);
    EXPECT_EQ(alert(u"pressure"_s).severity, Alert::Severity::danger);
    EXPECT_EQ(model->systemHistory().size(), 2);
    Q_EMIT fakes.pressure->memoryStalled(Pressure::Stall::full);
    EXPECT_EQ(model->systemHistory().size(), 2) << "a flood of calls is no flood of ticks";
    ASSERT_NE(model->incident(u"pressure"_s), nullptr);
    EXPECT_EQ(model->incident(u"pressure"_s)->moments.size(), 2);
}

TEST_F(MemoryWatchTest, AKillIsNamedByTheRecord) {
    add(400, 1, "chr%1me").task->residentBytes = 500 * MiB;
    add(401, 1, "cc1plus").task->residentBytes = 900 * MiB;
    fakes.memoryKills->counted = 7;
    pass();
    EXPECT_TRUE(fakes.memoryKills->askedSince.isEmpty()) << "these were before the program started";
    fakes.memoryKills->counted = 8;
    fakes.memoryKills->record = {{.pid = 400, .name = u"chr%1me"_s, .bytes = 2 * GiB}};
    end(400);
    end(401); // at the same time, by itself
    pass(2);
    EXPECT_EQ(kills(), QStringList(u"The kernel ended chr%1me (PID 400, 2 GB)"_s));
    EXPECT_EQ(ActionLogReader::read().value(0).kind, u"kernel"_s);
    EXPECT_EQ(ActionLogReader::read().value(0).freedBytes, 2 * GiB);
    EXPECT_TRUE(ActionLogReader::read().value(0).detail.startsWith(
        u"[kernel] chr%1me pid=400 — largest before: cc1plus 900 MB, chr%1me 500 MB"_s));
    pass(5); // the record still has it
    EXPECT_EQ(ActionLogReader::read().size(), 1);
    fakes.memoryKills->counted = 9;
    fakes.memoryKills->record.append({.pid = 402, .name = u"java"_s});
    pass(2);
    EXPECT_EQ(ActionLogReader::read().size(), 2) << "the record of a kill that was told of comes once more";
    EXPECT_NE(model->incident(model->alerts().last().id), nullptr);
}

TEST_F(MemoryWatchTest, WithoutARecordWhatVanishedIsNamedLargestFirst) {
    for (qint32 pid = 400; pid < 405; ++pid)
        add(pid, 1, "worker").task->residentBytes = quint64(pid) * MiB;
    pass();
    fakes.memoryKills->counted = 2;
    end(400);
    end(401);
    pass(1);
    end(402); // the kernel was still taking its memory back
    pass(1);
    EXPECT_EQ(kills(), (QStringList{u"The kernel ended worker (PID 401, 401 MB) (guess)"_s,
                                    u"The kernel ended worker (PID 402, 402 MB) (guess)"_s}));
    end(403);
    pass(3);
    EXPECT_EQ(kills().size(), 2) << "what ends later was not killed";
    fakes.memoryKills->counted = std::nullopt;
    end(404);
    pass(3);
    EXPECT_EQ(kills().size(), 2);
}

TEST_F(MemoryWatchTest, AGuardOfTheMemoryIsHeardWhenMemoryIsShort) {
    add(400, 1, "chrome").task->residentBytes = 500 * MiB;
    add(401, 1, "chrome").task->residentBytes = 500 * MiB;
    pass();
    fakes.memoryKills->record = {{.pid = 400, .name = u"chrome"_s, .bytes = 400 * MiB, .by = u"earlyoom"_s}};
    end(400);
    pass(3);
    add(403, 1, "chrome").task->residentBytes = 500 * MiB;
    fakes.host->memory.activeBytes = 16 * GiB;
    fakes.host->memory.swapUsedBytes = GiB;
    pass();
    end(403);
    pass(3);
    EXPECT_TRUE(fakes.memoryKills->askedSince.isEmpty()) << "nobody guards the memory";
    add(50, 1, "earlyoom");
    pass();
    fakes.memoryKills->record[0].pid = 401;
    end(401);
    pass(3);
    EXPECT_EQ(kills(), QStringList(u"earlyoom ended chrome (PID 401, 400 MB)"_s));
    Q_EMIT fakes.memoryKills->groupEnded(u"app-java.scope"_s, u"systemd-oomd"_s);
    pass(1);
    EXPECT_EQ(kills().first(), u"systemd-oomd ended app-java.scope"_s);
}

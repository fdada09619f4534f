#include "Core/Sampling/Sampler.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct SamplerTest : testing::Test {
    FakePlatform fakes;
    Sampler sampler{fakes.platform()};

    ProcSample only() {
        const auto processes = sampler.sampleProcesses();
        EXPECT_EQ(processes.size(), 1);
        return processes.value(0);
    }
    void burn(qint32 pid, double cpuSeconds) {
        fakes.processes->processes[pid].task->cpuTimeNs += static_cast<quint64>(cpuSeconds * 1e9);
    }
};

} // namespace

TEST_F(SamplerTest, FirstSampleHasFiguresButNoLoad) {
    fakes.host->ticks = CpuTicks{.user = 500, .system = 1, .idle = 1, .nice = 0};
    fakes.host->memory.swapUsedBytes = 7;
    const SystemSample sample = sampler.sample();
    EXPECT_EQ(sample.cpuPercent, 0);
    EXPECT_TRUE(sample.cpuPerCore.isEmpty());
    EXPECT_EQ(sample.memTotalBytes, fakes.host->memory.totalBytes);
    EXPECT_EQ(sample.memUsedBytes, 1000U << 10);
    EXPECT_EQ(sample.memWiredBytes, 120U << 10);
    EXPECT_EQ(sample.memCompressedBytes, 80U << 10);
    EXPECT_EQ(sample.swapUsedBytes, 7U);
    EXPECT_EQ(sample.diskFreeBytes, 1600U << 10);
    EXPECT_EQ(sample.diskTotalBytes, 4000U << 10);
    EXPECT_NE(sample.id, sampler.sample().id);
}

TEST_F(SamplerTest, LoadIsTheBusyShareSinceTheLastReading) {
    constexpr quint64 large = 0xFFFFFFFAU; // the next reading needs more than 32 bits
    const std::pair<std::optional<CpuTicks>, double> steps[] = {
        {CpuTicks{.user = large, .system = 0, .idle = 100, .nice = 0}, 0},
        {CpuTicks{.user = large + 12, .system = 6, .idle = 118, .nice = 12}, 62.5}, // 12 + 6 + 12 of 48
        {CpuTicks{.user = large + 12, .system = 6, .idle = 118, .nice = 12}, 0},    // nothing moved
        {std::nullopt, 0},
        {CpuTicks{.user = large + 22, .system = 6, .idle = 128, .nice = 12}, 50}, // of the last good reading
    };
    for (const auto& [ticks, load] : steps) {
        fakes.host->ticks = ticks;
        EXPECT_DOUBLE_EQ(sampler.sample().cpuPercent, load);
    }
}

TEST_F(SamplerTest, EachCoreHasItsLoad) {
    const std::pair<QList<CoreTicks>, QList<double>> steps[] = {
        {{{.busy = 10, .idle = 90}, {.busy = 0, .idle = 0}}, {}},
        {{{.busy = 40, .idle = 100}, {.busy = 0, .idle = 10}}, {75, 0}},
        {{{.busy = 39, .idle = 100}, {.busy = 5, .idle = 10}}, {0, 100}}, // one stepped back by a few
        {{{.busy = 80, .idle = 100}}, {}},                                // one was switched off
        {{{.busy = 90, .idle = 110}}, {50}},
    };
    for (const auto& [cores, loads] : steps) {
        fakes.host->cores = cores;
        sampler.sample();
        EXPECT_EQ(sampler.coreLoads(), loads);
    }
}

TEST_F(SamplerTest, RefusedFiguresAreZeroAndLeaveTheOthersAlone) {
    fakes.host->root.reset();
    fakes.host->memory = {.totalBytes = fakes.host->memory.totalBytes};
    fakes.host->thermal = 7;
    const SystemSample sample = sampler.sample();
    EXPECT_EQ(sample.diskFreeBytes + sample.diskTotalBytes + sample.memUsedBytes + sample.swapUsedBytes, 0U);
    EXPECT_EQ(sample.thermalState, ThermalState::nominal);
    EXPECT_GT(sample.memTotalBytes, 0U);
    for (const ThermalState state : allCases<ThermalState>()) {
        fakes.host->thermal = static_cast<int>(state);
        EXPECT_EQ(sampler.sample().thermalState, state);
    }
}

TEST_F(SamplerTest, EveryFigureOfAProcessIsItsOwn) {
    const Instant start = fakes.clock->wall - std::chrono::hours(3);
    fakes.processes->add(10, {.task = TaskInfo{.virtualBytes = 4, .residentBytes = 3, .threads = 7},
                              .path = "/opt/x/prog",
                              .name = "prog",
                              .info = KernelProcessInfo{.start = start, .uid = 5, .parentPid = 6}});
    const ProcSample expected = {.pid = 10,
                                 .parentPid = 6,
                                 .uid = 5,
                                 .name = u"prog"_s,
                                 .executablePath = u"/opt/x/prog"_s,
                                 .rssBytes = 3,
                                 .virtualBytes = 4,
                                 .threads = 7,
                                 .startTime = start,
                                 .program = u"/opt/x/prog"_s};
    EXPECT_EQ(only(), expected);
    EXPECT_EQ(sampler.sample().timestamp, fakes.clock->wall);
}

TEST_F(SamplerTest, CpuShareIsTimeUsedOverTimePassed) {
    fakes.processes->add(10);
    burn(10, 100);
    EXPECT_EQ(only().cpuPercent, 0);
    fakes.clock->advance(2);
    burn(10, 1.5);
    EXPECT_DOUBLE_EQ(only().cpuPercent, 75);
    fakes.clock->advance(2);
    burn(10, 8);
    EXPECT_DOUBLE_EQ(only().cpuPercent, 400);
    burn(10, 1); // no time has passed
    EXPECT_EQ(only().cpuPercent, 0);
}

TEST_F(SamplerTest, IdleTimeGrowsBelowHalfAPercentAndSurvivesAWallClockJump) {
    fakes.processes->add(10);
    EXPECT_EQ(only().idleSeconds, 0);
    for (int hour = 0; hour < 2; ++hour) {
        fakes.clock->advance(3600);
        burn(10, 3600 * 0.004);
        EXPECT_DOUBLE_EQ(only().idleSeconds, 3600.0 * (hour + 1));
    }
    fakes.clock->wall += std::chrono::hours(24);
    fakes.clock->advance(200);
    burn(10, 1);
    const ProcSample half = only();
    EXPECT_EQ(half.cpuPercent, 0.5); // which is not yet busy
    EXPECT_DOUBLE_EQ(half.idleSeconds, 7400);
    fakes.clock->advance(1000);
    burn(10, 4.8);
    EXPECT_DOUBLE_EQ(only().idleSeconds, 8400);
    fakes.clock->advance(1000);
    burn(10, 5.2);
    EXPECT_EQ(only().idleSeconds, 0);
    fakes.clock->advance(2);
    burn(10, 0.02);
    EXPECT_EQ(only().idleSeconds, 0);
}

TEST_F(SamplerTest, AReusedPidIsANewProcessAndItsChildrenHaveNewParents) {
    fakes.processes->add(10, {.name = "old", .info = KernelProcessInfo{.startTicks = 1}});
    fakes.processes->add(11, {.name = "child", .info = KernelProcessInfo{.parentPid = 10}});
    burn(10, 5);
    sampler.sampleProcesses();
    fakes.clock->advance(100);
    fakes.processes->processes[10] = {.name = "new", .info = KernelProcessInfo{.startTicks = 2}};
    fakes.processes->processes[11].info->parentPid = 1;
    const auto processes = sampler.sampleProcesses();
    EXPECT_EQ(processes[0].name, u"new"_s);
    EXPECT_EQ(processes[0].cpuPercent, 0);
    EXPECT_EQ(processes[0].idleSeconds, 0);
    EXPECT_EQ(processes[1].parentPid, 1);

    fakes.processes->listing.clear();
    fakes.processes->listing.append(0); // the kernel's own PID: listed, never shown
    EXPECT_TRUE(sampler.sampleProcesses().isEmpty());
    EXPECT_EQ(sampler.rememberedProcesses(), 0);
}

TEST_F(SamplerTest, AnotherProgramTitleOrParentShowsWithinThreePasses) {
    const auto pass = [this](bool runs) {
        fakes.clock->advance(2);
        for (const qint32 pid : {20, 21, 22}) {
            if (runs)
                burn(pid, 0.001);
        }
        return sampler.sampleProcesses();
    };
    fakes.processes->add(10, {.name = "host"});
    for (const qint32 pid : {20, 21, 22})
        fakes.processes->add(pid,
                             {.path = "/bin/sh", .name = "sh", .info = KernelProcessInfo{.parentPid = 10}});
    for (int i = 0; i < 10; ++i)
        pass(true); // longer than a process is young
    for (int i = 0; i < 3; ++i)
        pass(false);
    for (const qint32 pid : {20, 21, 22}) {
        FakeProcess& process = fakes.processes->processes[pid];
        process.path = "/usr/bin/node";
        process.name = "MainThread";
        process.arguments = QByteArray("node\0/opt/server.js\0", 21);
    }
    const int hashes = fakes.processes->textHashes;
    EXPECT_EQ(pass(false)[1].name, u"sh"_s);
    EXPECT_EQ(fakes.processes->textHashes, hashes); // a process that has not run is not read
    pass(true);
    pass(true);
    EXPECT_LE(fakes.processes->textHashes, hashes + 3); // they take turns
    const auto changed = pass(true);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(changed[i].name, u"node"_s);
        EXPECT_EQ(changed[i].executablePath, u"/usr/bin/node"_s);
        EXPECT_EQ(changed[i].arguments, u"/opt/server.js"_s);
        EXPECT_EQ(changed[i].program, u"/opt/server.js"_s);
        EXPECT_EQ(changed[i].parentPid, 10);
        EXPECT_DOUBLE_EQ(changed[i].idleSeconds, 32); // since it was first seen
    }
    fakes.processes->remove(10);
    for (const qint32 pid : {20, 21, 22})
        fakes.processes->processes[pid].info->parentPid = 1;
    EXPECT_EQ(pass(false)[0].parentPid, 1);
}

TEST_F(SamplerTest, TheGroupIsFoundWithTheTextsAndKept) {
    int asked = 0;
    ProcGroup ofEditors = ProcGroup::ides;
    Sampler grouping(fakes.platform(), [&](const ProcSample& process) {
        ++asked;
        return process.name == u"vim"_s ? ofEditors : ProcGroup::terminals;
    });
    fakes.processes->add(10, {.path = "/bin/sh", .name = "sh"});
    const auto pass = [&] {
        burn(10, 0.001);
        fakes.clock->advance(2);
        return grouping.sampleProcesses().value(0).group;
    };
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(pass(), ProcGroup::terminals);
    EXPECT_EQ(asked, 1);
    fakes.processes->processes[10].path = "/bin/vim";
    fakes.processes->processes[10].name = "vim";
    for (int i = 0; i < 3; ++i)
        pass();
    EXPECT_EQ(pass(), ProcGroup::ides);
    EXPECT_EQ(asked, 2);
    ofEditors = ProcGroup::agents;
    EXPECT_EQ(pass(), ProcGroup::ides);
    grouping.classifyAnew();
    EXPECT_EQ(pass(), ProcGroup::agents);
}

TEST_F(SamplerTest, LookAgainFindsTheSameProcessOrNone) {
    fakes.processes->add(10, {.name = "sh", .info = KernelProcessInfo{.parentPid = 3, .startTicks = 5}});
    const ProcSample listed = only();
    fakes.processes->processes[10].name = "vim";
    fakes.processes->processes[10].info->parentPid = 4;
    const auto again = sampler.lookAgain(listed);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->name, u"vim"_s);
    EXPECT_EQ(again->parentPid, 4);
    EXPECT_EQ(again->identity(), listed.identity());
    fakes.processes->processes[10].info->startTicks = 6;
    EXPECT_FALSE(sampler.lookAgain(listed));
    fakes.processes->remove(10);
    EXPECT_FALSE(sampler.lookAgain(listed));
}

TEST_F(SamplerTest, TextsAreSharedAndGoWithTheirProcesses) {
    fakes.processes->add(1, {.path = "/bin/steady", .name = "steady"});
    for (qint32 pid = 2; pid < 2000; ++pid) { // 20 at a time, each with texts of its own
        const QByteArray name = "program-" + QByteArray::number(pid);
        fakes.processes->add(pid, {.path = "/bin/" + name, .name = name, .arguments = name + " --once"});
        if (pid > 21)
            fakes.processes->remove(pid - 20);
        sampler.sampleProcesses();
        ASSERT_LE(sampler.rememberedTexts(), 3 * (21 + 5));
    }
    fakes.processes->add(2000, {.path = "/bin/steady", .name = "steady"});
    const QList<ProcSample> samples = sampler.sampleProcesses();
    EXPECT_EQ(samples.first().name, u"steady"_s);
    EXPECT_EQ(samples.last().name.constData(), samples.first().name.constData());
}

TEST_F(SamplerTest, AnUnreadableProcessIsLeftOutAndRemembered) {
    fakes.processes->add(10);
    fakes.processes->add(11);
    sampler.sampleProcesses();
    fakes.processes->processes[10].task.reset();
    fakes.clock->advance(2);
    EXPECT_EQ(only().pid, 11);
    fakes.processes->processes[10].task = TaskInfo{.cpuTimeNs = 2'000'000'000};
    fakes.clock->advance(2);
    EXPECT_DOUBLE_EQ(sampler.sampleProcesses().value(0).cpuPercent, 50); // over both intervals
    EXPECT_EQ(fakes.processes->metadataLookUps, 2);
    fakes.processes->fails = true; // the listing
    EXPECT_TRUE(sampler.sampleProcesses().isEmpty());
    EXPECT_EQ(sampler.rememberedProcesses(), 2);
}

TEST_F(SamplerTest, MetadataDegradesFieldByField) {
    using namespace std::string_literals;
    const auto area = [](const std::string& text) { return QByteArray::fromStdString(text); };
    const std::tuple<FakeProcess, const char*, const char*> cases[] = {
        {{.path = "/usr/bin/foo", .name = "foo", .arguments = area("/usr/bin/foo\0"s)},
         "foo",
         "/usr/bin/foo"},
        {{.name = "node", .arguments = area("node\0server.js\0--port=3000\0"s)},
         "node",
         "server.js --port=3000"},
        {{.name = "gaps", .arguments = area("a\0\0\0b\0"s)}, "gaps", "b"},
        {{.path = "/opt/x/bar"}, "bar", ""},
        {{.path = ""}, "pid 7", ""},
        {{.name = "odd (name)\n<b>", .arguments = area("a\0b c"s)}, "odd (name)\n<b>", "b c"},
        {{.name = "\xff\xfe"}, "\xef\xbf\xbd\xef\xbf\xbd", ""},
    };
    for (const auto& [process, name, arguments] : cases) {
        FakePlatform own;
        own.processes->add(7, process).info.reset();
        const ProcSample sample = Sampler(own.platform()).sampleProcesses().value(0);
        EXPECT_EQ(sample.name.toStdString(), name);
        EXPECT_EQ(sample.arguments.toStdString(), arguments);
        EXPECT_EQ(sample.uid, 0U);
        EXPECT_EQ(sample.parentPid, 0);
        EXPECT_EQ(sample.startTime, own.clock->wall);
    }
}

TEST_F(SamplerTest, AtMost4096ProcessesAPass) {
    for (qint32 pid = 1; pid <= 5000; ++pid)
        fakes.processes->add(pid);
    EXPECT_EQ(sampler.sampleProcesses().size(), 4096);
}

#include "Stage.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Actor {
    const char* name;
    const char* path;
    quint64 memory;
    double cores; ///< share of a core it keeps busy
    int count;
};

constexpr Actor cast[] = {
    {"claude", "/usr/local/bin/claude", 640 * MiB, 0.22, 3},
    {"ollama", "/usr/local/bin/ollama", 2200 * MiB, 0.01, 1},
    {"code", "/usr/share/code/code", 310 * MiB, 0.09, 11},
    {"clangd", "/usr/bin/clangd", 1400 * MiB, 0.35, 1},
    {"gnome-terminal-server", "/usr/libexec/gnome-terminal-server", 88 * MiB, 0.01, 1},
    {"zsh", "/usr/bin/zsh", 9 * MiB, 0, 6},
    {"chrome", "/opt/google/chrome/chrome", 240 * MiB, 0.04, 24},
    {"firefox-esr", "/usr/lib/firefox-esr/firefox-esr", 820 * MiB, 0.06, 1},
    {"dockerd", "/usr/bin/dockerd", 120 * MiB, 0.02, 1},
    {"containerd-shim-runc-v2", "/usr/bin/containerd-shim-runc-v2", 18 * MiB, 0, 4},
    {"gnome-shell", "/usr/bin/gnome-shell", 410 * MiB, 0.05, 1},
    {"a-very-long-process-name-that-does-not-fit-any-column-of-a-row", "/opt/x", 75 * MiB, 0, 1},
    {"مدير الذاكرة (خلفية)", "/opt/y", 72 * MiB, 0, 1},
    {"systemd", "/usr/lib/systemd/systemd", 14 * MiB, 0, 38},
};

/// Processes of one program share two thirds of what they map.
ProcessMemoryUse sharesOf(quint64 residentBytes, int count) {
    const quint64 own = residentBytes / 3;
    const quint64 share = own + 2 * own / static_cast<quint64>(count);
    return {.proportionalBytes = share,
            .proportionalDirtyBytes = share * 4 / 5,
            .uniqueBytes = own,
            .uniqueDirtyBytes = own * 9 / 10,
            .dirtyBytes = residentBytes * 4 / 5,
            .anonymousBytes = share * 3 / 4,
            .swapBytes = residentBytes / 12,
            .proportionalSwapBytes = residentBytes / 14};
}

QByteArray containerAnswer(const QString& command) {
    if (command.contains(u"system df"))
        return "Images\t12.4GB\t8.1GB (65%)\nContainers\t310MB\t290MB (93%)\n"
               "Local Volumes\t4.2GB\t1.9GB (45%)\nBuild Cache\t6.8GB\t6.8GB\n";
    return "volume\tshop_postgres-data\nvolume\tblog_uploads\n"
           "volume\t8c1f0d3c5b7e4a60b1d2c3e4f5a6978890abcdef1234567890abcdef12345678\nvolumes end\n";
}

QByteArray listingAnswer(const QStringList& arguments) {
    constexpr quint64 MB = MiB;
    if (arguments.contains(u"--screenshots"))
        return listingOf({{"Screenshot from 2026-08-02 10-14-55.png", 3 * MB},
                          {"Screencast from 2026-07-30 17-02-11.webm", 214 * MB}});
    if (arguments.contains(u"--older-than"))
        return listingOf({{"ubuntu-24.04-desktop-amd64.iso", 6114 * MB},
                          {"Family holiday 2025 (all the clips, uncut, for grandmother).mov", 2300 * MB},
                          {"taxes/2024/receipts.zip", 48 * MB},
                          {"a\x1b[31m red\tname.pdf", 2 * MB},
                          {"\xd8\xb5\xd9\x88\xd8\xb1\xd8\xa9.jpg", MB}});
    if (arguments.last().contains(u"Trash"))
        return listingOf({{"thesis-old-version.odt", 9 * MB}, {"backup-of-the-laptop", 18400 * MB}});
    return listingOf({{"_cacache", 1890 * MB}, {"_npx", 210 * MB}, {"_logs", 3 * MB}, {"tmp", 4096}});
}

} // namespace

Stage::Stage() {
    qint32 pid = 812;
    for (const Actor& actor : cast) {
        m_cpuTimePerTick[actor.name] = static_cast<quint64>(actor.cores * 2e9);
        for (int i = 0; i < actor.count; ++i, pid += 37) {
            fakes.processMemory->all[pid] = sharesOf(actor.memory - i * actor.memory / 40, actor.count);
            fakes.processes->add(
                pid, {.task = TaskInfo{.residentBytes = actor.memory - i * actor.memory / 40,
                                       .threads = 1 + static_cast<int>(actor.memory / (40 * MiB))},
                      .path = actor.path,
                      .name = actor.name,
                      .info = KernelProcessInfo{.uid = fakes.identity->uid}});
        }
    }
    fakes.host->memory = {.totalBytes = 16 * GiB};
    fakes.host->root = VolumeSize{.totalBytes = 488 * GiB, .freeBytes = 84 * GiB};
}

void Stage::play(int ticks, double load, double usedGB) {
    for (int i = 0; i < ticks; ++i) {
        const double wave = load + 14 * std::sin(i / 7.0) + 6 * std::sin(i / 2.3);
        CpuTicks& counters = *fakes.host->ticks;
        counters.user += static_cast<quint64>(std::lround(std::clamp(wave, 2.0, 99.0) * 10));
        counters.idle += static_cast<quint64>(std::lround((100 - std::clamp(wave, 2.0, 99.0)) * 10));
        playCores(wave);
        const double used = usedGB - 1.5 * (ticks - i) / ticks + 0.15 * std::sin(i / 11.0);
        fakes.host->memory.activeBytes = static_cast<quint64>(used * double(GiB));
        fakes.host->memory.cacheBytes = static_cast<quint64>((14.5 - used) * 0.7 * double(GiB));
        fakes.host->memory.programBytes = fakes.host->memory.activeBytes * 9 / 10;
        fakes.clock->advance(2);
        for (FakeProcess& process : fakes.processes->processes)
            process.task->cpuTimeNs += m_cpuTimePerTick[process.name];
        model.memoryLedger().wantAll();
        QMetaObject::invokeMethod(&model, "tick");
        model.memoryLedger().waitForSlice();
    }
    QCoreApplication::processEvents();
}

/// Lets eight cores work, each with a rhythm of its own about the load of all.
void Stage::playCores(double load) {
    QList<CoreTicks>& cores = fakes.host->cores;
    cores.resize(8);
    ++m_played;
    for (qsizetype i = 0; i < cores.size(); ++i) {
        const double place = static_cast<double>(i);
        const double own = std::clamp(load + 30 * std::sin(m_played / (3.0 + place)) - 4 * place, 1.0, 99.0);
        cores[i].busy += static_cast<quint64>(own * 10);
        cores[i].idle += static_cast<quint64>((100 - own) * 10);
    }
}

void Stage::fillCaches() {
    fakes.places->objections[home.path(u".pnpm-store"_s)] =
        u"~/.local/share/pnpm is left alone: it is on another file system, which something else writes to."_s;
    fakes.tools->answer = [folder = home.path()](const ToolRequest& request) {
        if (request.launchPath == u"/bin/sh")
            return ScriptedTools::exited(0, containerAnswer(request.arguments.last()));
        if (request.launchPath == u"cleanup" && request.arguments.first() == u"remove")
            return ToolResult{.launched = true,
                              .exitStatus = 1,
                              .errorLine = u"3 entries are left, _npx for one: Permission denied"_s};
        if (request.launchPath != u"/usr/bin/du")
            return ScriptedTools::exited(0, listingAnswer(request.arguments));
        const QString below = request.arguments.last().mid(folder.size()); // the same in every run
        const auto kib = (qHash(below, 7) % 9000) * (qHash(below, 3) % 400);
        return ScriptedTools::exited(0, QByteArray::number(static_cast<qulonglong>(kib)) + " x");
    };
}

void Stage::addServers() {
    const std::tuple<const char*, int, qint32> servers[] = {
        {"@modelcontextprotocol/server-filesystem", 88, 812},
        {"/home/ana/.local/share/uv/tools/mcp-server-git/bin/mcp-server-git", 142, 1},
        {"@upstash/context7-mcp", 96, 1}};
    qint32 pid = 40100;
    for (const auto& [package, megabytes, parent] : servers) {
        fakes.processes->add(pid++,
                             {.task = TaskInfo{.residentBytes = static_cast<quint64>(megabytes) * MiB},
                              .name = "node",
                              .arguments = QByteArray("node") + '\0' + package + '\0',
                              .info = KernelProcessInfo{.uid = fakes.identity->uid, .parentPid = parent}});
    }
}

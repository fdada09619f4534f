// What a pass over the process table and a whole tick cost, next to the least that the kernel asks for the
// same figures and to the naive way. Prints one "NAME VALUE" a line: microseconds per process as medians of
// repeated rounds, then ratios.

#include "AppModel.h"
#include "Core/Sampler.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr int rounds = 31;

/// Sleeping children, ended and reaped with the object and with this program.
class Sleepers {
public:
    explicit Sleepers(int count) {
        for (int i = 0; i < count; ++i)
            start();
    }
    ~Sleepers() {
        for (const pid_t pid : m_pids)
            kill(pid, SIGKILL);
        for (const pid_t pid : m_pids)
            waitpid(pid, nullptr, 0);
    }
    Sleepers(const Sleepers&) = delete;
    Sleepers& operator=(const Sleepers&) = delete;

    const std::vector<pid_t>& pids() const { return m_pids; }

private:
    void start() {
        const pid_t parent = getpid();
        const pid_t pid = fork();
        if (pid == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (getppid() != parent)
                _exit(0);
            for (;;)
                pause();
        }
        if (pid < 0) {
            std::perror("fork");
            std::exit(1);
        }
        m_pids.push_back(pid);
    }

    std::vector<pid_t> m_pids;
};

/// The three questions whose answers a pass needs, on descriptors that are open already, and nothing else.
class Floor {
public:
    explicit Floor(const std::vector<pid_t>& pids) {
        for (const pid_t pid : pids) {
            const std::string folder = "/proc/" + std::to_string(pid);
            Handles handles{};
            handles.statm = open((folder + "/statm").c_str(), O_RDONLY | O_CLOEXEC);
            handles.task = open((folder + "/task").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            if (handles.statm < 0 || handles.task < 0 || clock_getcpuclockid(pid, &handles.clock) != 0) {
                std::perror("floor");
                std::exit(1);
            }
            m_handles.push_back(handles);
        }
    }
    ~Floor() {
        for (const Handles& handles : m_handles) {
            close(handles.statm);
            close(handles.task);
        }
    }
    Floor(const Floor&) = delete;
    Floor& operator=(const Floor&) = delete;

    void run() const {
        char text[128];
        struct stat status {};
        timespec time{};
        for (const Handles& handles : m_handles) {
            if (pread(handles.statm, text, sizeof text, 0) <= 0 || fstat(handles.task, &status) != 0 ||
                clock_gettime(handles.clock, &time) != 0)
                std::abort();
        }
    }

private:
    struct Handles {
        int statm;
        int task;
        clockid_t clock;
    };
    std::vector<Handles> m_handles;
};

void readNaively(const std::vector<pid_t>& pids) {
    char text[1024];
    for (const pid_t pid : pids) {
        const int file = open(("/proc/" + std::to_string(pid) + "/stat").c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0 || read(file, text, sizeof text) <= 0)
            std::abort();
        close(file);
    }
}

double microseconds(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

using Results = std::map<std::string, double>;

/// The four kinds of work take turns, so that whatever else the machine does hits them alike.
void measure(int count, Results& results) {
    const Sleepers sleepers(count);
    const Floor floor(sleepers.pids());
    const Platform platform = Platform::native();
    Sampler sampler(platform);
    const QTemporaryDir folder;
    Preferences preferences(folder.filePath(QStringLiteral("settings.ini")));
    AppModel model(platform, preferences);
    qsizetype listed = 0;

    struct Work {
        const char* name;
        std::function<void()> run;
        std::function<qsizetype()> processes;
        std::vector<double> times;
    };
    const auto own = [&] { return static_cast<qsizetype>(sleepers.pids().size()); };
    const auto all = [&] { return listed; };
    std::vector<Work> works = {
        {"floor", [&] { floor.run(); }, own, {}},
        {"naive", [&] { readNaively(sleepers.pids()); }, own, {}},
        {"pass", [&] { listed = sampler.sampleProcesses().size(); }, all, {}},
        {"tick", [&] { QMetaObject::invokeMethod(&model, "tick"); }, all, {}},
    };
    for (Work& work : works)
        work.run();
    for (int round = 0; round < rounds; ++round) {
        for (Work& work : works) {
            const double time = microseconds(work.run);
            work.times.push_back(time / static_cast<double>(work.processes()));
        }
    }
    for (const Work& work : works)
        results[std::string(work.name) + "_us_" + std::to_string(count)] = median(work.times);
    std::fprintf(stderr, "%d sleeping processes, %lld in the table\n", count, static_cast<long long>(listed));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    rlimit descriptors{};
    getrlimit(RLIMIT_NOFILE, &descriptors);
    descriptors.rlim_cur = descriptors.rlim_max;
    setrlimit(RLIMIT_NOFILE, &descriptors);

    Results results;
    for (const int count : {200, 1000, 4000}) {
        measure(count, results);
        for (const char* name : {"floor_us_", "naive_us_", "pass_us_", "tick_us_"}) {
            const std::string key = name + std::to_string(count);
            std::printf("%s %.3f\n", key.c_str(), results[key]);
        }
    }
    std::printf("pass_over_floor_1000 %.3f\n", results["pass_us_1000"] / results["floor_us_1000"]);
    std::printf("pass_over_naive_1000 %.3f\n", results["pass_us_1000"] / results["naive_us_1000"]);
    std::printf("growth_4000_over_200 %.3f\n", results["pass_us_4000"] / results["pass_us_200"]);
    std::printf("tick_over_pass_1000 %.3f\n", results["tick_us_1000"] / results["pass_us_1000"]);
    return 0;
}

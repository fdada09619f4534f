// Measures a pass over all processes, and the kernel's share of it. Standard output has one "NAME VALUE" a
// line; times are medians in microseconds per process. Plain names are with cold CPU caches, as in a tick;
// "warm_" is one run straight after another.

#include "AppModel.h"
#include "CacheEviction.h"
#include "Children.h"
#include "Core/Sampling/Sampler.h"
#include "KernelFloor.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr std::array sizes = {200, 1000, 4000};
constexpr int repetitions = 31;

volatile std::sig_atomic_t interrupted = 0;

double microsecondsFor(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Per process, in microseconds; NaN where it could not be measured.
struct Costs {
    double floor = 0;
    double naive = std::numeric_limits<double>::quiet_NaN();
    double pass = 0;
    double tick = 0;
};

/// Work over so many processes, and the member for its cost.
struct Piece {
    std::function<void()> work;
    qsizetype processes;
    double Costs::*cost;
};

/// Measures in turns, so that other load affects all alike. Returns an empty optional when interrupted.
std::optional<Costs> measure(const std::vector<Piece>& pieces, const std::function<void()>& beforeEach) {
    std::vector<std::vector<double>> seen(pieces.size());
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        for (size_t piece = 0; piece < pieces.size(); ++piece) {
            if (interrupted)
                return std::nullopt;
            beforeEach();
            seen[piece].push_back(microsecondsFor(pieces[piece].work) /
                                  static_cast<double>(pieces[piece].processes));
        }
    }
    Costs costs;
    for (size_t piece = 0; piece < pieces.size(); ++piece)
        costs.*pieces[piece].cost = median(seen[piece]);
    return costs;
}

void print(const Costs& costs, const std::string& prefix, int size) {
    for (const auto& [name, value] : {std::pair("floor", costs.floor), std::pair("naive", costs.naive),
                                      std::pair("pass", costs.pass), std::pair("tick", costs.tick)})
        std::printf("%s%s_us_%d %.3f\n", prefix.c_str(), name, size, value);
    std::fflush(stdout);
}

struct Measured {
    Costs cold; ///< with cold CPU caches, as in a tick
    Costs warm; ///< one run straight after another
};

/// Returns an empty optional when interrupted or when so many processes cannot be started.
std::optional<Measured> measureAt(int size) {
    const Children children(size);
    if (children.count() < size) {
        std::fprintf(stderr, "only %d of %d processes could be started\n", children.count(), size);
        return std::nullopt;
    }
    const auto platform = Platform::native();
    const QTemporaryDir folder;
    Preferences preferences(folder.filePath(QStringLiteral("bench.ini")));
    AppModel model(platform, preferences);
    Sampler sampler(platform);
    const auto tick = [&model] { QMetaObject::invokeMethod(&model, "tick", Qt::DirectConnection); };
    const auto known = sampler.sampleProcesses(); // reads what is read once per process
    tick();

    std::vector<int> pids;
    for (const auto& process : known)
        pids.push_back(process.pid);
    const KernelFloor floor(pids);
    std::fprintf(stderr, "%d children: %lld processes in a pass, %d in the floor\n", size,
                 static_cast<long long>(known.size()), floor.count());
    std::vector<Piece> pieces = {
        {[&] { floor.askAll(); }, floor.count(), &Costs::floor},
        {[&] { sampler.sampleProcesses(); }, known.size(), &Costs::pass},
        {tick, known.size(), &Costs::tick},
    };
    if (floor.openReadCloseAll())
        pieces.push_back({[&] { floor.openReadCloseAll(); }, floor.count(), &Costs::naive});
    else
        std::fprintf(stderr, "too few descriptors for the naive reading\n");
    CacheEviction eviction;
    const auto cold = measure(pieces, [&] { eviction.run(); });
    const auto warm = measure(pieces, [] {});
    if (!cold || !warm)
        return std::nullopt;
    return Measured{.cold = *cold, .warm = *warm};
}

void printRatios(const std::map<int, Costs>& at, const std::string& prefix) {
    const auto line = [&prefix](const char* name, double ratio) {
        std::printf("%s%s %.3f\n", prefix.c_str(), name, ratio);
    };
    const auto& middle = at.at(1000);
    line("pass_over_floor_1000", middle.pass / middle.floor);
    line("pass_over_naive_1000", middle.pass / middle.naive);
    line("growth_4000_over_200", at.at(4000).pass / at.at(200).pass);
    line("floor_growth_4000_over_200", at.at(4000).floor / at.at(200).floor);
    line("tick_over_pass_1000", middle.tick / middle.pass);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::signal(SIGINT, [](int) { interrupted = 1; });
    std::signal(SIGTERM, [](int) { interrupted = 1; });
    std::map<int, Costs> cold;
    std::map<int, Costs> warm;
    for (const int size : sizes) {
        const auto measured = measureAt(size);
        if (!measured)
            return 1;
        cold[size] = measured->cold;
        warm[size] = measured->warm;
        print(measured->cold, "", size);
        print(measured->warm, "warm_", size);
    }
    printRatios(cold, "");
    printRatios(warm, "warm_");
    return 0;
}

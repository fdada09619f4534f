#include "Core/Pressure/Trend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <random>
#include <vector>

namespace {

constexpr double stepSeconds = 10;
constexpr double warnWithin = 30 * 60;
constexpr double GB = 1e9;
constexpr std::size_t windowPoints = 91;

/// Memory that is left, every ten seconds.
using Series = std::vector<double>;

Series series(int points, const std::function<double(double second)>& left, double noise, unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<double> around(0, noise);
    Series values;
    for (int i = 0; i < points; ++i)
        values.push_back(left(i * stepSeconds) + (noise > 0 ? around(random) : 0));
    return values;
}

/// Returns what is judged when the first `count` figures are known.
std::optional<Trend::Fall> judged(const Series& values, std::size_t count) {
    const std::size_t begin = count > windowPoints ? count - windowPoints : 0;
    std::vector<double> seconds;
    for (std::size_t i = begin; i < count; ++i)
        seconds.push_back(static_cast<double>(i) * stepSeconds);
    return Trend::steadyFall(seconds, Trend::Figures(values).subspan(begin, count - begin));
}

/// Returns after how many figures, `from` at least, a warning would come, 0 for never.
std::size_t firstWarning(const Series& values, std::size_t from = 1) {
    for (std::size_t count = from; count <= values.size(); ++count) {
        const auto fall = judged(values, count);
        if (fall && fall->secondsLeft() <= warnWithin)
            return count;
    }
    return 0;
}

/// Reads figures in MiB, one a line.
Series recorded(const char* name) {
    std::ifstream file(std::string(TAVRIN_SOURCE_DIR "/tests/Core/data/") + name);
    Series values;
    for (double mebibytes = 0; file >> mebibytes;)
        values.push_back(mebibytes * 1048576);
    return values;
}

double saw(double second, double period, double height) {
    return height * std::fmod(second, period) / period;
}

} // namespace

TEST(TrendTest, ALeakIsForeseenHalfWay) {
    std::vector<double> errors;
    unsigned seed = 0;
    for (const double minutes : {8.0, 15.0, 25.0, 45.0, 58.0}) {
        for (const double noise : {0.0, 0.02, 0.05}) {
            for (const double idleBefore : {0.0, 10.0, 30.0}) {
                const double start = idleBefore * 60;
                const double rate = 8 * GB / (minutes * 60);
                const Series values = series(
                    static_cast<int>((start + minutes * 60) / stepSeconds),
                    [=](double second) { return 8 * GB - rate * std::max(0.0, second - start); }, noise * GB,
                    ++seed);
                const double half = start + minutes * 30;
                const auto fall = judged(values, static_cast<std::size_t>(half / stepSeconds) + 1);
                ASSERT_TRUE(fall) << minutes << " min, noise " << noise << ", idle " << idleBefore;
                const double truth = minutes * 30;
                errors.push_back(std::abs(fall->secondsLeft() - truth) / truth);
            }
        }
    }
    std::ranges::sort(errors);
    EXPECT_LE(errors[errors.size() / 2], 0.05);
    EXPECT_LE(errors.back(), 0.2);
}

TEST(TrendTest, WhatComesBackOrStopsIsNoLeak) {
    const std::pair<const char*, std::function<double(double)>> shapes[] = {
        {"idle", [](double) { return 8 * GB; }},
        {"a step down", [](double second) { return second < 900 ? 8 * GB : 4 * GB; }},
        {"a quick ramp",
         [](double second) { return 8 * GB - 5 * GB * std::clamp((second - 900) / 100, 0.0, 1.0); }},
        {"steps", [](double second) { return 8 * GB - 0.5 * GB * std::floor(second / 800); }},
        {"a collector", [](double second) { return 6 * GB - saw(second, 200, 3 * GB); }},
        {"a slow collector", [](double second) { return 9 * GB - saw(second + 300, 600, 3 * GB); }},
        {"a build",
         [](double second) {
             return 6 * GB - 2 * GB * std::abs(std::sin(second / 70)) - saw(second, 130, GB);
         }},
        {"a wave", [](double second) { return 5 * GB + 2 * GB * std::sin(second / 95); }},
        {"a slow leak", [](double second) { return 20 * GB - 2e6 * second; }},
    };
    for (const auto& [name, shape] : shapes) {
        for (unsigned seed = 1; seed <= 5; ++seed) {
            const Series values = series(360, shape, 0.05 * GB, seed);
            // Its first cycle cannot be told from a leak until it ends.
            const std::size_t from = std::string(name) == "a slow collector" ? 33 : 1;
            EXPECT_EQ(firstWarning(values, from), 0u) << name << ", seed " << seed;
        }
    }
}

TEST(TrendTest, ARecordedBuildIsNoLeakAndHidesNone) {
    const Series build = recorded("memory_left_build.txt");
    ASSERT_GT(build.size(), 50u);
    EXPECT_EQ(firstWarning(build), 0u);

    const double rate = 16 * GB / static_cast<double>(build.size());
    Series leak;
    for (std::size_t i = 0; i < build.size(); ++i)
        leak.push_back(build[i] - build[0] + 16 * GB - rate * static_cast<double>(i + 1));
    std::vector<double> errors;
    for (std::size_t count = build.size() / 2; count < build.size() * 3 / 4; ++count) {
        const double truth = static_cast<double>(build.size() - count) * stepSeconds;
        const auto fall = judged(leak, count);
        errors.push_back(fall ? std::abs(fall->secondsLeft() - truth) / truth : 1);
    }
    std::ranges::sort(errors);
    EXPECT_LE(errors[errors.size() / 2], 0.2);
}

TEST(TrendTest, ARecordedLeakIsForeseen) {
    Series leak = recorded("memory_left_leak.txt");
    ASSERT_GT(leak.size(), 50u);
    const double end = leak.back(); // the machine was spared: full is what was left at the end
    for (double& left : leak)
        left -= end;
    std::size_t count = leak.size() / 2;
    while (!judged(leak, count) && count < leak.size() * 3 / 5)
        ++count;
    const auto fall = judged(leak, count);
    ASSERT_TRUE(fall);
    const double truth = static_cast<double>(leak.size() - count) * stepSeconds;
    EXPECT_NEAR(fall->secondsLeft(), truth, 0.2 * truth);
}

TEST(TrendTest, AFigureThatJumpsIsNoLine) {
    const auto jumping = [](double height) {
        return series(
            30,
            [=](double second) {
                return 5 * GB - GB * second / 290 + (std::fmod(second, 20) < 10 ? height : -height);
            },
            0, 1);
    };
    EXPECT_TRUE(judged(jumping(0.05 * GB), 30));
    EXPECT_FALSE(judged(jumping(0.16 * GB), 30));
}

TEST(TrendTest, TooLittleIsNoAnswer) {
    EXPECT_FALSE(Trend::steadyFall({}, {}));
    const std::vector<double> seconds{0, 10, 20};
    const std::vector<double> values{3 * GB, 2 * GB, GB};
    EXPECT_FALSE(Trend::steadyFall(seconds, values));
    EXPECT_EQ(Trend::medianSlope({}, {}), 0);
    EXPECT_DOUBLE_EQ(Trend::medianSlope(seconds, values), -GB / 10);
}

#include "Core/Memory/MemoryFigures.h"
#include "Core/Memory/MemoryLineUp.h"
#include "Core/Memory/MemoryReturn.h"
#include "Core/Memory/SummedMemory.h"

#include "support/Bytes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const MemoryFigures> figures(const ProcessMemoryUse& use, bool isRefused = false) {
    return std::make_shared<const MemoryFigures>(
        MemoryFigures{.use = use, .readAt = {}, .isRefused = isRefused});
}

/// A process with 1 MiB of its own and a share of 3 MiB in other pages, 1 MiB of it clean. It maps 7 MiB of
/// dirty pages, and its page tables take 1 MiB.
ProcSample sharing(qint32 pid, qint32 parent, const QString& path = u"/bin/a"_s) {
    return {.pid = pid,
            .parentPid = parent,
            .executablePath = path,
            .rssBytes = 512 * MiB,
            .memory = figures({.proportionalBytes = 4 * MiB,
                               .proportionalDirtyBytes = 3 * MiB,
                               .uniqueBytes = MiB,
                               .uniqueDirtyBytes = MiB,
                               .dirtyBytes = 7 * MiB,
                               .swapBytes = 2 * MiB,
                               .proportionalSwapBytes = MiB})};
}

} // namespace

TEST(SummedMemoryTest, AddsSharesAndSwapAndSaysHowTrueItIs) {
    using enum SummedMemory::Certainty;
    const ProcSample read = sharing(1, 0);
    ProcSample refused{.pid = 2, .rssBytes = 9 * MiB};
    refused.memory = figures({.anonymousBytes = 2 * MiB, .swapBytes = MiB}, true);
    const ProcSample unread{.pid = 3, .rssBytes = 7 * MiB};
    const ProcSample partlyKnown{.pid = 4, .rssBytes = 7 * MiB, .anonymousBytes = MiB};
    ProcSample withoutSwapLines = read;
    withoutSwapLines.memory = figures({.proportionalBytes = MiB});

    EXPECT_EQ(SummedMemory::of({read, withoutSwapLines}),
              (SummedMemory{.bytes = 6 * MiB, .swapBytes = MiB, .residentBytes = 1024 * MiB}));
    EXPECT_EQ(SummedMemory::of({read, refused}),
              (SummedMemory{
                  .bytes = 8 * MiB, .swapBytes = 2 * MiB, .residentBytes = 521 * MiB, .certainty = atLeast}));
    const SummedMemory unknown = SummedMemory::of({read, unread, refused});
    EXPECT_EQ(unknown, (SummedMemory{.bytes = 15 * MiB,
                                     .swapBytes = 2 * MiB,
                                     .standInBytes = 7 * MiB,
                                     .residentBytes = 528 * MiB,
                                     .certainty = about}));
    EXPECT_EQ(unknown.text(), u"≈ 15 MB"_s);
    EXPECT_EQ(SummedMemory::of({partlyKnown}).text(), u"≈ 1 MB"_s);
    EXPECT_EQ(SummedMemory::of({refused}).text(), u"≥ 3 MB"_s);
    EXPECT_EQ(SummedMemory::of({refused}).description(), u"at least 3 MB (resident 9 MB, in swap 1 MB)"_s);
}

TEST(MemoryReturnTest, SharedPagesComeBackWithTheLastOfTheirFamily) {
    QList<ProcSample> all = {
        sharing(10, 1, u"/bin/shell"_s),
        sharing(11, 10), // a family with 12 and 13
        sharing(12, 11),
        sharing(13, 11),
        sharing(20, 1, u"/bin/b"_s), // orphans of one program
        sharing(21, 1, u"/bin/b"_s),
        sharing(30, 10, u"/bin/c"_s),
        sharing(40, 10, u"/bin/d"_s), // maps 1 MiB of what its children share
        sharing(41, 40, u"/bin/d"_s),
        sharing(42, 40, u"/bin/d"_s),
    };
    all[7].memory = figures({.proportionalDirtyBytes = 3 * MiB, .dirtyBytes = MiB});
    const std::pair<QList<qint32>, MemoryReturn> rows[] = {
        {{12}, {.memoryBytes = 2 * MiB, .swapBytes = MiB}},
        {{12, 13}, {.memoryBytes = 4 * MiB, .swapBytes = 2 * MiB}},
        {{11, 12, 13}, {.memoryBytes = 12 * MiB, .swapBytes = 3 * MiB}},
        {{20}, {.memoryBytes = 2 * MiB, .swapBytes = MiB}},
        {{20, 21}, {.memoryBytes = 8 * MiB, .swapBytes = 2 * MiB}},
        {{30, 99}, {.memoryBytes = 2 * MiB, .swapBytes = MiB}},
        {{41, 42}, {.memoryBytes = 10 * MiB, .swapBytes = 2 * MiB}},
        {{}, {}},
    };
    for (const auto& [ending, expected] : rows) {
        const MemoryReturn back = MemoryReturn::ofEnding(ending, all);
        EXPECT_EQ(back, expected) << back.memoryBytes / MiB << " + " << back.swapBytes / MiB;
    }
}

TEST(MemoryReturnTest, AnUnreadProcessGivesAtMostWhatIsKnown) {
    ProcSample process{.pid = 1, .rssBytes = 9 * MiB};
    EXPECT_EQ(MemoryReturn::ofEnding(process), (MemoryReturn{.memoryBytes = 9 * MiB, .isRough = true}));
    process.memory = figures({.anonymousBytes = 2 * MiB, .swapBytes = MiB});
    EXPECT_EQ(MemoryReturn::ofEnding(process),
              (MemoryReturn{.memoryBytes = 2 * MiB, .swapBytes = MiB, .isRough = true}));
}

TEST(MemoryLineUpTest, ThePartsOfTheUsedMemory) {
    SystemSample sample;
    sample.memUsedBytes = 20 * MiB;
    sample.memProgramBytes = 15 * MiB;
    ProcSample mine = sharing(1, 0);
    mine.uid = 1000;
    ProcSample other{
        .pid = 2, .uid = 0, .rssBytes = 9 * MiB, .memory = figures({.anonymousBytes = 2 * MiB}, true)};
    MemoryLineUp lineUp = MemoryLineUp::of(sample, {mine, other}, 1000);
    EXPECT_EQ(lineUp.restBytes(), qint64(20 + 1 - 4 - 2 - 5) * qint64(MiB));
    EXPECT_EQ(lineUp.lines(),
              (QStringList{u"Groups 4 MB"_s, u"of these, caches of files −1 MB"_s, u"Other users 2 MB"_s,
                           u"Kernel 5 MB"_s, u"Shared memory and the rest 10 MB"_s, u"Used 20 MB"_s}));
    SystemSample untold = sample;
    untold.memProgramBytes.reset();
    EXPECT_TRUE(MemoryLineUp::of(untold, {mine, other}, 1000).lines().isEmpty());
    other.memory = nullptr;
    EXPECT_TRUE(MemoryLineUp::of(sample, {mine, other}, 1000).lines().isEmpty());
    other.anonymousBytes = 2 * MiB;
    EXPECT_EQ(MemoryLineUp::of(sample, {mine, other}, 1000).lines().first(3),
              (QStringList{u"Groups ≈ 4 MB"_s, u"of these, caches of files −1 MB"_s, u"Other users 2 MB"_s}));
}

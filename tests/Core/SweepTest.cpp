#include "Core/ReliefFixture.h"

using namespace Qt::StringLiterals;

namespace {

using SweepTest = ReliefTest;

NukePreview previewOf(const QStringList& paths, quint64 rssBytes = 0) {
    QList<ProcSample> processes;
    for (const QString& path : paths) {
        const auto pid = static_cast<qint32>(processes.size() + 1);
        processes.append({.pid = pid, .executablePath = path, .rssBytes = rssBytes});
    }
    return NukePreview::make(u"Helper"_s, processes);
}

} // namespace

TEST(NukePreviewTest, TheApplicationIsTheOutermostBundleOfAll) {
    const QString nested =
        u"/Applications/Google Chrome.app/Contents/Frameworks/Google Chrome Helper.app/x"_s;
    const std::pair<QStringList, std::optional<QString>> rows[] = {
        {{nested, nested, u"/Applications/Google Chrome.app/y"_s}, u"Google Chrome"_s},
        {{nested, u"/usr/bin/helper"_s}, std::nullopt},
        {{u"/usr/bin/helper"_s, nested}, std::nullopt},
        {{nested, u"/Applications/Other.app/x"_s}, std::nullopt},
        {{u"/Applications/Upper.APP/x"_s}, std::nullopt},
        {{u"/Applications/Not.app"_s}, std::nullopt},
        {{u"My.app.app/x"_s}, u"My.app"_s},
        {{}, std::nullopt},
    };
    for (const auto& [paths, application] : rows)
        EXPECT_EQ(previewOf(paths).parentAppName, application) << qPrintable(paths.join(u'|'));
}

TEST(NukePreviewTest, TextsForAnApplication) {
    const NukePreview preview = previewOf({u"/A/Note.app/a"_s, u"/A/Note.app/b"_s}, 1 << 29);
    EXPECT_EQ(preview.dialogTitle(), u"Quit “Note” and all 2 helpers?"_s);
    EXPECT_EQ(preview.dialogMessage(),
              u"Tells Note to quit cleanly — closes all 2 child processes in one sweep, "
              "no per-tab pop-ups. Frees ≈1 GB."_s);
    EXPECT_EQ(preview.quitOutcome(u"Note"_s, false),
              u"Couldn't tell Note to quit (it may not be scriptable). Try the force variant."_s);
}

TEST(NukePreviewTest, TextsForOtherProcessesListTwentyPids) {
    const NukePreview twenty = previewOf(QStringList(20, u"/bin/x"_s), 1 << 20);
    EXPECT_EQ(twenty.dialogTitle(), u"Kill all 20 “Helper” processes?"_s);
    EXPECT_EQ(
        twenty.dialogMessage(),
        u"Sends SIGTERM to all 20 PIDs. Use sparingly — unsaved work in those processes may be lost.\n\n"
        "PIDs: 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20"_s);
    EXPECT_TRUE(previewOf(QStringList(25, u"/bin/x"_s)).dialogMessage().endsWith(u"19, 20…"_s));
}

TEST_F(SweepTest, SignalsEveryProcessOfTheNameButNeverTavrin) {
    add(1, "bash", 30);
    add(2, "bash", 20, {.uid = 0});
    add(3, "bash", 10);
    add(4, "Bash", 10);
    add(fakes.identity->pid, "bash", 5);
    signalSender->start(2, {.terminate = SignalResult::notPermitted});
    tick();
    const NukePreview preview = model->actions().previewForName(u"bash"_s);
    EXPECT_EQ(preview.pids, (QList<qint32>{1, 2, 3}));
    EXPECT_EQ(preview.totalRSS, 60U);
    EXPECT_EQ(preview.killOutcome(model->actions().nuke(preview)),
              u"Killed 2/3 “bash” processes (≈60 bytes targeted)"_s);
    EXPECT_EQ(logged(), QStringList(u"quit [nuke duplicates] bash — 2/3 PIDs ok"_s));
}

TEST_F(SweepTest, AReusedPidGetsNoSignal) {
    add(1, "bash", 30);
    add(2, "bash", 20);
    tick();
    const NukePreview preview = model->actions().previewForName(u"bash"_s);
    fakes.processes->remove(1);
    tick();
    add(1, "editor", 30);
    tick();
    EXPECT_EQ(preview.killOutcome(model->actions().nuke(preview)),
              u"Killed 1/2 “bash” processes (≈50 bytes targeted)"_s);
    EXPECT_EQ(signalled(), QList<qint32>{2});
}

TEST_F(SweepTest, TheProcessesInATerminalAreNamed) {
    add(1, "konsole", 1 << 20);
    add(2, "bash", 1 << 20);
    add(3, "bash", 1 << 20);
    add(4, "node", 1 << 20);
    tick();
    fakes.applications->byProcess[1] = {.id = u"org.kde.konsole"_s, .name = u"Konsole"_s};
    fakes.applications->inTerminals[1] = {2, 4, 3, 99};
    const QString message = u"Tells Konsole to quit cleanly — closes all 1 child processes in one sweep, no "
                            "per-tab pop-ups. Frees ≈1 MB.\n\n"
                            "What runs in its terminals ends too (≈3 MB): bash ×2, node."_s;
    EXPECT_EQ(model->actions().previewForApplication(u"Konsole"_s).dialogMessage(), message);
    EXPECT_EQ(model->actions().previewForName(u"konsole"_s).dialogMessage(), message);
    EXPECT_EQ(model->actions().previewForName(u"konsole"_s).pids, QList<qint32>{1});
    EXPECT_TRUE(model->actions().previewForName(u"bash"_s).inTerminals.isEmpty());
}

TEST_F(SweepTest, AControlGroupOfItsOwnSaysWhatComesBack) {
    add(1, "app", 90 * MiB);
    add(2, "app", 80 * MiB);
    tick();
    for (const qint32 pid : {1, 2})
        fakes.applications->byProcess[pid] = {.id = u"app"_s, .name = u"App"_s};
    ControlGroupMemory group{
        .pids = {2, 1}, .memoryBytes = 100 * MiB, .cacheBytes = 30 * MiB, .swapBytes = 5 * MiB};
    fakes.processMemory->controlGroups[1] = group;
    const auto message = [this] { return model->actions().previewForApplication(u"App"_s).dialogMessage(); };
    EXPECT_TRUE(message().endsWith(u"Frees ≈75 MB. 30 MB of its files stay in the cache."_s));
    group.pids.append(3); // somebody else's
    fakes.processMemory->controlGroups[1] = group;
    EXPECT_TRUE(message().endsWith(u"Frees ≈170 MB."_s));
}

TEST_F(SweepTest, AnApplicationIsAskedAndNoProcessSignalled) {
    const NukePreview preview = previewOf({u"/A/Note.app/a"_s}, 1024);
    EXPECT_EQ(QCoro::waitFor(model->actions().nukeGracefulApp(preview, u"Note"_s, false)),
              u"Note quit cleanly — 1 helpers closed (≈1 KB freed)"_s);
    fakes.relief->answer = [] { return Outcome::failure(u"stayed"_s); };
    EXPECT_TRUE(QCoro::waitFor(model->actions().nukeGracefulApp(preview, u"Note"_s, true))
                    .startsWith(u"Couldn't tell Note"_s));
    EXPECT_EQ(fakes.relief->requests, (QStringList{u"quit Note"_s, u"force-quit Note"_s}));
    EXPECT_EQ(logged(), (QStringList{u"forceKill [graceful quit] Note (1 child PIDs targeted) — force fail"_s,
                                     u"quit [graceful quit] Note (1 child PIDs targeted) ok"_s}));
    EXPECT_TRUE(signalled().isEmpty());
}

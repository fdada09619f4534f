#include "UI/AlertNotifier.h"

#include "Core/Announcements/MessageCenter.h"
#include "UI/FakeDesktop.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/MainWindow.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "support/ScriptedFeed.h"

using namespace Qt::StringLiterals;

namespace {

struct AlertNotifierTest : ModelFixture {
    FakeDesktop desktop;
    FakeNotifications& notifications = *desktop.notifications;
    std::optional<AlertNotifier> notifier;
    QStringList wanted; ///< of the main window

    void SetUp() override {
        fakes.host->memory.totalBytes = 16 * GiB;
        notifier.emplace(model, prefs, desktop.notifications, fakes.clock);
        QObject::connect(&*notifier, &AlertNotifier::showRequested, &*notifier,
                         [this](RootView::Tab tab) { wanted.append(u"show "_s + rawValue(tab)); });
        QObject::connect(&*notifier, &AlertNotifier::freeRAMRequested, &*notifier,
                         [this] { wanted.append(u"free RAM"_s); });
        QObject::connect(&*notifier, &AlertNotifier::endRequested, &*notifier,
                         [this](const ProcessIdentity& host) { wanted.append(u"end %1"_s.arg(host.pid)); });
        QObject::connect(&*notifier, &AlertNotifier::quitRequested, &*notifier,
                         [this](const ProcSample& process) {
                             wanted.append(u"quit %1 %2"_s.arg(process.pid).arg(process.name));
                         });
    }
    /// Ticks that much later, with so much memory free.
    void tickWith(double freeGB, double secondsLater) {
        fakes.clock->advance(secondsLater);
        fakes.host->memory.activeBytes = 16 * GiB - static_cast<quint64>(freeGB * double(GiB));
        tick();
    }
    Notification shown(const QString& key) { return notifications.shown.value(key); }
    QStringList labels(const QString& key) { return each(shown(key).actions, &Notification::Action::label); }
    void forecast(const QString& target, qint32 pid) {
        notifier->follow({{.id = u"memory_full"_s,
                           .severity = Alert::Severity::danger,
                           .title = u"Memory full in about 25 min"_s,
                           .actionPid = pid,
                           .actionTarget = target}});
    }
    /// Replaces the process with another of that PID.
    void reuse(qint32 pid) {
        FakeProcess another = fakes.processes->processes[pid];
        fakes.processes->remove(pid);
        tick();
        another.info->start += std::chrono::seconds(60);
        another.info->startTicks += 6000;
        fakes.processes->add(pid, another);
        tick();
    }
};

} // namespace

TEST_F(AlertNotifierTest, FollowsAnAlertFromItsBeginToItsEnd) {
    tickWith(1, 0);
    EXPECT_EQ(shown(u"memory"_s).title, u"Free RAM low"_s);
    EXPECT_EQ(shown(u"memory"_s).body,
              u"Only 1.0 GB free — consider quitting top hogs or cleaning caches."_s);
    EXPECT_EQ(shown(u"memory"_s).urgency, Notification::Urgency::critical);
    EXPECT_EQ(labels(u"memory"_s), (QStringList{u"Show"_s, u"Free RAM…"_s}));
    tickWith(1.5, 10);
    EXPECT_TRUE(shown(u"memory"_s).body.startsWith(u"Only 1.5 GB"_s));
    tickWith(8, 2);
    EXPECT_EQ(notifications.shown.size(), 1);
    tickWith(8, 10);
    EXPECT_TRUE(notifications.shown.isEmpty());
    EXPECT_EQ(notifications.calls, 2);

    tickWith(1, 900);
    EXPECT_EQ(notifications.shown.size(), 1);
    prefs.notifyRAMLow.set(false);
    settle(); // needs no tick
    EXPECT_TRUE(notifications.shown.isEmpty());
}

TEST_F(AlertNotifierTest, WhatWasClosedComesAgainLater) {
    tickWith(1, 0);
    notifications.shown.clear();
    Q_EMIT notifications.closed(u"memory"_s);
    tickWith(1.5, 899);
    EXPECT_TRUE(notifications.shown.isEmpty());
    tickWith(1.5, 1);
    EXPECT_EQ(notifications.shown.size(), 1);
    notifier.reset(); // the program ends
    EXPECT_TRUE(notifications.shown.isEmpty());
}

TEST_F(AlertNotifierTest, TheQuietTimeIsThatOfTheClockOnTheWall) {
    prefs.notifyQuietEnabled.set(true);
    const QTime time = QDateTime::fromSecsSinceEpoch(1'700'000'000).time();
    prefs.notifyQuietFrom.set(time.hour() * 60);
    prefs.notifyQuietTo.set(time.hour() * 60 + time.minute() + 2);
    tickWith(1, 0);
    EXPECT_TRUE(notifications.shown.isEmpty());
    tickWith(1, 120);
    EXPECT_EQ(notifications.shown.size(), 1);
}

TEST_F(AlertNotifierTest, AnActionOpensWhatItNames) {
    addProcesses(1, "claude", 4 * GiB);
    addProcesses(1, "other", 1 * GiB);
    tick();
    const auto invoke = [this](const QString& key, const QString& action) {
        Q_EMIT notifications.invoked(key, action);
        return std::exchange(wanted, {}).join(u", "_s);
    };
    const auto comeAgain = [this] {
        fakes.clock->advance(900);
        tick();
    };
    tickWith(1, 0);
    EXPECT_EQ(invoke(u"memory"_s, u"show"_s), u"show Overview"_s);
    EXPECT_EQ(invoke(u"memory"_s, u"free_ram"_s), u"free RAM"_s);
    tickWith(8, 0);

    forecast(u"session"_s, 100);
    EXPECT_EQ(labels(u"forecast"_s), (QStringList{u"Show"_s, u"Free RAM…"_s, u"End session…"_s}));
    EXPECT_EQ(invoke(u"forecast"_s, shown(u"forecast"_s).actions.last().key), u"end 100"_s);
    comeAgain();
    forecast(u"process"_s, 100);
    EXPECT_EQ(labels(u"forecast"_s), (QStringList{u"Show"_s, u"Free RAM…"_s, u"Quit claude"_s}));
    const QString quit = shown(u"forecast"_s).actions.last().key;
    EXPECT_EQ(invoke(u"forecast"_s, quit), u"quit 100 claude"_s);
    EXPECT_EQ(invoke(u"forecast"_s, quit), u"show Overview"_s); // nothing is offered any more
    comeAgain();
    forecast(u"process"_s, 100);
    EXPECT_EQ(invoke(u"forecast"_s, u"quit_1"_s), u"show Overview"_s);
    comeAgain();
    forecast(u"process"_s, 100);
    reuse(100);
    EXPECT_EQ(invoke(u"forecast"_s, quit), u"show Overview"_s); // another process by now
    comeAgain();
    forecast(u"process"_s, 999); // ended since the rules saw it
    EXPECT_EQ(labels(u"forecast"_s), (QStringList{u"Show"_s, u"Free RAM…"_s}));
    EXPECT_TRUE(fakes.signalSender->sent().isEmpty());
}

TEST_F(AlertNotifierTest, ALongCleanThatNobodyWatches) {
    fillNpmFolder();
    const auto clean = [this](double seconds) {
        QCoro::waitFor(model.cleanup().rescan());
        fakes.tools->suspended = true;
        model.cleanup().cleanAll(model.cleanup().targetsToClean());
        settle();
        fakes.clock->advance(seconds);
        EXPECT_TRUE(QTest::qWaitFor([this] { return fakes.tools->release(home.path(u".npm"_s)); }));
        fakes.tools->suspended = false;
        while (fakes.tools->release(home.path(u".npm"_s))) {
        }
        EXPECT_TRUE(QTest::qWaitFor([this] { return !model.cleanup().isCleaning(); }));
        settle();
    };
    clean(10);
    EXPECT_TRUE(notifications.shown.isEmpty());
    fillNpmFolder();
    clean(11);
    EXPECT_EQ(shown(u"cleaned"_s).title, u"Cleaning is done"_s);
    EXPECT_EQ(shown(u"cleaned"_s).body, u"Cleaned 1 targets, freed ~2 MB"_s);
    EXPECT_EQ(shown(u"cleaned"_s).urgency, Notification::Urgency::normal);
    Q_EMIT notifications.invoked(u"cleaned"_s, u"show"_s);
    EXPECT_EQ(wanted, QStringList(u"show Cleanup"_s));

    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    fillNpmFolder();
    clean(11);
    EXPECT_TRUE(notifications.shown.isEmpty()); // and the last one is gone
    window.hide();
    settle();
    prefs.notifyCleaned.set(false);
    fillNpmFolder();
    clean(11);
    EXPECT_TRUE(notifications.shown.isEmpty());
}

TEST_F(AlertNotifierTest, NothingEndsWithoutADialog) {
    MessageCenter messages{std::make_unique<ScriptedFeed>(), prefs.file()};
    MainWindow window(model, prefs, messages);
    addProcesses(1, "claude", 4 * GiB);
    addProcesses(1, "hog & co", 2 * GiB);
    tick();
    window.show();
    const auto dialogs = [&window] {
        settle();
        QStringList titles;
        for (const auto* dialog : window.findChildren<QDialog*>()) {
            if (dialog->isVisible())
                titles.append(dialog->windowTitle());
        }
        return titles;
    };
    window.root().confirmQuit(*model.process(101));
    window.root().confirmQuit(*model.process(101)); // once
    window.root().openFreeRAM();
    EXPECT_EQ(dialogs(), QStringList(u"Quit hog & co?"_s));
    EXPECT_TRUE(fakes.signalSender->sent().isEmpty());
    press(*window.findChild<ConfirmDialog*>(), u"Quit"_s);
    EXPECT_EQ(fakes.signalSender->sent(), (QList<FakeSignals::Sent>{{101, Signal::terminate, 1}}));
    EXPECT_TRUE(dialogs().isEmpty());

    const ProcessIdentity host = model.process(100)->identity();
    window.root().confirmEnd({.pid = 100, .startTime = host.startTime + std::chrono::seconds(1)});
    EXPECT_TRUE(dialogs().isEmpty()); // another process of that PID
    EXPECT_EQ(window.root().tab(), RootView::Tab::sessions);
    window.root().confirmEnd(host);
    EXPECT_EQ(dialogs(), QStringList(u"End claude?"_s));
    press(*window.findChild<ConfirmDialog*>(), u"Cancel"_s);
    window.root().openFreeRAM();
    EXPECT_EQ(window.root().tab(), RootView::Tab::overview);
    EXPECT_TRUE(window.findChild<FreeRAMSheet*>());
    EXPECT_EQ(fakes.signalSender->sent().size(), 1);
}

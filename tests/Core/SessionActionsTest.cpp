#include "Core/SessionsFixture.h"

using namespace Qt::StringLiterals;

namespace {

using SessionActionsTest = SessionsTest;
using Sent = FakeSignals::Sent;

QStringList outcomesOf(const SessionEndResult& result) {
    return each(result.records, [](const SessionEndResult::Record& record) {
        return u"%1 %2"_s.arg(record.pid).arg(record.outcome ? rawValue(*record.outcome) : u"left"_s);
    });
}

} // namespace

TEST_F(SessionActionsTest, TheHostIsAskedFirstThenItsTreeThenWhatRefuses) {
    add(11, 1, "claude").folder = "/src/app";
    addServer(12, 11);
    add(13, 11, "bash");
    signalSender->start(13, {.endsOnTerminate = false});
    report();
    SessionEnding ending = model->actions().endingOf(session(11));
    EXPECT_EQ(ending.title, u"claude in /src/app"_s);
    EXPECT_EQ(ending.resumeCommand, u"cd /src/app && claude --continue"_s);
    const SessionEndResult result = QCoro::waitFor(model->actions().endSession(ending));
    EXPECT_EQ(outcomesOf(result), (QStringList{u"11 quit"_s, u"12 quit"_s, u"13 forced"_s}));
    QList<std::pair<qint32, Signal>> sent =
        each(signalSender->sent(), [](const Sent& each) { return std::pair(each.pid, each.signal); });
    EXPECT_EQ(
        sent,
        (QList<std::pair<qint32, Signal>>{
            {11, Signal::terminate}, {12, Signal::terminate}, {13, Signal::terminate}, {13, Signal::kill}}));
    EXPECT_EQ(logged(), QStringList(u"quit [session] claude in /src/app — ended=3/3 forced=1 freed=0 ok"_s));
}

TEST_F(SessionActionsTest, WhatIsNoLongerOfTheSessionIsLeftAlone) {
    add(11, 1, "claude");
    add(16, 11, "bash");
    add(12, 16, "bash");
    add(13, 11, "bash");
    add(14, 11, "bash").info->uid = 1001;
    add(15, 11, "bash");
    add(20, 1, "codex");
    report();
    const SessionEnding ending = model->actions().endingOf(session(11));
    end(16);
    reparent(12, 20);
    report();
    end(13);
    add(13, 1, "sshd").info->startTicks = 99; // the PID again, which no tick has seen
    fakes.processes->processes[15].name = "vim";
    const SessionEndResult result = QCoro::waitFor(model->actions().endSession(ending));
    EXPECT_EQ(outcomesOf(result), (QStringList{u"11 quit"_s, u"16 quit"_s, u"12 left"_s, u"13 quit"_s,
                                               u"14 left"_s, u"15 quit"_s}));
    EXPECT_EQ(signalled(), (QList<qint32>{11, 15}));
}

TEST_F(SessionActionsTest, LeftOversAndDuplicatesEndAlone) {
    add(11, 1, "claude");
    addServer(12, 11);
    addServer(13, 11);
    add(20, 1, "vite").inheritance = withId("A", "/src/app");
    add(21, 1, "vite").inheritance = withId("B", "/src/lib");
    fakes.processes->processes[11].folder = "/src/other";
    report();
    const SessionEnding leftOvers = model->actions().endingOf(model->sessionReport().leftOvers);
    const SessionEnding duplicates = model->actions().endingOf(model->sessionReport().duplicates);
    QCoro::waitFor(model->actions().endSession(duplicates));
    EXPECT_EQ(signalled(), QList<qint32>{12});
    QCoro::waitFor(model->actions().endSession(leftOvers));
    QList<qint32> all = signalled();
    std::ranges::sort(all);
    EXPECT_EQ(all, (QList<qint32>{12, 20, 21}));
    EXPECT_EQ(logged().size(), 2);
}

TEST_F(SessionActionsTest, APausedSessionIsNeitherIdleNorForgotten) {
    add(11, 1, "claude");
    add(12, 11, "bash");
    report();
    const Session chosen = session(11);
    EXPECT_TRUE(model->actions().pauseSession(chosen).done);
    fakes.clock->advance(7200);
    report();
    EXPECT_EQ(session(11).state, SessionState::paused);
    EXPECT_EQ(model->sessionReport().idleCount(), 0);
    for (const SessionProcess& process : session(11).processes)
        EXPECT_EQ(process.process.idleSeconds, 0);
    EXPECT_TRUE(model->actions().resumeSession(chosen).done);
    EXPECT_FALSE(model->actions().resumeSession(chosen).done) << "it is no longer paused";
    EXPECT_TRUE(model->actions().pauseSession(chosen).done);
    const SessionEnding ending = model->actions().endingOf(chosen);
    const auto count = signalSender->sent().size();
    QCoro::waitFor(model->actions().endSession(ending));
    const QList<Sent> sent = signalSender->sent().mid(count);
    ASSERT_GE(sent.size(), 2);
    EXPECT_EQ(sent[0].signal, Signal::terminate);
    EXPECT_EQ(sent[1].pid, 12);
    EXPECT_EQ(sent[1].signal, Signal::resume) << "a stopped process does not end";
}

TEST_F(SessionActionsTest, APausedSessionGoesOnWhenTheProgramEnds) {
    add(11, 1, "claude");
    report();
    EXPECT_TRUE(model->actions().pauseSession(session(11)).done);
    model.reset();
    EXPECT_EQ(signalSender->sent().last(), (Sent{.pid = 11, .signal = Signal::resume, .life = 1}));
}

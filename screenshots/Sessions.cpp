#include "Camera.h"
#include "Screens.h"
#include "Stage.h"

#include "UI/Kit/ConfirmDialog.h"
#include "UI/MainWindow.h"
#include "UI/RootView.h"
#include "UI/SampleSessions.h"
#include "UI/Sessions/SessionActions.h"
#include "UI/Sessions/SessionDialogs.h"
#include "UI/Sessions/SessionHeader.h"
#include "UI/Sessions/SessionResultView.h"
#include "UI/Sessions/SessionsView.h"

#include <QDir>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

QString project(const QString& name) {
    return QDir::homePath() + u"/src/"_s + name;
}

/// Every state, one with a long name, one without a folder, and one that is not known well yet.
SessionReport several() {
    SessionReport report{.sessions = {SampleSessions::large(4200, project(u"shop"_s))}};
    Session waiting = SampleSessions::large(5200, project(u"billing-service"_s));
    waiting.state = SessionState::waiting;
    waiting.waitingFor = u"permission to run npm publish"_s;
    waiting.name.clear();
    waiting.lastActive = SampleSessions::before(190);
    waiting.cpuPercent = 0.4;
    waiting.processes.removeLast();
    waiting.memory.bytes -= 300 * MiB;
    report.sessions << waiting << SampleSessions::idle(6200, project(u"infra"_s), 900 * MiB);
    Session paused = SampleSessions::idle(
        7200, project(u"a-monorepo-with-a-very-long-name/packages/frontend/design-system"_s));
    paused.state = SessionState::paused;
    paused.name = u"Tokens and dark mode"_s;
    paused.lastActive = SampleSessions::before(3 * 3600);
    Session unknown = SampleSessions::idle(8200, QString(), 310 * MiB);
    unknown.agent = u"gemini"_s;
    unknown.lastActive.reset();
    unknown.trend.clear();
    unknown.memory.certainty = SummedMemory::Certainty::about;
    report.sessions << paused << unknown;
    return report;
}

SessionReport forty() {
    SessionReport report;
    const QStringList names{u"shop"_s, u"infra"_s, u"docs"_s, u"api"_s, u"mobile"_s};
    for (int i = 0; i < 40; ++i) {
        const QString folder = project(u"%1-%2"_s.arg(names[i % names.size()]).arg(i + 1));
        const qint32 pid = 10000 + 20 * i;
        Session session = i % 3 == 0 ? SampleSessions::large(pid, folder) : SampleSessions::idle(pid, folder);
        session.memory.bytes = 2600 * MiB - static_cast<quint64>(i) * 61 * MiB;
        session.lastActive = SampleSessions::before(i * i * 11);
        session.cpuPercent = i % 3 == 0 ? 97.0 - i : 0;
        report.sessions.append(session);
    }
    return report;
}

void shootDialogs(Camera& camera, MainWindow& window, const SessionReport& report) {
    auto* view = window.findChild<SessionsView*>();
    const Session& session = report.sessions.first();
    SessionDialogs::askEnd(&window, view,
                           {.title = SessionActions::tr("End %1?").arg(session.title()),
                            .button = SessionActions::tr("End session"),
                            .ending = SampleSessions::endingOf(session),
                            .processes = session.processes},
                           [] {});
    camera.take(*window.findChild<ConfirmDialog*>(), u"sessions-end"_s);
    delete window.findChild<ConfirmDialog*>();
    SessionDialogs::askPause(&window, view, session, [] {});
    camera.take(*window.findChild<ConfirmDialog*>(), u"sessions-pause"_s);
    delete window.findChild<ConfirmDialog*>();
}

/// Returns how a session ended, with every outcome.
SessionEndResult resultOf(const Session& session) {
    const std::optional<KillOutcome> outcomes[] = {KillOutcome::quit, KillOutcome::quit, KillOutcome::forced,
                                                   std::nullopt, KillOutcome::denied};
    const SessionEnding ending = SampleSessions::endingOf(session);
    SessionEndResult result{.title = ending.title,
                            .promised = ending.givesBack,
                            .freedBytes = 1430 * MiB,
                            .freedSwapBytes = 88 * MiB,
                            .resumeCommand = ending.resumeCommand};
    for (std::size_t i = 0; i < std::size(outcomes); ++i) {
        const ProcSample& process = ending.processes[static_cast<qsizetype>(i)];
        result.records.append({process.pid, process.name, outcomes[i]});
    }
    return result;
}

} // namespace

void shootSessions(Camera& camera) {
    Stage stage;
    stage.play(2, 24, 8.1);
    stage.fakes.clock->wall = SampleSessions::start;
    QMetaObject::invokeMethod(&stage.model, "tick");
    MainWindow window(stage.model, stage.prefs, stage.messages);
    window.resize(RootView::minimumContent);
    window.findChild<RootView*>()->select(RootView::Tab::sessions);
    window.show();
    settle();
    auto* view = window.findChild<SessionsView*>();
    view->show(SessionReport());
    camera.take(window, u"sessions-none"_s);
    SessionReport report = several();
    view->show(report);
    camera.take(window, u"sessions"_s);
    view->findChildren<SessionHeader*>().first()->setFocus();
    QTest::keyClick(view->findChildren<SessionHeader*>().first(), Qt::Key_Right);
    camera.take(window, u"sessions-open"_s);
    QTest::keyClick(view->findChildren<SessionHeader*>().first(), Qt::Key_Left);
    shootDialogs(camera, window, report);

    report.leftOvers = {SampleSessions::leftOver(20000)};
    report.duplicates = {SampleSessions::duplicates(21000, report.sessions.first())};
    report.sessions.resize(2);
    view->show(report);
    camera.take(window, u"sessions-leftovers"_s);
    view->addResult(resultOf(report.sessions.first()));
    camera.take(window, u"sessions-result"_s);
    press(*view, SessionResultView::tr("Dismiss"));
    view->findChild<QLineEdit*>()->setText(u"nothing like this"_s);
    camera.take(window, u"sessions-no-match"_s);
    view->findChild<QLineEdit*>()->clear();

    view->show(forty());
    camera.take(window, u"sessions-forty"_s);
    window.resize(1600, 1000);
    camera.take(window, u"sessions-forty-large"_s);
}

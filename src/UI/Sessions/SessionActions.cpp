#include "UI/Sessions/SessionActions.h"

#include "AppModel.h"
#include "UI/Kit/OpenFolder.h"
#include "UI/Sessions/SessionTexts.h"

#include <QClipboard>
#include <QCoroTask>
#include <QGuiApplication>
#include <QPointer>
#include <QWidget>

SessionActions::SessionActions(AppModel& model, QWidget* page)
    : QObject(page)
    , m_model(model)
    , m_page(page) {}

void SessionActions::act(SessionAction action, const Session& session) {
    switch (action) {
    case SessionAction::end:
        confirmEnd(session);
        break;
    case SessionAction::pause:
        confirmPause(session);
        break;
    case SessionAction::resume:
        resume(session);
        break;
    case SessionAction::openFolder:
        openFolder(session);
        break;
    case SessionAction::copyDetails:
        copyDetails(session);
        break;
    }
}

void SessionActions::confirmEnd(const Session& session) {
    ask(keyOf(session.host), {.title = tr("End %1?").arg(session.title()),
                              .subject = session.title(),
                              .button = tr("End session"),
                              .ending = m_model.actions().endingOf(session),
                              .processes = session.processes});
}

void SessionActions::confirmEnd(const Remains& remains) {
    ask(remains.key(), {.title = remains.endText() + u'?',
                        .subject = remains.title(),
                        .button = remains.endText(),
                        .ending = remains.ending(m_model.actions()),
                        .processes = remains.processes()});
}

void SessionActions::ask(const QString& key, const SessionDialogs::Question& question) {
    SessionDialogs::askEnd(m_page->window(), this, question, [this, key, question] { end(key, question); });
}

void SessionActions::end(const QString& key, const SessionDialogs::Question& question) {
    if (m_ending.contains(key))
        return;
    m_ending.insert(key);
    Q_EMIT endingChanged();
    m_model.actions()
        .endSession(question.ending)
        .then([self = QPointer<SessionActions>(this), key,
               subject = question.subject](SessionEndResult result) {
            if (self)
                self->finish(key, subject, std::move(result));
        });
}

/// Shows the result under the name that the user saw; that of the ending is the log's.
void SessionActions::finish(const QString& key, const QString& subject, SessionEndResult result) {
    result.title = subject;
    m_ending.remove(key);
    Q_EMIT endingChanged();
    Q_EMIT ended(result);
}

void SessionActions::confirmPause(const Session& session) {
    SessionDialogs::askPause(m_page->window(), this, session, [this, session] {
        report(m_model.actions().pauseSession(session), tr("Could not pause %1.").arg(session.title()));
    });
}

void SessionActions::resume(const Session& session) {
    report(m_model.actions().resumeSession(session), tr("Could not resume %1.").arg(session.title()));
}

void SessionActions::report(const Outcome& outcome, const QString& text) {
    if (!outcome.done)
        Q_EMIT failed(outcome.reason.isEmpty() ? text : text + u' ' + outcome.reason);
}

void SessionActions::openFolder(const Session& session) {
    ::openFolder(this, session.folder, [this, project = session.project()] {
        Q_EMIT failed(tr("Could not open %1.").arg(project));
    });
}

void SessionActions::copyDetails(const Session& session) {
    QGuiApplication::clipboard()->setText(SessionTexts::details(session, m_model.systemSample().timestamp));
}

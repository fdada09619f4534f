#pragma once

#include "Core/Sessions/SessionEnding.h"
#include "UI/Sessions/Remains.h"
#include "UI/Sessions/SessionDialogs.h"
#include "UI/Sessions/SessionRow.h"

#include <QObject>
#include <QSet>

class AppModel;
struct Outcome;

/// Does what the user asks of a session, after a question where something ends or stops.
class SessionActions : public QObject {
    Q_OBJECT

public:
    /// The dialogs are modal for the window of `page`.
    SessionActions(AppModel& model, QWidget* page);

    void act(SessionAction action, const Session& session);
    void confirmEnd(const Remains& remains);
    /// Returns whether an end is under way of the row with that key.
    bool isEnding(const QString& key) const { return m_ending.contains(key); }

Q_SIGNALS:
    /// Emitted when an end began or is over.
    void endingChanged();
    void ended(const SessionEndResult& result);
    /// Emitted with a sentence about what did not work.
    void failed(const QString& text);

private:
    void confirmEnd(const Session& session);
    void confirmPause(const Session& session);
    void resume(const Session& session);
    void openFolder(const Session& session);
    void copyDetails(const Session& session);
    void ask(const QString& key, const SessionDialogs::Question& question);
    void end(const QString& key, const SessionDialogs::Question& question);
    void finish(const QString& key, const QString& subject, SessionEndResult result);
    void report(const Outcome& outcome, const QString& text);

    AppModel& m_model;
    QWidget* m_page;
    QSet<QString> m_ending;
};

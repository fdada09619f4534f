#pragma once

#include "Core/Sessions/Session.h"
#include "Core/Sessions/SessionEnding.h"

#include <functional>

class QObject;
class QWidget;

/// The questions before processes of a session end or pause. `act` is called while `owner` exists.
namespace SessionDialogs {

/// What is asked about.
struct Question {
    QString title;                   ///< "End claude in ~/src/app?"
    QString subject;                 ///< "claude in ~/src/app", for the result
    QString button;                  ///< "End session"
    SessionEnding ending;            ///< what ends
    QList<SessionProcess> processes; ///< what they are
};

void askEnd(QWidget* parent, QObject* owner, const Question& question, const std::function<void()>& act);
void askPause(QWidget* parent, QObject* owner, const Session& session, const std::function<void()>& act);

} // namespace SessionDialogs

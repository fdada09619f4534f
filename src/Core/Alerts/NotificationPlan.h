#pragma once

#include "Core/Alerts/Alert.h"

#include <QHash>
#include <QList>

#include <chrono>

class Preferences;

/// What the user is told about one condition. The alerts of one rule are one condition.
struct ConditionNotice {
    enum class Action { show, freeRAM, endSession, quitProcess };

    QString condition; ///< "memory"; constant while it lasts
    QString title;
    QString body;
    bool isDanger = false;
    QList<Action> actions;
    std::optional<qint32> actionPid; ///< of the session's host or of the process to quit

    bool operator==(const ConditionNotice&) const = default;
};

/// Decides which alerts in force are notified of, and when. A condition has at most one notice. It is
/// replaced as its text changes, at most every 10 s, and withdrawn once the condition has been over for 10 s,
/// so that one that comes and goes does not flicker. A notice comes back 15 minutes after it came or was
/// closed at the earliest; but a danger comes at once where only its warning came before. In the quiet time
/// no notice comes and none is replaced, not even of a danger: nobody looks, and what still lasts comes when
/// it ends.
class NotificationPlan {
public:
    struct Moment {
        std::chrono::steady_clock::time_point uptime;
        int minuteOfDay = 0; ///< since midnight, local time
    };
    struct Changes {
        QList<ConditionNotice> show; ///< new ones, and those that replace one
        QStringList withdraw;        ///< conditions
    };

    Changes update(const QList<Alert>& alerts, const Moment& now, const Preferences& preferences);
    /// Notes that a notice is gone that was not withdrawn.
    void close(const QString& condition, const Moment& now);

    static bool isQuiet(int minuteOfDay, const Preferences& preferences);

    static constexpr std::chrono::minutes comesAgainAfter{15};
    static constexpr std::chrono::seconds replacedAfter{10};
    static constexpr std::chrono::seconds overAfter{10};

private:
    using Time = std::chrono::steady_clock::time_point;

    struct History {
        std::optional<ConditionNotice> onScreen;
        std::optional<Time> came;         ///< or was closed, whichever is later
        std::optional<Time> cameAsDanger; ///< the same, of one that told of a danger
        Time changed;                     ///< when the one on screen was shown last
        Time inForce;                     ///< when the condition was seen last
    };

    static bool isDue(const History& history, bool isDanger, Time now);
    static void note(History& history, const ConditionNotice& notice, Time now);

    QHash<QString, History> m_histories; ///< by condition
};

#pragma once

#include "Cli/Environment.h"
#include "Core/Report/Report.h"

#include <QCoroTask>

#include <memory>

class AppModel;

/// Where the figures come from: the Tavrin that runs, or this program's own look at the machine.
class Machine {
public:
    struct Choice {
        bool isDirect = false; ///< the running program is not asked
        bool hasCpu = true;    ///< loads are wanted, which need two readings
    };

    /// `environment` outlives the machine.
    Machine(const Environment& environment, Choice choice);
    ~Machine();

    /// Returns a document with all that is known of its kind.
    QCoro::Task<QJsonObject> report(Report::Kind kind);
    /// Looks at the machine for an action, and returns the model. What the running program knows of idle
    /// times is taken over.
    QCoro::Task<AppModel*> look();
    /// The same with the sessions.
    QCoro::Task<AppModel*> lookForSessions();

    /// Returns the model of this program, without a look.
    AppModel& model();
    /// Returns whether the idle times of the model are those of a program that runs.
    bool knowsIdleTimes() const { return m_knowsIdleTimes; }
    Report::Origin origin() const;

private:
    std::optional<QJsonObject> ask(Report::Kind kind);
    QCoro::Task<> lookFor(Report::Kind kind);
    void findSessions();
    void wantMemory(Report::Kind kind);
    void takeOverIdleTimes();
    bool hasOldReading() const;
    void tick();

    const Environment& m_environment;
    Choice m_choice;
    std::unique_ptr<AppModel> m_model;
    std::chrono::steady_clock::time_point m_tickedAt; ///< the clock's epoch before the first
    bool m_hasCpu = false;
    bool m_knowsIdleTimes = false;
};

#pragma once

#include <QObject>

#include <optional>

/// How long programs waited for a resource in the last ten seconds, in percent of that time.
struct PressureLevel {
    double some = 0; ///< while at least one program waited
    double full = 0; ///< while no program could run for waiting

    bool operator==(const PressureLevel&) const = default;
};

/// What programs wait for because there is too little of it. A level is empty where the system does not tell.
class Pressure : public QObject {
    Q_OBJECT

public:
    enum class Stall { some, full };
    Q_ENUM(Stall)

    virtual std::optional<PressureLevel> memory() { return {}; }
    virtual std::optional<PressureLevel> disk() { return {}; }

Q_SIGNALS:
    /// Emitted at most every two seconds while programs wait for memory: for `some` once they have waited
    /// 150 ms in two seconds, for `full` 50 ms. Never where the system does not call.
    void memoryStalled(Pressure::Stall stall);
};

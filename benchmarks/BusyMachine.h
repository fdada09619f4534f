#pragma once

#include "support/FakePlatform.h"

#include <QRandomGenerator>

/// A scripted machine of 1,000 processes on which 200 end and 200 others start every second, half of them
/// with a new name, path and arguments. PIDs wrap around.
class BusyMachine {
public:
    FakePlatform fakes;

    BusyMachine();

    /// Advances by two seconds.
    void pass();

private:
    qint32 nextFreePid();
    void start(qsizetype row);
    void startSteady(qsizetype row);
    void startPassing(qsizetype row);
    void work();
    void swing();

    QRandomGenerator m_random{5};
    qint32 m_pid = 300;
    int m_started = 0;
    int m_passes = 0;
};

#pragma once

#include "Platform/Platform.h"

#include <QString>

#include <chrono>
#include <functional>

class AppModel;
class Preferences;
class RunningProgram;
class Terminal;

/// What the commands work with.
struct Environment {
    Platform platform;
    Preferences& preferences;
    Terminal& terminal;
    RunningProgram& running;
    std::chrono::milliseconds betweenReadings{100}; ///< of the counters that loads are made of
    QString version = {};
    bool wantsColour = true;                       ///< on a terminal
    std::function<void(AppModel& model)> adjust{}; ///< called with a new model, in tests only
};

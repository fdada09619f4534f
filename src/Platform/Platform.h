#pragma once

#include <memory>

class Appearance;
class Applications;
class Clock;
class HostStatistics;
class Identity;
class LoginItem;
class Places;
class PowerMode;
class ProcessTable;
class Relief;
class Signals;
class ToolRunner;

/// Everything the program asks of an operating system, chosen once at start and handed down.
struct Platform {
    std::shared_ptr<HostStatistics> host;
    std::shared_ptr<ProcessTable> processes;
    std::shared_ptr<PowerMode> power;
    std::shared_ptr<Identity> identity;
    std::shared_ptr<Clock> clock;
    std::shared_ptr<ToolRunner> tools;
    std::shared_ptr<Places> places;
    std::shared_ptr<Signals> signalSender;
    std::shared_ptr<Applications> applications;
    std::shared_ptr<Relief> relief;

    /// What has to be done before the program's first thread starts.
    static void prepareProgram();
    /// The answers of the system this program was built for. Needs a running QCoreApplication.
    static Platform native();
    /// Separate, because only programs with windows ask for it.
    static std::unique_ptr<Appearance> makeAppearance();
    /// Separate for the same reason.
    static std::unique_ptr<LoginItem> makeLoginItem();
};

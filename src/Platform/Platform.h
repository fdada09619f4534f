#pragma once

#include <memory>

class Appearance;
class Applications;
class CleanupTargets;
class Clock;
class HostStatistics;
class Identity;
class ListeningPorts;
class LoginItem;
class MemoryKills;
class Places;
class PowerMode;
class Pressure;
class ProcessDetails;
class ProcessMemory;
class ProcessTable;
class ProgramService;
class Relief;
class RunningProgram;
class Signals;
class Terminal;
class ToolRunner;

/// The services of an operating system, made once at start and passed down.
struct Platform {
    std::shared_ptr<HostStatistics> host;
    std::shared_ptr<ProcessTable> processes;
    std::shared_ptr<ProcessMemory> processMemory;
    std::shared_ptr<ProcessDetails> processDetails;
    std::shared_ptr<ListeningPorts> listeningPorts;
    std::shared_ptr<Pressure> pressure;
    std::shared_ptr<MemoryKills> memoryKills;
    std::shared_ptr<PowerMode> power;
    std::shared_ptr<Identity> identity;
    std::shared_ptr<Clock> clock;
    std::shared_ptr<ToolRunner> tools;
    std::shared_ptr<Places> places;
    std::shared_ptr<CleanupTargets> cleanupTargets;
    std::shared_ptr<Signals> signalSender;
    std::shared_ptr<Applications> applications;
    std::shared_ptr<Relief> relief;

    /// Prepares the process; called before its first thread starts.
    static void prepareProgram();
    /// Makes the services of the system this program was built for. Needs a running QCoreApplication.
    static Platform native();
    /// Makes one of them for whatever is made before the others.
    static std::shared_ptr<ToolRunner> makeToolRunner();
    /// Make what only a program for a terminal needs.
    static std::unique_ptr<Terminal> makeTerminal();
    static std::unique_ptr<RunningProgram> makeRunningProgram();
    /// Makes what only programs with windows need.
    static std::unique_ptr<Appearance> makeAppearance();
    static std::unique_ptr<LoginItem> makeLoginItem();
    static std::unique_ptr<ProgramService> makeProgramService();
};

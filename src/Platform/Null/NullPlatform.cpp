#include "Platform/Appearance.h"
#include "Platform/Applications.h"
#include "Platform/CleanupTargets.h"
#include "Platform/Clock.h"
#include "Platform/HostStatistics.h"
#include "Platform/Identity.h"
#include "Platform/ListeningPorts.h"
#include "Platform/LoginItem.h"
#include "Platform/MachineDetails.h"
#include "Platform/MemoryKills.h"
#include "Platform/Places.h"
#include "Platform/Platform.h"
#include "Platform/PowerMode.h"
#include "Platform/Pressure.h"
#include "Platform/ProcessDetails.h"
#include "Platform/ProcessMemory.h"
#include "Platform/ProcessTable.h"
#include "Platform/ProgramService.h"
#include "Platform/Relief.h"
#include "Platform/RunningProgram.h"
#include "Platform/Signals.h"
#include "Platform/SingleInstance.h"
#include "Platform/Terminal.h"
#include "Platform/TerminationRequest.h"
#include "Platform/ToolRunner.h"
#include "Platform/Words.h"

#include <QCoreApplication>

// A system without services. It shows the default of each.

namespace {

class NullProcessTable : public ProcessTable {
    int listAllPids(std::span<qint32>) override { return 0; }
    std::optional<TaskInfo> taskInfo(qint32) override { return {}; }
    ProcessOrigin origin(qint32) override { return {}; }
    std::optional<KernelProcessInfo> kernelInfo(qint32) override { return {}; }
    std::optional<quint64> textHash(qint32) override { return {}; }
    QByteArray workingDirectory(qint32) override { return {}; }
    ProcessKeeper keeper(qint32) override { return {}; }
    ProcessInheritance inheritance(qint32, const QByteArrayList&) override { return {}; }
};

class NullProcessMemory : public ProcessMemory {
    ProcessMemoryReading readAll(qint32) override { return {}; }
    ProcessMemoryReading readTotals(qint32) override { return {}; }
    std::optional<ControlGroupMemory> controlGroup(qint32) override { return {}; }
};

class NullListeningPorts : public ListeningPorts {
    QList<ListeningSocket> sockets() override { return {}; }
    QList<quint64> socketsOf(qint32) override { return {}; }
};

class NullPowerMode : public PowerMode {
    bool isLowPowerModeEnabled() const override { return false; }
};

class NullIdentity : public Identity {
    quint32 userId() const override { return 0; }
    qint32 processId() const override { return 0; }
};

class NullToolRunner : public ToolRunner {
    QCoro::Task<ToolResult> run(ToolRequest) override { co_return {}; }
};

class NullPlaces : public Places {
    QList<Place> locate(const QString&) const override { return {}; }
};

class NullCleanupTargets : public CleanupTargets {
    QList<PlatformTarget> all() const override { return {}; }
};

class NullSignals : public Signals {
    class Nobody : public ProcessHandle {
        SignalResult send(Signal) override { return SignalResult::noSuchProcess; }
    };

    std::shared_ptr<ProcessHandle> hold(qint32) override { return std::make_shared<Nobody>(); }
};

class NullApplications : public Applications {
    std::optional<Application> ofProgram(const QString&) override { return {}; }
    std::optional<Application> ofProcess(qint32) override { return {}; }
    QList<qint32> inTerminalsOf(const QList<qint32>&) override { return {}; }
};

class NullRelief : public Relief {
    QCoro::Task<Outcome> quitApplication(QString, bool) override { co_return {}; }
    QCoro::Task<Outcome> reclaimMemory() override { co_return {}; }
    QCoro::Task<Outcome> dropCaches(std::stop_token) override { co_return {}; }
};

class NullTerminal : public Terminal {
    Outcome write(const QByteArray&) override { return {}; }
    void writeError(const QByteArray&) override {}
    std::optional<int> width() const override { return {}; }
    bool canAsk() const override { return false; }
    QByteArray readLine() override { return {}; }
    void listen() override { Q_EMIT inputEnded(); }
};

class NullRunningProgram : public RunningProgram {
    std::optional<QByteArray> report(const QString&) override { return {}; }
};

class NullAppearance : public Appearance {
    AppearanceChoice choice() const override { return {}; }
};

class NullLoginItem : public LoginItem {
    Outcome registerItem() override {
        return Outcome::failure(
            QCoreApplication::translate("NullPlatform", "Nothing can be started at login here."));
    }
    Outcome unregisterItem() override { return Outcome::success(); }
    bool isInstalled() const override { return false; }
    void replaceGoneProgram() override {}
};

class NullProgramService : public ProgramService {
    Outcome start(Answers) override { return {}; }
    void publish(const QVariantMap&) override {}
};

} // namespace

void Platform::prepareProgram() {}

Platform Platform::native() {
    return {.host = std::make_shared<HostStatistics>(),
            .processes = std::make_shared<NullProcessTable>(),
            .processMemory = std::make_shared<NullProcessMemory>(),
            .processDetails = std::make_shared<ProcessDetails>(),
            .listeningPorts = std::make_shared<NullListeningPorts>(),
            .pressure = std::make_shared<Pressure>(),
            .memoryKills = std::make_shared<MemoryKills>(),
            .power = std::make_shared<NullPowerMode>(),
            .identity = std::make_shared<NullIdentity>(),
            .clock = std::make_shared<SystemClock>(),
            .tools = makeToolRunner(),
            .places = std::make_shared<NullPlaces>(),
            .cleanupTargets = std::make_shared<NullCleanupTargets>(),
            .signalSender = std::make_shared<NullSignals>(),
            .applications = std::make_shared<NullApplications>(),
            .relief = std::make_shared<NullRelief>()};
}

std::shared_ptr<ToolRunner> Platform::makeToolRunner() {
    return std::make_shared<NullToolRunner>();
}

std::unique_ptr<Terminal> Platform::makeTerminal() {
    return std::make_unique<NullTerminal>();
}

std::unique_ptr<RunningProgram> Platform::makeRunningProgram() {
    return std::make_unique<NullRunningProgram>();
}

std::shared_ptr<MachineDetails> MachineDetails::native() {
    return std::make_shared<MachineDetails>();
}

std::unique_ptr<Appearance> Platform::makeAppearance() {
    return std::make_unique<NullAppearance>();
}

std::unique_ptr<LoginItem> Platform::makeLoginItem() {
    return std::make_unique<NullLoginItem>();
}

std::unique_ptr<ProgramService> Platform::makeProgramService() {
    return std::make_unique<NullProgramService>();
}

Words Words::native() {
    return {.computer = QCoreApplication::translate("Words", "Computer"),
            .system = QCoreApplication::translate("Words", "System"),
            .initProcess = QStringLiteral("init"),
            .taskBar = QCoreApplication::translate("Words", "task bar"),
            .statusArea = QCoreApplication::translate("Words", "Status area"),
            .symbol = QCoreApplication::translate("Words", "Symbol")};
}

SingleInstance::SingleInstance(const QString&, QObject* parent)
    : QObject(parent)
    , m_socket(nullptr) {}

bool SingleInstance::claim(const QByteArray&) {
    return true;
}

TerminationRequest::TerminationRequest(QObject* parent)
    : QObject(parent) {}

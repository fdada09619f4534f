#include "Platform/Clock.h"
#include "Platform/Freedesktop/FreedesktopAppearance.h"
#include "Platform/Freedesktop/FreedesktopIdentity.h"
#include "Platform/Freedesktop/FreedesktopLoginItem.h"
#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "Platform/Freedesktop/FreedesktopProgramService.h"
#include "Platform/Freedesktop/FreedesktopRunningProgram.h"
#include "Platform/Freedesktop/FreedesktopTargets.h"
#include "Platform/Linux/LinuxApplications.h"
#include "Platform/Linux/LinuxHostStatistics.h"
#include "Platform/Linux/LinuxListeningPorts.h"
#include "Platform/Linux/LinuxMemoryKills.h"
#include "Platform/Linux/LinuxPowerMode.h"
#include "Platform/Linux/LinuxPressure.h"
#include "Platform/Linux/LinuxProcessDetails.h"
#include "Platform/Linux/LinuxProcessMemory.h"
#include "Platform/Linux/LinuxProcessTable.h"
#include "Platform/Linux/LinuxRelief.h"
#include "Platform/Linux/LinuxSignals.h"
#include "Platform/Platform.h"
#include "Platform/Unix/DescriptorLimit.h"
#include "Platform/Unix/UnixTerminal.h"
#include "Platform/Unix/UnixToolRunner.h"
#include "Platform/Words.h"

#include <QCoreApplication>

void Platform::prepareProgram() {
    DescriptorLimit::reserve();
}

Platform Platform::native() {
    const auto tools = makeToolRunner();
    return {.host = std::make_shared<LinuxHostStatistics>(),
            .processes = std::make_shared<LinuxProcessTable>(),
            .processMemory = std::make_shared<LinuxProcessMemory>(),
            .processDetails = std::make_shared<LinuxProcessDetails>(),
            .listeningPorts = std::make_shared<LinuxListeningPorts>(),
            .pressure = std::make_shared<LinuxPressure>(),
            .memoryKills = std::make_shared<LinuxMemoryKills>(tools),
            .power = std::make_shared<LinuxPowerMode>(),
            .identity = std::make_shared<FreedesktopIdentity>(),
            .clock = std::make_shared<SystemClock>(),
            .tools = tools,
            .places = std::make_shared<FreedesktopPlaces>(),
            .cleanupTargets = std::make_shared<FreedesktopTargets>(),
            .signalSender = std::make_shared<LinuxSignals>(),
            .applications = std::make_shared<LinuxApplications>(),
            .relief = std::make_shared<LinuxRelief>(tools)};
}

std::shared_ptr<ToolRunner> Platform::makeToolRunner() {
    return std::make_shared<UnixToolRunner>();
}

std::unique_ptr<Terminal> Platform::makeTerminal() {
    return std::make_unique<UnixTerminal>();
}

std::unique_ptr<RunningProgram> Platform::makeRunningProgram() {
    return std::make_unique<FreedesktopRunningProgram>();
}

std::unique_ptr<Appearance> Platform::makeAppearance() {
    return std::make_unique<FreedesktopAppearance>();
}

std::unique_ptr<LoginItem> Platform::makeLoginItem() {
    return std::make_unique<FreedesktopLoginItem>();
}

std::unique_ptr<ProgramService> Platform::makeProgramService() {
    return std::make_unique<FreedesktopProgramService>();
}

Words Words::native() {
    return {.computer = QCoreApplication::translate("Words", "Computer"),
            .system = QStringLiteral("Linux"),
            .initProcess = QStringLiteral("init"),
            .taskBar = QCoreApplication::translate("Words", "task bar"),
            .statusArea = QCoreApplication::translate("Words", "Status area"),
            .symbol = QCoreApplication::translate("Words", "Symbol")};
}

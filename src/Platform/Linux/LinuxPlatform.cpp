#include "Platform/Clock.h"
#include "Platform/Linux/DescriptorLimit.h"
#include "Platform/Linux/LinuxAppearance.h"
#include "Platform/Linux/LinuxApplications.h"
#include "Platform/Linux/LinuxHostStatistics.h"
#include "Platform/Linux/LinuxIdentity.h"
#include "Platform/Linux/LinuxLoginItem.h"
#include "Platform/Linux/LinuxPlaces.h"
#include "Platform/Linux/LinuxPowerMode.h"
#include "Platform/Linux/LinuxProcessTable.h"
#include "Platform/Linux/LinuxSignals.h"
#include "Platform/Linux/LinuxToolRunner.h"
#include "Platform/Platform.h"

void Platform::prepareProgram() {
    DescriptorLimit::reserve();
}

Platform Platform::native() {
    return {.host = std::make_shared<LinuxHostStatistics>(),
            .processes = std::make_shared<LinuxProcessTable>(),
            .power = std::make_shared<LinuxPowerMode>(),
            .identity = std::make_shared<LinuxIdentity>(),
            .clock = std::make_shared<SystemClock>(),
            .tools = std::make_shared<LinuxToolRunner>(),
            .places = std::make_shared<LinuxPlaces>(),
            .signalSender = std::make_shared<LinuxSignals>(),
            .applications = std::make_shared<LinuxApplications>()};
}

std::unique_ptr<Appearance> Platform::makeAppearance() {
    return std::make_unique<LinuxAppearance>();
}

std::unique_ptr<LoginItem> Platform::makeLoginItem() {
    return std::make_unique<LinuxLoginItem>();
}

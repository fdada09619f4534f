#include "UI/Overview/ThermalPage.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Platform/MachineDetails.h"
#include "UI/Kit/EmptyState.h"

#include <QVBoxLayout>

ThermalPage::ThermalPage(AppModel& model, std::shared_ptr<MachineDetails> machine)
    : DetailPage(tr("Thermal"), model, std::move(machine))
    , m_sensors(addGraph(tr("Sensors"), Graph::Unit::degrees))
    , m_none(new EmptyState(
          QStringLiteral("waveform"), tr("No temperatures"),
          tr("This computer shows no sensors to programs, as most virtual machines. The tile shows "
             "the state that the kernel reports."))) {
    column()->addWidget(m_none);
    column()->addStretch();
}

void ThermalPage::refresh() {
    QStringList names;
    QList<double> degrees;
    for (const HeatSensor& sensor : machine().sensors()) {
        names.append(Formatters::visible(sensor.name));
        degrees.append(sensor.celsius);
    }
    m_sensors->setVisible(!names.isEmpty());
    m_none->setVisible(names.isEmpty());
    note(names, degrees);
    drawNoted(m_sensors);
}

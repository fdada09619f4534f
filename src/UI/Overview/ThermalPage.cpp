#include "UI/Overview/ThermalPage.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Platform/MachineDetails.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/TextLabel.h"

#include <QVBoxLayout>

ThermalPage::ThermalPage(AppModel& model, std::shared_ptr<MachineDetails> machine)
    : DetailPage(tr("Thermal"), model, std::move(machine))
    , m_sensors(addGraph(tr("Sensors"), Graph::Unit::degrees))
    , m_none(new EmptyState(
          QStringLiteral("waveform"), tr("No temperatures"),
          tr("This computer shows no sensors to programs, as most virtual machines. The tile shows "
             "the state that the kernel reports.")))
    , m_silence((new TextLabel(Theme::TextStyle::callout))->secondary()->wrapped()) {
    m_silence->setPlainText(
        tr("A sensor does not answer. It is asked again once it does, while this page is open."));
    column()->addWidget(m_silence);
    column()->addWidget(m_none);
    m_silence->hide();
    m_none->hide();
    column()->addStretch();
}

void ThermalPage::refresh() {
    m_reading.ask(
        this, [machine = sharedMachine()] { return machine->sensors(); },
        [this](const auto& sensors) { showSensors(sensors); });
}

void ThermalPage::showSensors(const std::optional<QList<HeatSensor>>& sensors) {
    m_silence->setVisible(!sensors);
    if (!sensors)
        return;
    QStringList names;
    QList<double> degrees;
    for (const HeatSensor& sensor : *sensors) {
        names.append(Formatters::visible(sensor.name));
        degrees.append(sensor.celsius);
    }
    m_sensors->setVisible(!names.isEmpty());
    m_none->setVisible(names.isEmpty());
    note(names, degrees);
    drawNoted(m_sensors);
}

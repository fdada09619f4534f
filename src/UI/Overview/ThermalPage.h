#pragma once

#include "Platform/MachineDetails.h"
#include "UI/Overview/DetailPage.h"
#include "UI/Overview/SlowReading.h"

class EmptyState;
class TextLabel;

/// The temperature of each sensor since the page was opened.
class ThermalPage : public DetailPage {
    Q_OBJECT

public:
    ThermalPage(AppModel& model, std::shared_ptr<MachineDetails> machine);

protected:
    void refresh() override;

private:
    void showSensors(const std::optional<QList<HeatSensor>>& sensors);

    Graph* m_sensors;
    EmptyState* m_none;   ///< why there is no graph
    TextLabel* m_silence; ///< why the graph does not go on
    SlowReading<QList<HeatSensor>> m_reading;
};

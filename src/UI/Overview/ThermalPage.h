#pragma once

#include "UI/Overview/DetailPage.h"

class EmptyState;

/// The temperature of each sensor since the page was opened.
class ThermalPage : public DetailPage {
    Q_OBJECT

public:
    ThermalPage(AppModel& model, std::shared_ptr<MachineDetails> machine);

protected:
    void refresh() override;

private:
    Graph* m_sensors;
    EmptyState* m_none;
};

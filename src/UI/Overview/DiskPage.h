#pragma once

#include "Platform/MachineDetails.h"
#include "UI/Kit/RowPool.h"
#include "UI/Overview/DetailPage.h"

class VolumeRow;

/// The space of each volume, and what goes to and from each disk in a second.
class DiskPage : public DetailPage {
    Q_OBJECT

public:
    DiskPage(AppModel& model, std::shared_ptr<MachineDetails> machine);
    ~DiskPage() override;

protected:
    void refresh() override;

private:
    void refreshVolumes();
    void refreshTraffic();

    QVBoxLayout* m_volumeColumn;
    RowPool<VolumeRow> m_volumes;
    Graph* m_traffic;
    QList<DiskTraffic> m_before;
    Instant m_readAt;
    Instant m_volumesAt;
    bool m_isReadingVolumes = false;
    SeriesLog m_log;
};

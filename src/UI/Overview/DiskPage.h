#pragma once

#include "Platform/MachineDetails.h"
#include "UI/Kit/RowPool.h"
#include "UI/Overview/DetailPage.h"
#include "UI/Overview/SlowReading.h"

#include <memory>
#include <optional>

class EmptyState;
class TextLabel;
class VolumeRow;

/// The space of each volume, and what goes to and from each disk in a second.
class DiskPage : public DetailPage {
    Q_OBJECT

public:
    DiskPage(AppModel& model, std::shared_ptr<MachineDetails> machine);
    ~DiskPage() override;

protected:
    void refresh() override;
    void hideEvent(QHideEvent* event) override;

private:
    void refreshVolumes();
    void showVolumes(const std::optional<QList<MountedVolume>>& volumes);
    void refreshTraffic();

    QVBoxLayout* m_volumeColumn;
    RowPool<VolumeRow> m_volumes;
    TextLabel* m_volumeState; ///< why no volumes are shown
    Graph* m_traffic;
    EmptyState* m_noTraffic;
    QList<DiskTraffic> m_before;
    Instant m_readAt;
    Instant m_volumesAt;
    SlowReading<QList<MountedVolume>> m_mounted;
};

#include "UI/Overview/DiskPage.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/EmptyState.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Style/Levels.h"

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using Theme::Role;
using Theme::TextStyle;
using namespace std::chrono_literals;

namespace {

constexpr auto volumeInterval = 10s;
constexpr Theme::Length volumeRowHeight{44};
constexpr Theme::Length volumeBarHeight{6};

} // namespace

/// One volume: its place, its free space and a bar.
class VolumeRow : public QWidget {
public:
    VolumeRow() { Theme::fixHeight(this, volumeRowHeight); }

    void set(const MountedVolume& volume) {
        const quint64 used = volume.totalBytes - std::min(volume.freeBytes, volume.totalBytes);
        m_place = Formatters::visible(volume.place);
        m_share = static_cast<double>(used) / static_cast<double>(std::max<quint64>(volume.totalBytes, 1));
        m_figure = DiskPage::tr("%1 free of %2")
                       .arg(Formatters::bytes(volume.freeBytes), Formatters::bytes(volume.totalBytes));
        setAccessibleName(QStringLiteral("%1, %2").arg(m_place, m_figure));
        setToolTip(Formatters::toolTip(m_place));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        Painting::mirror(painter, *this);
        QRectF line(0, 0, width(), height() - volumeBarHeight - 10);
        Painting::setTextStyle(painter, TextStyle::callout, Role::secondaryText);
        Painting::drawTabular(painter, line, Qt::AlignRight, m_figure);
        line.setRight(line.right() - Painting::tabularWidth(painter.font(), m_figure) - Theme::rowSpacing);
        Painting::setTextStyle(painter, TextStyle::body, Role::primaryText);
        Painting::drawElided(painter, line, Qt::ElideMiddle, m_place);
        Painting::drawProgress(painter, QRectF(0, height() - volumeBarHeight - 8, width(), volumeBarHeight),
                               m_share, Theme::color(Levels::disk(m_share * 100)));
    }

private:
    QString m_place;
    QString m_figure;
    double m_share = 0;
};

DiskPage::DiskPage(AppModel& model, std::shared_ptr<MachineDetails> machine)
    : DetailPage(tr("Disk"), model, std::move(machine))
    , m_volumeColumn(new QVBoxLayout)
    , m_volumes([this] {
        auto* row = new VolumeRow;
        m_volumeColumn->addWidget(row);
        return row;
    })
    , m_volumeState((new TextLabel(TextStyle::callout))->secondary()->wrapped())
    , m_traffic(nullptr)
    , m_noTraffic(new EmptyState(QStringLiteral("server.rack"), tr("No figures of reading and writing"),
                                 tr("This computer shows programs no disk of its own, as many containers. "
                                    "What single processes read and write is in columns of the Processes "
                                    "section."))) {
    auto* card = new Card;
    card->setLayout(m_volumeColumn);
    m_volumeColumn->setContentsMargins(Theme::cardPadding, 8, Theme::cardPadding, 8);
    m_volumeColumn->setSpacing(0);
    m_volumeColumn->addWidget(m_volumeState);
    m_volumeState->setPlainText(tr("Being read…"));
    column()->addWidget(card);
    m_traffic = addGraph(tr("Read and written"), Graph::Unit::bytesPerSecond);
    column()->addWidget(m_noTraffic);
    m_noTraffic->hide();
    column()->addStretch();
}

DiskPage::~DiskPage() = default;

/// What goes on while the page is away belongs to no moment of its graph.
void DiskPage::hideEvent(QHideEvent* event) {
    m_before.clear();
    DetailPage::hideEvent(event);
}

void DiskPage::refresh() {
    refreshVolumes();
    refreshTraffic();
}

void DiskPage::refreshVolumes() {
    const Instant now = model().systemSample().timestamp;
    if (now >= m_volumesAt && now - m_volumesAt < volumeInterval)
        return;
    m_mounted.ask(
        this, [machine = sharedMachine()] { return machine->volumes(); },
        [this, now](const auto& volumes) {
            m_volumesAt = now;
            showVolumes(volumes);
        });
}

void DiskPage::showVolumes(const std::optional<QList<MountedVolume>>& volumes) {
    const qsizetype count = volumes ? volumes->size() : 0;
    m_volumes.show(count, [&volumes](VolumeRow& row, qsizetype i) { row.set(volumes->at(i)); });
    m_volumeState->setPlainText(
        volumes ? tr("No volume of a disk is mounted here. The tile shows the space of the root folder.")
                : tr("A disk does not answer. It is asked again once it does, while this page is open."));
    m_volumeState->setVisible(count == 0);
}

void DiskPage::refreshTraffic() {
    const Instant at = model().systemSample().timestamp;
    const double seconds = secondsOf(at) - secondsOf(m_readAt);
    if (seconds == 0)
        return;
    const QList<DiskTraffic> now = machine().disks();
    QStringList names;
    QList<double> rates;
    for (const DiskTraffic& disk : now) {
        const auto before = std::ranges::find(m_before, disk.device, &DiskTraffic::device);
        if (before == m_before.end() || seconds < 0)
            continue;
        const auto rate = [seconds](quint64 from, quint64 to) {
            return static_cast<double>(to - std::min(from, to)) / seconds;
        };
        names << tr("%1 read").arg(disk.device) << tr("%1 written").arg(disk.device);
        rates << rate(before->readBytes, disk.readBytes) << rate(before->writtenBytes, disk.writtenBytes);
    }
    m_before = now;
    m_readAt = at;
    m_traffic->setVisible(!now.isEmpty());
    m_noTraffic->setVisible(now.isEmpty());
    if (names.isEmpty())
        return;
    note(names, rates);
    drawNoted(m_traffic);
}

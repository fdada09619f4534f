#include "Platform/Linux/LinuxMachineDetails.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Unix/MountField.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <sys/statvfs.h>

#include <algorithm>
#include <array>
#include <optional>

using namespace KernelText;

namespace {

constexpr quint64 bytesPerSector = 512; // of /proc/diskstats, whatever the disk's own
constexpr qsizetype longestTable = 4 << 20;

QByteArray textOf(const std::string& path) {
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    return file.open(QIODevice::ReadOnly) ? file.read(longestTable) : QByteArray();
}

QString firstLine(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readLine(256)).trimmed() : QString();
}

} // namespace

std::shared_ptr<MachineDetails> MachineDetails::native() {
    return std::make_shared<LinuxMachineDetails>();
}

LinuxMachineDetails::LinuxMachineDetails(QString root)
    : m_root(std::move(root)) {}

std::string LinuxMachineDetails::path(const QString& relative) const {
    return QFile::encodeName(m_root + u'/' + relative).toStdString();
}

QList<DiskTraffic> LinuxMachineDetails::disks() {
    QList<DiskTraffic> result;
    for (const QByteArray& line : textOf(path(QStringLiteral("proc/diskstats"))).split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() < 10)
            continue;
        const QString device = QString::fromLatin1(fields[2]);
        if (QFile::exists(QStringLiteral("%1/sys/block/%2/device").arg(m_root, device)))
            result.append({.device = device,
                           .readBytes = fields[5].toULongLong() * bytesPerSector,
                           .writtenBytes = fields[9].toULongLong() * bytesPerSector});
    }
    return result;
}

void LinuxMachineDetails::addSensor(const QString& name, const QString& file) {
    Sensor sensor{name, KernelFile(QFile::encodeName(file).toStdString())};
    if (sensor.millidegrees.isOpen())
        m_sensors.push_back(std::move(sensor));
}

void LinuxMachineDetails::findSensors() {
    m_hasLooked = true;
    const QDir monitors(m_root + QStringLiteral("/sys/class/hwmon"));
    for (const QString& monitor : monitors.entryList({QStringLiteral("hwmon*")}, QDir::Dirs)) {
        const QDir folder(monitors.filePath(monitor));
        const QString chip = firstLine(folder.filePath(QStringLiteral("name")));
        for (const QString& input : folder.entryList({QStringLiteral("temp*_input")}, QDir::Files)) {
            const QString stem = input.section(u'_', 0, 0);
            const QString label = firstLine(folder.filePath(stem + QStringLiteral("_label")));
            addSensor(chip + u' ' + (label.isEmpty() ? stem : label), folder.filePath(input));
        }
    }
    if (!m_sensors.empty())
        return;
    const QDir zones(m_root + QStringLiteral("/sys/class/thermal"));
    for (const QString& zone : zones.entryList({QStringLiteral("thermal_zone*")}, QDir::Dirs)) {
        const QDir folder(zones.filePath(zone));
        addSensor(firstLine(folder.filePath(QStringLiteral("type"))),
                  folder.filePath(QStringLiteral("temp")));
    }
}

QList<HeatSensor> LinuxMachineDetails::sensors() {
    if (!m_hasLooked)
        findSensors();
    QList<HeatSensor> result;
    for (const Sensor& sensor : m_sensors) {
        std::array<char, 32> buffer;
        auto text = sensor.millidegrees.read(buffer);
        if (const auto millidegrees = takeSignedNumber(text))
            result.append({.name = sensor.name, .celsius = static_cast<double>(*millidegrees) / 1000});
    }
    return result;
}

QList<MountedVolume> LinuxMachineDetails::volumes() const {
    QHash<QByteArray, QString> places; // by device
    QList<QByteArray> devices;
    for (const QByteArray& line : textOf(path(QStringLiteral("proc/self/mounts"))).split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 3 || !fields[0].startsWith("/dev/") || fields[0].startsWith("/dev/loop"))
            continue;
        const QString place = unescapedMountField(fields[1]);
        if (!places.contains(fields[0]))
            devices.append(fields[0]);
        else if (places[fields[0]].size() <= place.size())
            continue;
        places[fields[0]] = place;
    }
    QList<MountedVolume> result;
    for (const QByteArray& device : std::as_const(devices)) {
        struct statvfs volume;
        const QString place = places[device];
        if (statvfs(QFile::encodeName(place).constData(), &volume) == 0 && volume.f_blocks > 0)
            result.append({.place = place,
                           .totalBytes = volume.f_blocks * volume.f_frsize,
                           .freeBytes = volume.f_bavail * volume.f_frsize});
    }
    return result;
}

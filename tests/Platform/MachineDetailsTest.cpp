#include "Platform/Linux/LinuxMachineDetails.h"

#include "support/TemporaryFolder.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/statvfs.h>

using namespace Qt::StringLiterals;

TEST(MachineDetails, ReadsTheTablesOfTheKernel) {
    TemporaryFolder root;
    root.makeFile(u"proc/diskstats"_s,
                  "   8 0 sda 10 0 200 5 20 0 400 9 0 1 1\n   8 1 sda1 1 0 2 3 4 5 6 7 8 9 10\n"
                  "   7 0 loop0 1 0 2 3 4 5 6 7 8 9 10\nbroken\n");
    root.makeFolder(u"sys/block/sda/device"_s);
    root.makeFolder(u"sys/block/loop0"_s);
    root.makeFile(u"sys/class/hwmon/hwmon0/name"_s, "coretemp\n");
    root.makeFile(u"sys/class/hwmon/hwmon0/temp1_input"_s, "61500\n");
    root.makeFile(u"sys/class/hwmon/hwmon0/temp1_label"_s, "Core 0\n");
    root.makeFile(u"sys/class/hwmon/hwmon0/temp2_input"_s, "-4000\n");
    LinuxMachineDetails details(root.path());
    EXPECT_EQ(details.disks(),
              (QList<DiskTraffic>{{.device = u"sda"_s, .readBytes = 102400, .writtenBytes = 204800}}));
    EXPECT_EQ(details.sensors(), (QList<HeatSensor>{{.name = u"coretemp Core 0"_s, .celsius = 61.5},
                                                    {.name = u"coretemp temp2"_s, .celsius = -4}}));
}

TEST(MachineDetails, ZonesStandInForSensorsAndWhatIsMissingIsEmpty) {
    TemporaryFolder root;
    root.makeFile(u"sys/class/thermal/thermal_zone0/type"_s, "acpitz\n");
    root.makeFile(u"sys/class/thermal/thermal_zone0/temp"_s, "40000\n");
    LinuxMachineDetails details(root.path());
    EXPECT_EQ(details.sensors(), (QList<HeatSensor>{{.name = u"acpitz"_s, .celsius = 40}}));
    EXPECT_TRUE(details.disks().isEmpty() && details.volumes().isEmpty());
}

TEST(MachineDetails, AVolumeIsListedOnceAtItsShortestPlace) {
    TemporaryFolder root;
    const QByteArray there = root.makeFolder(u"a b"_s).toUtf8().replace(' ', "\\040");
    const QByteArray inner = root.makeFolder(u"a b/inner"_s).toUtf8().replace(' ', "\\040");
    root.makeFile(u"proc/self/mounts"_s, "/dev/sda1 " + inner + " ext4 rw 0 0\n/dev/sda1 " + there +
                                             " ext4 rw 0 0\n/dev/loop3 /snap squashfs ro 0 0\n"
                                             "tmpfs /run tmpfs rw 0 0\n/dev/sdb1 /not/there ext4 rw 0 0\n");
    const QList<MountedVolume> volumes = LinuxMachineDetails(root.path()).volumes();
    ASSERT_EQ(volumes.size(), 1);
    EXPECT_EQ(volumes[0].place, root.path(u"a b"_s));
    struct statvfs space;
    ASSERT_EQ(statvfs(QFile::encodeName(volumes[0].place), &space), 0);
    EXPECT_EQ(volumes[0].totalBytes, quint64(space.f_blocks) * space.f_frsize);
}

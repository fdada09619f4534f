#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/MemoryKills.h"

#include <QDBusConnection>

#include <memory>

class ToolRunner;

/// Counts the kernel's kills in /proc/vmstat, reads the journal for their names, and hears systemd-oomd.
class LinuxMemoryKills : public MemoryKills {
    Q_OBJECT

public:
    explicit LinuxMemoryKills(std::shared_ptr<ToolRunner> tools,
                              const QDBusConnection& bus = QDBusConnection::systemBus(),
                              const QString& root = {});

    std::optional<quint64> count() override;
    QCoro::Task<QList<RecordedKill>> since(std::chrono::system_clock::time_point time) override;

    /// Reads the kills from lines of the journal: the kernel's and those of earlyoom.
    static QList<RecordedKill> parse(const QString& journal);

private Q_SLOTS:
    void onKilled(const QString& group, const QString& reason);

private:
    std::shared_ptr<ToolRunner> m_tools;
    KernelFile m_vmstat;
    KernelFile
        m_groupEvents; ///< of this program's control group, where the kernel's own figures are not readable
};

#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/Pressure.h"

#include <QList>
#include <QString>

/// Reads the kernel's pressure files (PSI), and has it call where it lets an ordinary user ask for that
/// (since Linux 6.5). A container without them may have those of the user's manager.
class LinuxPressure : public Pressure {
public:
    /// `root` has the folders proc and sys, without a slash at the end.
    explicit LinuxPressure(const QString& root = {});
    ~LinuxPressure() override;

    std::optional<PressureLevel> memory() override { return levelIn(m_memory); }
    std::optional<PressureLevel> disk() override { return levelIn(m_disk); }

    /// Parses a pressure file.
    static std::optional<PressureLevel> level(std::string_view text);

private:
    static std::optional<PressureLevel> levelIn(const KernelFile& file);
    void callOn(const QString& path, Stall stall);

    KernelFile m_memory;
    KernelFile m_disk;
    QList<int> m_triggers; ///< descriptors
};

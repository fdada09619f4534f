#pragma once

#include "Platform/Relief.h"

#include <memory>

class ToolRunner;

/// Relief through separate programs, installed with this one: reclaiming is not charged to this program,
/// dropping caches needs root, and quitting waits for the application.
class LinuxRelief : public Relief {
public:
    explicit LinuxRelief(std::shared_ptr<ToolRunner> tools);

    QCoro::Task<Outcome> quitApplication(QString name, bool force) override;
    QCoro::Task<Outcome> reclaimMemory() override;
    QCoro::Task<Outcome> dropCaches(std::stop_token stop) override;

    /// Returns the script that asks an application to quit.
    static QString quitScript(const QString& name, bool force);

private:
    std::shared_ptr<ToolRunner> m_tools;
};

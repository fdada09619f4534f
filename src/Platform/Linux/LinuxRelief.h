#pragma once

#include "Platform/Relief.h"

#include <memory>

class ToolRunner;

/// Relief through programs of its own, which this program installs with itself: reclaiming must not be
/// charged to it, dropping caches is root's, and quitting may wait long for an application.
class LinuxRelief : public Relief {
public:
    explicit LinuxRelief(std::shared_ptr<ToolRunner> tools);

    QCoro::Task<Outcome> quitApplication(QString name, bool force) override;
    QCoro::Task<Outcome> reclaimMemory() override;
    QCoro::Task<Outcome> dropCaches() override;

    /// The line of the script language that asks an application to quit.
    static QString quitScript(const QString& name, bool force);

private:
    std::shared_ptr<ToolRunner> m_tools;
};

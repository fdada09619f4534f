#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

class FreedesktopProgramService;

/// The interface of the figures. A figure that is not known yet is 0.
class MonitorAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.example.tavrin.Monitor")
    Q_PROPERTY(QString Version READ version)
    Q_PROPERTY(double CpuPercent READ cpuPercent)
    Q_PROPERTY(qulonglong MemoryUsedBytes READ memoryUsedBytes)
    Q_PROPERTY(qulonglong MemoryTotalBytes READ memoryTotalBytes)
    Q_PROPERTY(qulonglong SwapUsedBytes READ swapUsedBytes)
    Q_PROPERTY(qulonglong SwapTotalBytes READ swapTotalBytes)
    Q_PROPERTY(qulonglong DiskFreeBytes READ diskFreeBytes)
    Q_PROPERTY(qulonglong DiskTotalBytes READ diskTotalBytes)
    Q_PROPERTY(QString ThermalState READ thermalState)
    Q_PROPERTY(uint ProcessCount READ processCount)
    Q_PROPERTY(uint AlertCount READ alertCount)
    Q_PROPERTY(QString Alerts READ alerts)

public:
    explicit MonitorAdaptor(FreedesktopProgramService* service);

    QString version() const;
    double cpuPercent() const;
    qulonglong memoryUsedBytes() const;
    qulonglong memoryTotalBytes() const;
    qulonglong swapUsedBytes() const;
    qulonglong swapTotalBytes() const;
    qulonglong diskFreeBytes() const;
    qulonglong diskTotalBytes() const;
    QString thermalState() const;
    uint processCount() const;
    uint alertCount() const;
    QString alerts() const;

public Q_SLOTS:
    /// Returns a document, see docs/cli.md.
    QString Report(const QString& kind, const QDBusMessage& message);
    /// Brings a section or a dialog forward.
    void Show(const QString& name, const QDBusMessage& message);

private:
    FreedesktopProgramService& m_service;
};

/// The interface by which a desktop starts a program and its actions.
class ApplicationAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(FreedesktopProgramService* service);

public Q_SLOTS:
    void Activate(const QVariantMap& platform_data);
    void Open(const QStringList& uris, const QVariantMap& platform_data);
    void ActivateAction(const QString& action_name, const QVariantList& parameter,
                        const QVariantMap& platform_data);

private:
    void show(const QString& name, const QVariantMap& platformData);

    FreedesktopProgramService& m_service;
};

#include "Platform/Freedesktop/BusAdaptors.h"

#include "Platform/Freedesktop/FreedesktopProgramService.h"
#include "Platform/Unix/ActivationToken.h"

using namespace Qt::StringLiterals;

MonitorAdaptor::MonitorAdaptor(FreedesktopProgramService* service)
    : QDBusAbstractAdaptor(service)
    , m_service(*service) {}

QString MonitorAdaptor::version() const {
    return m_service.figure(u"Version"_s).toString();
}

double MonitorAdaptor::cpuPercent() const {
    return m_service.figure(u"CpuPercent"_s).toDouble();
}

qulonglong MonitorAdaptor::memoryUsedBytes() const {
    return m_service.figure(u"MemoryUsedBytes"_s).toULongLong();
}

qulonglong MonitorAdaptor::memoryTotalBytes() const {
    return m_service.figure(u"MemoryTotalBytes"_s).toULongLong();
}

qulonglong MonitorAdaptor::swapUsedBytes() const {
    return m_service.figure(u"SwapUsedBytes"_s).toULongLong();
}

qulonglong MonitorAdaptor::swapTotalBytes() const {
    return m_service.figure(u"SwapTotalBytes"_s).toULongLong();
}

qulonglong MonitorAdaptor::diskFreeBytes() const {
    return m_service.figure(u"DiskFreeBytes"_s).toULongLong();
}

qulonglong MonitorAdaptor::diskTotalBytes() const {
    return m_service.figure(u"DiskTotalBytes"_s).toULongLong();
}

QString MonitorAdaptor::thermalState() const {
    return m_service.figure(u"ThermalState"_s).toString();
}

uint MonitorAdaptor::processCount() const {
    return m_service.figure(u"ProcessCount"_s).toUInt();
}

uint MonitorAdaptor::alertCount() const {
    return m_service.figure(u"AlertCount"_s).toUInt();
}

QString MonitorAdaptor::alerts() const {
    return m_service.figure(u"Alerts"_s).toString();
}

QString MonitorAdaptor::Report(const QString& kind, const QDBusMessage& message) {
    const QByteArray document = m_service.answers().report(kind);
    if (document.isEmpty())
        m_service.refuse(message, u"There is no document of this kind."_s);
    return QString::fromUtf8(document);
}

void MonitorAdaptor::Show(const QString& name, const QDBusMessage& message) {
    if (name.isEmpty() || !m_service.answers().show(name))
        m_service.refuse(message, u"There is no section or dialog of this name."_s);
}

ApplicationAdaptor::ApplicationAdaptor(FreedesktopProgramService* service)
    : QDBusAbstractAdaptor(service)
    , m_service(*service) {}

void ApplicationAdaptor::Activate(const QVariantMap& platform_data) {
    show({}, platform_data);
}

void ApplicationAdaptor::Open(const QStringList&, const QVariantMap& platform_data) {
    show({}, platform_data);
}

void ApplicationAdaptor::ActivateAction(const QString& action_name, const QVariantList&,
                                        const QVariantMap& platform_data) {
    show(action_name, platform_data);
}

void ApplicationAdaptor::show(const QString& name, const QVariantMap& platformData) {
    const QByteArray token = platformData.value(u"activation-token"_s).toString().toUtf8();
    if (!token.isEmpty() && !token.contains('\0'))
        qputenv(activationTokenVariable, token);
    m_service.answers().show(name);
}

#include "Platform/Freedesktop/FreedesktopProgramService.h"

#include "Platform/Freedesktop/BusAdaptors.h"
#include "Platform/Freedesktop/BusName.h"
#include "Platform/Log.h"

#include <QDBusError>

using namespace Qt::StringLiterals;

FreedesktopProgramService::FreedesktopProgramService(const QDBusConnection& bus)
    : m_bus(bus) {
    new MonitorAdaptor(this);
    new ApplicationAdaptor(this);
}

FreedesktopProgramService::~FreedesktopProgramService() {
    if (!m_isStarted)
        return;
    m_bus.unregisterService(BusName::service);
    m_bus.unregisterObject(BusName::object);
}

/// The object comes before the name, because a call may wait for the name.
Outcome FreedesktopProgramService::start(Answers answers) {
    m_answers = std::move(answers);
    if (!m_bus.registerObject(BusName::object, this, QDBusConnection::ExportAdaptors))
        return Outcome::failure(u"no object on the bus: "_s + m_bus.lastError().name());
    m_isStarted = m_bus.registerService(BusName::service);
    if (m_isStarted)
        return Outcome::success();
    m_bus.unregisterObject(BusName::object);
    return Outcome::failure(u"the name on the bus is taken: "_s + m_bus.lastError().name());
}

void FreedesktopProgramService::publish(const QVariantMap& figures) {
    QVariantMap changed;
    for (const auto& [name, value] : figures.asKeyValueRange()) {
        if (m_figures.value(name) != value)
            changed.insert(name, value);
    }
    m_figures = figures;
    if (!m_isStarted || changed.isEmpty())
        return;
    QDBusMessage signal = QDBusMessage::createSignal(BusName::object, u"org.freedesktop.DBus.Properties"_s,
                                                     u"PropertiesChanged"_s);
    signal << BusName::interface << changed << QStringList();
    if (!m_bus.send(signal))
        qCInfo(Log::platform) << "figures were not sent:" << m_bus.lastError().name();
}

void FreedesktopProgramService::refuse(const QDBusMessage& call, const QString& why) {
    call.setDelayedReply(true);
    m_bus.send(call.createErrorReply(QDBusError::InvalidArgs, why));
}

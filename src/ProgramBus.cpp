#include "ProgramBus.h"

#include "AppModel.h"
#include "Core/Observable.h"
#include "Model/ModelReport.h"
#include "Platform/Log.h"

#include <QJsonValue>

using namespace Qt::StringLiterals;

namespace {

Report::Origin originOf(const AppModel& model) {
    return {.sampledAt = model.systemSample().timestamp,
            .isRunning = true,
            .hasCpu = model.systemHistory().size() > 1};
}

qulonglong bytesOf(const QJsonObject& status, const QString& key) {
    return static_cast<qulonglong>(status.value(key).toInteger());
}

/// Returns the figures of a status as docs/dbus.md names them.
QVariantMap figuresOf(const QJsonObject& status, const QJsonObject& alerts) {
    return {{u"Version"_s, QStringLiteral(TAVRIN_VERSION)},
            {u"CpuPercent"_s, status.value(u"cpu_percent"_s).toDouble()},
            {u"MemoryUsedBytes"_s, bytesOf(status, u"memory_used_bytes"_s)},
            {u"MemoryTotalBytes"_s, bytesOf(status, u"memory_total_bytes"_s)},
            {u"SwapUsedBytes"_s, bytesOf(status, u"swap_used_bytes"_s)},
            {u"SwapTotalBytes"_s, bytesOf(status, u"swap_total_bytes"_s)},
            {u"DiskFreeBytes"_s, bytesOf(status, u"disk_free_bytes"_s)},
            {u"DiskTotalBytes"_s, bytesOf(status, u"disk_total_bytes"_s)},
            {u"ThermalState"_s, status.value(u"thermal_state"_s).toString()},
            {u"ProcessCount"_s, static_cast<uint>(status.value(u"process_count"_s).toInt())},
            {u"AlertCount"_s, static_cast<uint>(status.value(u"alert_count"_s).toInt())},
            {u"Alerts"_s, QString::fromUtf8(Report::text(alerts))}};
}

} // namespace

ProgramBus::ProgramBus(AppModel& model, std::unique_ptr<ProgramService> service)
    : m_model(model)
    , m_service(std::move(service)) {}

ProgramBus::~ProgramBus() = default;

void ProgramBus::start() {
    publish();
    const Outcome started = m_service->start({.report = [this](const QString& kind) { return report(kind); },
                                              .show = [this](const QString& name) { return show(name); }});
    if (started.done)
        observe(&m_model, this, [this] { publish(); });
    else
        qCInfo(Log::platform) << "other programs get no figures:" << started.reason;
}

void ProgramBus::publish() {
    const Report::Origin origin = originOf(m_model);
    const QJsonObject status = ModelReport::of(m_model, Report::Kind::status, origin);
    // The list of alerts alone, so that it changes only with them.
    const QJsonObject alerts{{u"schema"_s, Report::schema}, {u"alerts"_s, status.value(u"alerts"_s)}};
    m_service->publish(figuresOf(status, alerts));
}

QByteArray ProgramBus::report(const QString& kind) const {
    const auto known = fromRawValue<Report::Kind>(kind);
    const QJsonObject document = known ? ModelReport::of(m_model, *known, originOf(m_model)) : QJsonObject();
    return document.isEmpty() ? QByteArray() : Report::text(document);
}

bool ProgramBus::show(const QString& name) {
    const auto place = fromRawValue<Destination>(name);
    if (!place && !name.isEmpty())
        return false;
    QMetaObject::invokeMethod(
        this, [this, place] { Q_EMIT asked({.place = place}); }, Qt::QueuedConnection);
    return true;
}

#pragma once

#include "Platform/ProgramService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

/// The service `org.example.tavrin` on the session bus: the figures, and `org.freedesktop.Application`, by
/// which the desktop starts the program and its actions.
class FreedesktopProgramService : public QObject, public ProgramService {
    Q_OBJECT

public:
    explicit FreedesktopProgramService(const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~FreedesktopProgramService() override;

    Outcome start(Answers answers) override;
    void publish(const QVariantMap& figures) override;

    const Answers& answers() const { return m_answers; }
    /// Answers a call with an error.
    void refuse(const QDBusMessage& call, const QString& why);
    QVariant figure(const QString& name) const { return m_figures.value(name); }

private:
    QDBusConnection m_bus;
    Answers m_answers;
    QVariantMap m_figures;
    bool m_isStarted = false;
};

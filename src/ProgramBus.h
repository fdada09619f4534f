#pragma once

#include "LaunchOptions.h"
#include "Platform/ProgramService.h"

#include <QObject>

#include <memory>

class AppModel;

/// Publishes the model to other programs of the user, and passes on what they ask to see.
class ProgramBus : public QObject {
    Q_OBJECT

public:
    /// `model` outlives the bus.
    ProgramBus(AppModel& model, std::unique_ptr<ProgramService> service);
    ~ProgramBus() override;

    /// Does nothing where programs cannot reach each other.
    void start();

Q_SIGNALS:
    /// Emitted after the program that asked has its answer.
    void asked(const LaunchOptions& options);

private:
    void publish();
    QByteArray report(const QString& kind) const;
    bool show(const QString& name);

    AppModel& m_model;
    std::unique_ptr<ProgramService> m_service;
};

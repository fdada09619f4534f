#pragma once

#include "Platform/Desktop/FileChooser.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

class QDBusPendingCall;

/// One dialog of the portal, from the question whether there is one to its answer. It deletes itself then.
class PortalFileDialog : public QObject {
    Q_OBJECT

public:
    PortalFileDialog(const QDBusConnection& bus, QWidget* over, FileChoice choice,
                     FileChooser::Answered answered, std::function<void()> missing, int callTimeoutMs);
    /// Closes a dialog that is still open.
    ~PortalFileDialog() override;

    void start();

private Q_SLOTS:
    void responded(uint response, const QVariantMap& results);

private:
    void call(const QString& interface, const QString& method, const QVariantList& arguments,
              std::function<void(const QDBusPendingCall&)> then);
    void open();
    QVariantMap options() const;
    bool follow(const QString& request);
    void giveUp(const QString& reason);
    void finish();

    QDBusConnection m_bus;
    FileChoice m_choice;
    FileChooser::Answered m_answered;
    std::function<void()> m_missing;
    int m_callTimeoutMs;
    QString m_token;
    QString m_request; ///< the dialog's object on the bus, empty while none is open
    QString m_parent;  ///< the window that it stands above, as the portal takes it
};

/// The file dialogs of `org.freedesktop.portal.FileChooser`, which are the desktop's own.
class PortalFileChooser : public FileChooser {
public:
    explicit PortalFileChooser(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                               int callTimeoutMs = 5000)
        : m_bus(bus)
        , m_callTimeoutMs(callTimeoutMs) {}

    void ask(QWidget* over, const FileChoice& choice, Answered answered,
             std::function<void()> missing) override;

private:
    QDBusConnection m_bus;
    int m_callTimeoutMs;
};

#pragma once

#include <QObject>

class QLocalServer;
class QLocalSocket;

/// At most one running program per user and display. The first listens on a socket in the user's runtime
/// folder; a later one finds it, asks it to come forward, and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// `display` tells screens of the same user apart.
    explicit SingleInstance(const QString& display, QObject* parent = nullptr);

    /// True when this program is the first. Where no socket can be made every program counts as first.
    bool claim();

Q_SIGNALS:
    /// Somebody tried to start the program again.
    void startedAgain();

private:
    bool askRunningOne() const;
    void hearOut(QLocalSocket* caller);

    QString m_socket;
    QLocalServer* m_server;
};

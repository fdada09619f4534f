#pragma once

#include <QObject>

class QLocalServer;
class QLocalSocket;

/// Allows one running program per user and display. The first listens on a socket in the user's runtime
/// folder; a later one asks it to come forward and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const QString& display, QObject* parent = nullptr);

    /// Returns true when this program is the first or no socket can be made.
    bool claim();

Q_SIGNALS:
    /// Emitted when the program was started again.
    void startedAgain();

private:
    bool notifyRunning() const;
    void readToken(QLocalSocket* caller);

    QString m_socket;
    QLocalServer* m_server;
};

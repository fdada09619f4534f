#pragma once

#include <QByteArray>
#include <QObject>

class MessageSocket;

/// Allows one running program per user and display. The first listens on a socket in the user's runtime
/// folder; a later one asks it to come forward and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const QString& display, QObject* parent = nullptr);

    /// Returns true when this program is the first or no socket can be made. The first gets the request of a
    /// later one, at most 1,000 bytes.
    bool claim(const QByteArray& request = {});

Q_SIGNALS:
    /// Emitted when the program was started again.
    void startedAgain(const QByteArray& request);

private:
    void readCall(const QByteArray& call);

    MessageSocket* m_socket;
};

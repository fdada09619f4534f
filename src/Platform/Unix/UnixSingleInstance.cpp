#include "Platform/SingleInstance.h"

#include "Platform/Log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <unistd.h>

namespace {

constexpr int replyTimeoutMs = 1000;
constexpr qint64 maxCallBytes = 4096; // a request, a zero byte and a token

/// A Wayland launcher's token for taking the keyboard once, read by Qt when a window comes forward. The
/// second start passes it to the first, whose window is to come.
constexpr const char* activationToken = "XDG_ACTIVATION_TOKEN";

/// Falls back to the user's cache where $XDG_RUNTIME_DIR is another user's, as after su(1), and Qt's own
/// substitute in the temporary folder is taken.
QString runtimeFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!folder.isEmpty())
        return folder;
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(cache);
    return cache;
}

/// Uses a digest because displays contain slashes and socket paths are short.
QString socketPath(const QString& display) {
    const QByteArray digest = QCryptographicHash::hash(display.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("%1/tavrin-%2-%3.socket")
        .arg(runtimeFolder())
        .arg(getuid())
        .arg(QString::fromLatin1(digest.left(16)));
}

} // namespace

SingleInstance::SingleInstance(const QString& display, QObject* parent)
    : QObject(parent)
    , m_socket(socketPath(display))
    , m_server(new QLocalServer(this)) {
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server->nextPendingConnection()) {
            connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
            connect(caller, &QLocalSocket::disconnected, this, [this, caller] { readCall(caller); });
        }
    });
}

void SingleInstance::readCall(QLocalSocket* caller) {
    const QByteArray call = caller->read(maxCallBytes);
    const qsizetype end = call.indexOf('\0');
    const QByteArray token = end < 0 ? QByteArray() : call.mid(end + 1);
    if (!token.isEmpty())
        qputenv(activationToken, token);
    Q_EMIT startedAgain(call.left(end));
}

bool SingleInstance::claim(const QByteArray& request) {
    // Programs that start together, as at login, take turns.
    QLockFile turn(m_socket + QStringLiteral(".lock"));
    static_cast<void>(turn.tryLock(replyTimeoutMs));
    // Before listening, which would take the socket over from the running program.
    if (notifyRunning(request))
        return false;
    QLocalServer::removeServer(m_socket);
    if (!m_server->listen(m_socket))
        qCWarning(Log::platform) << "a second start will not be noticed:" << m_server->serverError();
    return true;
}

bool SingleInstance::notifyRunning(const QByteArray& request) const {
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    if (!socket.waitForConnected(replyTimeoutMs))
        return false;
    socket.write(request + '\0' + qgetenv(activationToken));
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(replyTimeoutMs);
    return true;
}

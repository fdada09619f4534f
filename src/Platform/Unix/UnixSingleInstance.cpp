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

constexpr int answerMs = 1000;
constexpr qint64 maxTokenBytes = 1024;

/// What a Wayland launcher gives the program that it starts: the right to take the keyboard, once. Qt looks
/// for it when a window is to come forward. It was given for the second start, but the first one's window is
/// to come.
constexpr const char* activationToken = "XDG_ACTIVATION_TOKEN";

/// Qt finds none where $XDG_RUNTIME_DIR is another user's, as after su(1), and the one that it would then
/// make in the temporary folder is taken: the user's own cache serves as well.
QString runtimeFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!folder.isEmpty())
        return folder;
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(cache);
    return cache;
}

/// Displays may hold slashes; a digest is a file name of fixed length, which socket paths need.
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
            connect(caller, &QLocalSocket::disconnected, this, [this, caller] { hearOut(caller); });
        }
    });
}

void SingleInstance::hearOut(QLocalSocket* caller) {
    const QByteArray token = caller->read(maxTokenBytes);
    if (!token.isEmpty())
        qputenv(activationToken, token);
    Q_EMIT startedAgain();
}

bool SingleInstance::claim() {
    // Two that start together, as at login, ask one after the other.
    QLockFile turn(m_socket + QStringLiteral(".lock"));
    static_cast<void>(turn.tryLock(answerMs));
    // Asked first, because listening would take the socket over from the program that has it.
    if (askRunningOne())
        return false;
    QLocalServer::removeServer(m_socket);
    if (!m_server->listen(m_socket))
        qCWarning(Log::platform) << "a second start will not be noticed:" << m_server->serverError();
    return true;
}

bool SingleInstance::askRunningOne() const {
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    if (!socket.waitForConnected(answerMs))
        return false;
    socket.write(qgetenv(activationToken));
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState)
        socket.waitForDisconnected(answerMs);
    return true;
}

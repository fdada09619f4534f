#include "Platform/SingleInstance.h"

#include "Platform/Log.h"
#include "Platform/Unix/ActivationToken.h"
#include "Platform/Unix/MessageSocket.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include <unistd.h>

namespace {

constexpr int replyTimeoutMs = 1000;

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
        .arg(runtimeFolder(), QString::number(getuid()), QString::fromLatin1(digest.left(16)));
}

} // namespace

SingleInstance::SingleInstance(const QString& display, QObject* parent)
    : QObject(parent)
    , m_socket(new MessageSocket(socketPath(display), this)) {
    connect(m_socket, &MessageSocket::received, this, &SingleInstance::readCall);
}

void SingleInstance::readCall(const QByteArray& call) {
    const qsizetype end = call.indexOf('\0');
    const QByteArray token = end < 0 ? QByteArray() : call.mid(end + 1);
    if (!token.isEmpty())
        qputenv(activationTokenVariable, token);
    Q_EMIT startedAgain(call.left(end));
}

bool SingleInstance::claim(const QByteArray& request) {
    // Programs that start together, as at login, take turns.
    QLockFile turn(m_socket->path() + QStringLiteral(".lock"));
    static_cast<void>(turn.tryLock(replyTimeoutMs));
    // Before listening, which would take the socket over from the running program. That one's window is to
    // come, so it gets the token.
    if (MessageSocket::send(m_socket->path(), request + '\0' + qgetenv(activationTokenVariable)))
        return false;
    if (!m_socket->listen())
        qCWarning(Log::platform) << "a second start will not be noticed:" << qt_error_string();
    return true;
}

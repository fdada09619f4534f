#include "Platform/Unix/MessageSocket.h"

#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

int openSocket() {
    return socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// Returns an empty optional for a path that is too long.
std::optional<sockaddr_un> addressOf(const QString& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    if (name.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return std::nullopt;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    return address;
}

template <typename Call> bool callWith(const sockaddr_un& address, int descriptor, Call call) {
    return call(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

} // namespace

MessageSocket::MessageSocket(QString path, QObject* parent)
    : QObject(parent)
    , m_path(std::move(path)) {}

MessageSocket::~MessageSocket() {
    if (m_descriptor < 0)
        return;
    unlink(QFile::encodeName(m_path).constData());
    close(m_descriptor);
}

bool MessageSocket::listen() {
    const std::optional<sockaddr_un> address = addressOf(m_path);
    if (!address) {
        errno = ENAMETOOLONG;
        return false;
    }
    m_descriptor = openSocket();
    if (m_descriptor < 0)
        return false;
    unlink(address->sun_path);
    // The mode of the descriptor becomes that of the socket in the file system (unix(7) of Linux).
    if (fchmod(m_descriptor, S_IRUSR | S_IWUSR) != 0 || !callWith(*address, m_descriptor, ::bind)) {
        const int error = errno;
        close(std::exchange(m_descriptor, -1));
        errno = error;
        return false;
    }
    auto* arrivals = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
    connect(arrivals, &QSocketNotifier::activated, this, &MessageSocket::receive);
    return true;
}

void MessageSocket::receive() {
    QByteArray message(maxMessageBytes, Qt::Uninitialized);
    const ssize_t size = recv(m_descriptor, message.data(), maxMessageBytes, 0);
    if (size < 0)
        return;
    message.truncate(size);
    Q_EMIT received(message);
}

bool MessageSocket::send(const QString& path, const QByteArray& message) {
    const std::optional<sockaddr_un> address = addressOf(path);
    const int descriptor = address ? openSocket() : -1;
    if (descriptor < 0)
        return false;
    const bool isHeard = callWith(*address, descriptor, ::connect);
    if (isHeard)
        static_cast<void>(
            ::send(descriptor, message.constData(), static_cast<std::size_t>(message.size()), 0));
    close(descriptor);
    return isHeard;
}

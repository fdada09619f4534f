#include "Platform/Unix/UnixTerminal.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <system_error>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr qsizetype maxLineBytes = 1 << 20;

/// Returns 0, or the error.
int writeAll(int descriptor, QByteArrayView text) {
    while (!text.isEmpty()) {
        const ssize_t written = ::write(descriptor, text.data(), static_cast<size_t>(text.size()));
        if (written < 0 && errno != EINTR)
            return errno;
        text = text.sliced(std::max<ssize_t>(written, 0));
    }
    return 0;
}

} // namespace

UnixTerminal::UnixTerminal() {
    std::signal(SIGPIPE, SIG_IGN);
}

UnixTerminal::~UnixTerminal() = default;

Outcome UnixTerminal::write(const QByteArray& text) {
    const int error = writeAll(STDOUT_FILENO, text);
    if (error == 0)
        return Outcome::success();
    return Outcome::failure(error == EPIPE ? QString()
                                           : QString::fromStdString(std::generic_category().message(error)));
}

void UnixTerminal::writeError(const QByteArray& text) {
    writeAll(STDERR_FILENO, text);
}

std::optional<int> UnixTerminal::width() const {
    winsize size{};
    if (isatty(STDOUT_FILENO) != 1)
        return std::nullopt;
    constexpr int usual = 80;
    const bool isKnown = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : usual;
}

bool UnixTerminal::canAsk() const {
    return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
}

QByteArray UnixTerminal::readLine() {
    QByteArray line;
    char character = 0;
    while (line.size() < maxLineBytes) {
        const ssize_t count = ::read(STDIN_FILENO, &character, 1);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0 || character == '\n')
            break;
        line += character;
    }
    return line;
}

void UnixTerminal::listen() {
    m_input = std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read);
    connect(m_input.get(), &QSocketNotifier::activated, this, &UnixTerminal::readInput);
}

void UnixTerminal::readInput() {
    std::array<char, 65536> buffer;
    const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count > 0) {
        takeLines(QByteArray(buffer.data(), count));
        return;
    }
    m_input->setEnabled(false);
    if (!m_line.isEmpty())
        takeLines("\n");
    Q_EMIT inputEnded();
}

void UnixTerminal::takeLines(QByteArray input) {
    for (qsizetype end = input.indexOf('\n'); end >= 0; end = input.indexOf('\n')) {
        const QByteArray line = m_isTooLong ? QByteArray() : m_line + input.left(end);
        m_line.clear();
        m_isTooLong = false;
        input.remove(0, end + 1);
        Q_EMIT lineRead(line.size() > maxLineBytes ? QByteArray() : line);
    }
    m_isTooLong |= m_line.size() + input.size() > maxLineBytes;
    m_line = m_isTooLong ? QByteArray(1, ' ') : m_line + input;
}

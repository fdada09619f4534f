#include "Core/Sessions/SessionFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>

#include <cmath>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxBytes = 64 << 10;
constexpr qsizetype maxTextLength = 200;

QString textIn(const QJsonObject& object, QLatin1StringView key) {
    return object.value(key).toString().left(maxTextLength);
}

/// Returns a number that is written as such or as a text.
std::optional<quint64> numberIn(const QJsonObject& object, QLatin1StringView key) {
    const QJsonValue value = object.value(key);
    if (value.isDouble() && value.toDouble() >= 0 && value.toDouble() < 9e15)
        return static_cast<quint64>(value.toDouble());
    bool isNumber = false;
    const quint64 number = value.toString().toULongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<SessionState> stateIn(const QJsonObject& object) {
    const QString status = textIn(object, "status"_L1);
    if (status == "busy"_L1 || status == "shell"_L1)
        return SessionState::working;
    if (status == "idle"_L1)
        return SessionState::idle;
    if (status == "waiting"_L1)
        return SessionState::waiting;
    return std::nullopt;
}

std::optional<Instant> timeIn(const QJsonObject& object, Instant now) {
    const auto milliseconds = numberIn(object, "statusUpdatedAt"_L1);
    const auto either = milliseconds ? milliseconds : numberIn(object, "updatedAt"_L1);
    const auto latest = std::chrono::floor<std::chrono::milliseconds>(now.time_since_epoch()).count();
    if (!either || latest < 0 || *either > static_cast<quint64>(latest)) // in nanoseconds it may be too large
        return std::nullopt;
    return Instant{std::chrono::milliseconds(static_cast<qint64>(*either))};
}

} // namespace

std::optional<SessionFile::Content> SessionFile::parse(const QByteArray& text, qint32 pid, quint64 startTicks,
                                                       Instant now) {
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    if (numberIn(object, "pid"_L1) != static_cast<quint64>(pid) ||
        numberIn(object, "procStart"_L1) != startTicks)
        return std::nullopt;
    const QString folder = object.value("cwd"_L1).toString();
    return Content{.id = textIn(object, "sessionId"_L1),
                   .folder = QDir::isAbsolutePath(folder) ? QDir::cleanPath(folder) : QString(),
                   .name = textIn(object, "name"_L1),
                   .version = textIn(object, "version"_L1),
                   .state = stateIn(object),
                   .waitingFor = textIn(object, "waitingFor"_L1),
                   .changed = timeIn(object, now)};
}

const std::optional<SessionFile::Content>& SessionFile::refresh(const QByteArray& path, qint32 pid,
                                                                quint64 startTicks, Instant now) {
    struct stat status {};
    if (lstat(path.constData(), &status) != 0) {
        m_version = {};
        m_content.reset();
        return m_content;
    }
    if (FileVersion::of(status) == m_version)
        return m_content;
    m_version = {}; // until it is read
    m_content.reset();
    // A named pipe or a device put there would block; the status of the open file counts.
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return m_content;
    const auto closing = qScopeGuard([descriptor] { close(descriptor); });
    if (fstat(descriptor, &status) != 0)
        return m_content;
    m_version = FileVersion::of(status);
    if (!S_ISREG(status.st_mode) || status.st_size > maxBytes)
        return m_content;
    QByteArray text(static_cast<qsizetype>(maxBytes), Qt::Uninitialized);
    const ssize_t length = read(descriptor, text.data(), static_cast<std::size_t>(text.size()));
    text.truncate(std::max<qsizetype>(length, 0));
    m_content = parse(text, pid, startTicks, now);
    return m_content;
}

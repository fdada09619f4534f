#include "Core/Mcp/ServerFile.h"

#include "Core/Log.h"

#include <QElapsedTimer>
#include <QPromise>
#include <QScopeGuard>
#include <QThreadPool>

#include <array>
#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 maxBytesAtOnce = 64 << 10;

/// The bytes of an open file, a block at a time. It ends early at an error, and once `isUnwanted` says so.
class FileStream : public std::streambuf {
public:
    FileStream(int descriptor, std::function<bool()> isUnwanted)
        : m_descriptor(descriptor)
        , m_isUnwanted(std::move(isUnwanted)) {}

protected:
    int_type underflow() override {
        if (m_isUnwanted && m_isUnwanted())
            return traits_type::eof();
        ssize_t count = 0;
        do {
            count = ::read(m_descriptor, m_block.data(), m_block.size());
        } while (count < 0 && errno == EINTR);
        if (count <= 0)
            return traits_type::eof();
        setg(m_block.data(), m_block.data(), m_block.data() + count);
        return traits_type::to_int_type(*gptr());
    }

private:
    int m_descriptor;
    std::function<bool()> m_isUnwanted;
    std::array<char, 16 << 10> m_block;
};

} // namespace

ServerFile::ServerFile(QByteArray path, Read read)
    : m_path(std::move(path))
    , m_read(std::move(read)) {}

ServerFile::~ServerFile() {
    stopReading();
}

bool ServerFile::refresh(QThreadPool& pool) {
    struct stat status {};
    if (stat(m_path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return forget();
    if (m_reading.isValid() && !m_reading.isFinished())
        return false;
    const bool isChanged = m_reading.isValid() && takeOver(m_reading.takeResult());
    if (FileVersion::of(status) == m_version)
        return isChanged;
    if (status.st_size <= maxBytesAtOnce)
        return takeOver(readFile(m_path, m_read)) || isChanged;
    if (m_rest.hasExpired())
        startReading(pool);
    return isChanged;
}

bool ServerFile::takeOver(Reading reading) {
    // A large file that changes all the time is read half of the time at most.
    m_rest.setRemainingTime(reading.duration);
    if (reading.isTorn)
        return false;
    m_isUnknown = reading.isUnreadable;
    m_version = reading.version;
    if (reading.servers == m_servers)
        return false;
    m_servers = std::move(reading.servers);
    return true;
}

bool ServerFile::forget() {
    stopReading();
    return takeOver({});
}

void ServerFile::stopReading() {
    if (m_reading.isValid())
        m_reading.cancel();
    m_reading = {};
}

void ServerFile::startReading(QThreadPool& pool) {
    const auto promise = std::make_shared<QPromise<Reading>>();
    promise->start();
    m_reading = promise->future();
    pool.start([promise, path = m_path, read = m_read] {
        promise->addResult(readFile(path, read, [&promise] { return promise->isCanceled(); }));
        promise->finish();
#ifdef __GLIBC__
        malloc_trim(0); // else this thread keeps the memory that a large document needed
#endif
    });
}

ServerFile::Reading ServerFile::readFile(const QByteArray& path, const Read& read,
                                         const std::function<bool()>& isUnwanted) {
    QElapsedTimer timer;
    timer.start();
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        qCWarning(Log::mcp) << "a configuration cannot be read:" << qt_error_string(errno);
        qCDebug(Log::mcp) << path;
        Reading refused;
        refused.isUnreadable = true;
        return refused;
    }
    const auto closing = qScopeGuard([descriptor] { close(descriptor); });
    // The status of the open file: the path may lead to another one by now.
    struct stat before {};
    struct stat after {};
    if (fstat(descriptor, &before) != 0 || !S_ISREG(before.st_mode))
        return {};
    FileStream text(descriptor, isUnwanted);
    Reading reading{.version = FileVersion::of(before), .servers = read(text)};
    reading.isTorn = fstat(descriptor, &after) != 0 || FileVersion::of(after) != reading.version;
    reading.duration = std::chrono::milliseconds(timer.elapsed());
    return reading;
}

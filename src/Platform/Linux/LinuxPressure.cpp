#include "Platform/Linux/LinuxPressure.h"

#include "Platform/Linux/KernelText.h"
#include "Platform/Log.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace {

/// Microseconds of waiting, and the time that they are counted in. The kernel lets an ordinary user have a
/// multiple of two seconds only.
constexpr QByteArrayView someStall = "some 150000 2000000";
constexpr QByteArrayView fullStall = "full 50000 2000000";
constexpr qint64 leastMilliseconds = 500; // between two calls of one trigger

/// Returns the file of the machine, or else that of the user's manager.
QString pressureFile(const QString& root, const QString& machines, const QString& groups) {
    const QString ofMachine = root + u"/proc/pressure/"_s + machines;
    if (QFileInfo::exists(ofMachine))
        return ofMachine;
    const QString user = QString::number(getuid());
    return root + u"/sys/fs/cgroup/user.slice/user-%1.slice/user@%1.service/%2"_s.arg(user, groups);
}

std::optional<double> share(std::string_view text, std::string_view key) {
    const auto value = KernelText::valueOf(text, key);
    double percent = 0;
    if (!value || std::from_chars(value->data(), value->data() + value->size(), percent).ec != std::errc())
        return std::nullopt;
    return percent >= 0 && percent <= 100 ? std::optional(percent) : std::nullopt;
}

} // namespace

LinuxPressure::LinuxPressure(const QString& root) {
    const QString memory = pressureFile(root, u"memory"_s, u"memory.pressure"_s);
    const QString disk = pressureFile(root, u"io"_s, u"io.pressure"_s);
    m_memory = KernelFile(QFile::encodeName(memory).toStdString());
    m_disk = KernelFile(QFile::encodeName(disk).toStdString());
    for (const Stall stall : {Stall::some, Stall::full})
        callOn(memory, stall);
    if (m_triggers.isEmpty())
        qCInfo(Log::platform) << "the kernel does not call on pressure; it is read at every tick";
}

LinuxPressure::~LinuxPressure() {
    qDeleteAll(findChildren<QSocketNotifier*>()); // before their descriptors close
    for (const int descriptor : std::as_const(m_triggers))
        ::close(descriptor);
}

void LinuxPressure::callOn(const QString& path, Stall stall) {
    const QByteArrayView condition = stall == Stall::some ? someStall : fullStall;
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return;
    const auto length = static_cast<size_t>(condition.size()) + 1; // the kernel wants the final zero
    if (::write(descriptor, condition.data(), length) != static_cast<ssize_t>(length)) {
        ::close(descriptor);
        return;
    }
    m_triggers.append(descriptor);
    auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Exception, this);
    connect(notifier, &QSocketNotifier::activated, this,
            [this, notifier, stall, last = QElapsedTimer()]() mutable {
                // Sooner than its window a trigger calls only when its control group has gone, and without
                // end.
                const bool isGone = last.isValid() && last.elapsed() < leastMilliseconds;
                notifier->setEnabled(!isGone);
                last.start();
                if (!isGone)
                    Q_EMIT memoryStalled(stall);
            });
}

std::optional<PressureLevel> LinuxPressure::levelIn(const KernelFile& file) {
    std::array<char, 256> buffer;
    return file.isOpen() ? level(file.read(buffer)) : std::nullopt;
}

std::optional<PressureLevel> LinuxPressure::level(std::string_view text) {
    const auto some = share(text, "some avg10=");
    const auto full = share(text, "full avg10=");
    return some ? std::optional(PressureLevel{.some = *some, .full = full.value_or(0)}) : std::nullopt;
}

#include "Platform/Linux/LinuxMemoryKills.h"

#include "Platform/Freedesktop/BusSignal.h"
#include "Platform/Linux/ControlGroup.h"
#include "Platform/Linux/KernelText.h"
#include "Platform/ToolRunner.h"

#include <QFile>
#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t vmstatBytes = 16384;
constexpr auto journalTimeout = std::chrono::seconds(2);
constexpr int maxJournalLines = 50;

QByteArray ownGroup(const QString& root) {
    QFile file(root + u"/proc/self/cgroup"_s);
    return file.open(QIODevice::ReadOnly) ? ControlGroup::path(file.readAll()) : QByteArray();
}

KernelFile groupEvents(const QString& root) {
    return KernelFile(
        (QFile::encodeName(root) + "/sys/fs/cgroup" + ownGroup(root) + "/memory.events").toStdString());
}

std::optional<quint64> numberIn(const KernelFile& file, std::string_view key) {
    std::array<char, vmstatBytes> buffer;
    return file.isOpen() ? KernelText::numberOf(file.read(buffer), key) : std::nullopt;
}

ToolRequest journalRequest(std::chrono::system_clock::time_point since) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(since.time_since_epoch()).count();
    return {.launchPath = u"journalctl"_s,
            .arguments = {u"--quiet"_s, u"--no-pager"_s, u"--output=cat"_s,
                          u"--lines=%1"_s.arg(maxJournalLines), u"--since=@%1"_s.arg(seconds),
                          u"_TRANSPORT=kernel"_s, u"+"_s, u"SYSLOG_IDENTIFIER=earlyoom"_s},
            .captureOutput = true,
            .timeout = journalTimeout};
}

} // namespace

LinuxMemoryKills::LinuxMemoryKills(std::shared_ptr<ToolRunner> tools, const QDBusConnection& bus,
                                   const QString& root)
    : m_tools(std::move(tools))
    , m_vmstat(QFile::encodeName(root + u"/proc/vmstat"_s).toStdString())
    , m_groupEvents(groupEvents(root)) {
    if (bus.isConnected())
        followSignal(bus, u"/org/freedesktop/oom1"_s, u"org.freedesktop.oom1.Manager"_s, u"Killed"_s, this,
                     SLOT(onKilled(QString, QString)));
}

std::optional<quint64> LinuxMemoryKills::count() {
    const auto ofMachine = numberIn(m_vmstat, "oom_kill ");
    return ofMachine ? ofMachine : numberIn(m_groupEvents, "oom_kill ");
}

void LinuxMemoryKills::onKilled(const QString& group, const QString&) {
    Q_EMIT groupEnded(group.section(u'/', -1), u"systemd-oomd"_s);
}

QCoro::Task<QList<RecordedKill>> LinuxMemoryKills::since(std::chrono::system_clock::time_point time) {
    const ToolRequest request = journalRequest(time);
    auto running = m_tools->run(request);
    const ToolResult result = co_await running;
    co_return result.succeeded() ? parse(QString::fromUtf8(result.output)) : QList<RecordedKill>();
}

QList<RecordedKill> LinuxMemoryKills::parse(const QString& journal) {
    // "Out of memory: Killed process 4711 (chrome) total-vm:1kB, anon-rss:2kB, ...", since Linux 2.6
    static const QRegularExpression ofKernel(
        u"^(?:Out of memory|Memory cgroup out of memory): .*?[Kk]ill(?:ed)? process (\\d+)(?:, UID \\d+,)? "
        u"\\((.*?)\\)(?: total-vm:\\d+kB, anon-rss:(\\d+)kB|,|$)"_s,
        QRegularExpression::MultilineOption);
    // "sending SIGTERM to process 4711 uid 1000 \"chrome\": badness 1, VmRSS 2100 MiB", since earlyoom 1.2
    static const QRegularExpression ofEarlyoom(
        u"^sending SIG\\w+ to process (\\d+) (?:uid \\d+ )?\"(.*?)\": .*?VmRSS (\\d+) MiB"_s,
        QRegularExpression::MultilineOption);
    QList<RecordedKill> kills;
    const auto add = [&](const QRegularExpression& pattern, int shift, const QString& by) {
        auto matches = pattern.globalMatch(journal);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            bool isNumber = false;
            const quint64 size = match.captured(3).toULongLong(&isNumber);
            kills.append({.pid = match.captured(1).toInt(),
                          .name = match.captured(2),
                          .bytes = isNumber ? std::optional(size << shift) : std::nullopt,
                          .by = by});
        }
    };
    add(ofKernel, 10, QString());
    add(ofEarlyoom, 20, u"earlyoom"_s);
    return kills;
}

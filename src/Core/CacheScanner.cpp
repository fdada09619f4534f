#include "Core/CacheScanner.h"

#include "Core/Cleaner.h"
#include "Platform/Clock.h"
#include "Platform/Places.h"
#include "Platform/Platform.h"
#include "Platform/ToolRunner.h"

#include <QCoroTimer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype keptEntries = 100;
// A stopped container daemon keeps its client waiting for ever.
constexpr auto containerReportLimit = 2min;
constexpr int filesPerBreath = 1000;

const auto containerReport = u"command -v docker >/dev/null 2>&1 && docker system df --format "
                             "'{{.Type}}\\t{{.Size}}\\t{{.Reclaimable}}' 2>/dev/null || true"_s;

/// By its bytes, for a file name need not be text. 0 when the file is gone.
quint64 fileBytes(const QByteArray& path) {
    std::error_code failure;
    const auto size = std::filesystem::file_size(path.toStdString(), failure);
    return failure ? 0 : size;
}

QString trimmedBlanks(QStringView text) {
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text.toString();
}

} // namespace

CacheScanner::CacheScanner(const Platform& platform, Progress progress)
    : m_tools(platform.tools)
    , m_places(platform.places)
    , m_clock(platform.clock)
    , m_progress(std::move(progress)) {}

QCoro::Task<QList<CacheTarget>> CacheScanner::scan(QList<CacheTarget> targets) {
    for (const CacheTarget& target : targets)
        m_waiting.append(target.name);
    std::vector<QCoro::Task<>> measurements;
    for (const CacheTarget& target : targets)
        measurements.push_back(measure(target));
    for (auto& measurement : measurements)
        co_await measurement;
    std::ranges::stable_sort(m_measured, std::ranges::greater(), &CacheTarget::sizeBytes);
    co_return m_measured;
}

QCoro::Task<> CacheScanner::measure(CacheTarget target) {
    const CacheTarget measured = co_await scanOne(target);
    m_measured.append(measured);
    m_waiting.removeOne(measured.name);
    if (m_progress) {
        const int done = static_cast<int>(m_measured.size());
        m_progress({m_waiting.value(0), done, done + static_cast<int>(m_waiting.size())});
    }
}

QCoro::Task<CacheTarget> CacheScanner::scanOne(CacheTarget target) {
    if (target.name == u"Docker")
        return scanDocker(target);
    if (const auto old = CleanupPlan::oldFiles(target.name))
        return scanOldFiles(target, *old);
    return scanFolders(target);
}

QCoro::Task<CacheTarget> CacheScanner::scanFolders(CacheTarget target) {
    QList<CacheEntry> entries;
    quint64 total = 0;
    const QStringList folders = CleanupPlan::placesOf(target, *m_places);
    for (const QString& folder : folders) {
        if (!QFileInfo::exists(folder))
            continue;
        const quint64 size = co_await Cleaner::directoryBytes(folder, m_tools);
        entries.append({folder, size});
        total += size;
    }
    std::ranges::stable_sort(entries, std::ranges::greater(), &CacheEntry::sizeBytes);
    target.sizeBytes = total;
    target.details = entries;
    target.lastScanned = m_clock->now();
    co_return target;
}

QCoro::Task<CacheTarget> CacheScanner::scanOldFiles(CacheTarget target, CleanupPlan::OldFiles which) {
    const QString root = m_places->locate(which.root).value(0);
    if (root.isEmpty() || !QFileInfo::exists(root)) {
        target.lastScanned = m_clock->now();
        co_return target;
    }
    const QStringList arguments = which.findArguments(root) << u"-print0"_s;
    auto find = runShell(u"/usr/bin/find"_s, arguments);
    const QByteArray listing = co_await find;

    QList<CacheEntry> entries;
    quint64 total = 0;
    int sinceBreath = 0;
    QByteArrayView rest(listing);
    for (QByteArray path = takePath(rest); !path.isEmpty(); path = takePath(rest)) {
        const quint64 size = fileBytes(path);
        total += size;
        if (entries.size() < keptEntries)
            entries.append({QFile::decodeName(path), size});
        if (++sinceBreath == filesPerBreath) { // the windows live on this thread too
            sinceBreath = 0;
            co_await QCoro::sleepFor(0ms);
        }
    }
    std::ranges::stable_sort(entries, std::ranges::greater(), &CacheEntry::sizeBytes);
    target.sizeBytes = total;
    target.details = entries;
    target.lastScanned = m_clock->now();
    co_return target;
}

QCoro::Task<CacheTarget> CacheScanner::scanDocker(CacheTarget target) {
    auto shell = runShell(u"/bin/sh"_s, {u"-lc"_s, containerReport}, containerReportLimit);
    const QByteArray report = co_await shell;

    target.sizeBytes = 0;
    target.details = parseContainerReport(report);
    for (const CacheEntry& entry : std::as_const(target.details))
        target.sizeBytes += entry.sizeBytes;
    target.lastScanned = m_clock->now();
    co_return target;
}

QCoro::Task<QByteArray> CacheScanner::runShell(QString executable, QStringList arguments,
                                               std::optional<std::chrono::milliseconds> limit) {
    ToolRequest request;
    request.launchPath = executable;
    request.arguments = arguments;
    request.captureOutput = true;
    request.terminateAfter = limit;
    const ToolResult result = co_await m_tools->run(request);
    co_return result.output;
}

QByteArray CacheScanner::takePath(QByteArrayView& listing) {
    while (listing.startsWith('\0'))
        listing = listing.sliced(1);
    const qsizetype found = listing.indexOf('\0');
    const QByteArray path = listing.first(found < 0 ? listing.size() : found).toByteArray();
    listing = listing.sliced(path.size());
    return path;
}

QList<CacheEntry> CacheScanner::parseContainerReport(const QByteArray& report) {
    QList<CacheEntry> entries;
    const QStringList lines = QString::fromUtf8(report).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() >= 2)
            entries.append({fields[0], parseSize(fields[1])});
    }
    return entries;
}

quint64 CacheScanner::parseSize(const QString& text) {
    struct Unit {
        QStringView suffix;
        double bytes;
    };
    static constexpr std::array units = {Unit{u"TB", 1e12}, Unit{u"GB", 1e9}, Unit{u"MB", 1e6},
                                         Unit{u"KB", 1e3}, Unit{u"B", 1}};
    QString number = trimmedBlanks(text);
    double multiplier = 1;
    for (const Unit& unit : units) {
        if (number.endsWith(unit.suffix)) {
            number.chop(unit.suffix.size());
            multiplier = unit.bytes;
            break;
        }
    }
    const double bytes = trimmedBlanks(number).toDouble() * multiplier;
    return bytes > 0 && bytes < 0x1p64 ? static_cast<quint64>(bytes) : 0;
}

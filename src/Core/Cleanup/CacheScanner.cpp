#include "Core/Cleanup/CacheScanner.h"

#include "Core/Cleanup/Cleaner.h"
#include "Core/Cleanup/CleanupOverlap.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Formatters.h"
#include "Core/OnThread.h"
#include "Platform/CleanupTargets.h"
#include "Platform/Clock.h"
#include "Platform/Platform.h"
#include "Platform/ToolRunner.h"

#include <QCoreApplication>
#include <QCoroTimer>
#include <QFile>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype maxDetails = 100;
// A stopped container daemon never answers its client.
constexpr auto containerTimeout = 2min;
constexpr int filesPerPause = 1000;

// ENGINE is the client of the container engine.
const auto containerReport = u"command -v ENGINE >/dev/null 2>&1 && ENGINE system df --format "
                             "'{{.Type}}\\t{{.Size}}\\t{{.Reclaimable}}' 2>/dev/null || true"_s;

// Prune removes the volumes that no running container uses. Since version 1.42 of its interface Docker
// keeps named volumes; Podman, whose version is another number, removes them.
const auto volumesThatGo =
    u"command -v ENGINE >/dev/null 2>&1 && { unnamed=; "
    "case \"$(ENGINE version --format '{{.Server.APIVersion}}')\" in "
    "1.4[2-9]|1.[5-9][0-9]) unnamed='--filter label=com.docker.volume.anonymous' ;; esac; "
    "volumes=$(ENGINE volume ls -q $unnamed) && { for volume in $volumes; do "
    "[ -n \"$(ENGINE ps -q --filter volume=$volume)\" ] || printf 'volume\\t%s\\n' \"$volume\"; "
    "done; echo 'volumes end'; }; } 2>/dev/null || true"_s;

/// Ends its tools when it is told to.
class StoppableTools : public ToolRunner {
public:
    StoppableTools(std::shared_ptr<ToolRunner> tools, std::stop_token stop)
        : m_tools(std::move(tools))
        , m_stop(std::move(stop)) {}

    QCoro::Task<ToolResult> run(ToolRequest request) override {
        request.stop = m_stop;
        return m_tools->run(request);
    }

private:
    std::shared_ptr<ToolRunner> m_tools;
    std::stop_token m_stop;
};

/// Returns the script for the engine whose client the target's command begins with.
QString forEngine(QString script, const CacheTarget& target) {
    return script.replace("ENGINE"_L1, target.pruneCommand.value_or(u"docker"_s).section(u' ', 0, 0));
}

/// Returns the places that may be cleaned, and notes why others may not.
QList<FoundPlace> openPlaces(CacheTarget& target, const QList<FoundPlace>& places) {
    QList<FoundPlace> open;
    target.notes.clear();
    for (const FoundPlace& found : places) {
        if (found.place.objection.isEmpty())
            open.append(found);
        else
            target.notes.append(found.place.objection);
    }
    return open;
}

/// Adds a folder to its target, with a note where it cannot be cleaned.
void take(CacheTarget& target, const ListedFolder& folder, const QString& reason) {
    if (folder.listing.isEmpty() && !reason.isEmpty())
        target.notes.append(QCoreApplication::translate("CacheScanner", "%1 cannot be cleaned: %2.")
                                .arg(folder.path, reason));
    target.listed.append(folder);
    target.sizeBytes += folder.sizeBytes;
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

CacheScanner::CacheScanner(const Platform& platform, Progress progress, std::chrono::milliseconds patience,
                           std::stop_token stop)
    : m_tools(std::make_shared<StoppableTools>(platform.tools, stop))
    , m_places(platform.places)
    , m_targets(platform.cleanupTargets)
    , m_clock(platform.clock)
    , m_progress(std::move(progress))
    , m_patience(patience)
    , m_stop(std::move(stop)) {}

QCoro::Task<QList<CacheTarget>> CacheScanner::scan(QList<CacheTarget> targets) {
    for (const CacheTarget& target : targets)
        m_waiting.append(target.name);
    const ToolRequest request = CleanupPlan::usedRequest();
    const ToolResult used = co_await m_tools->run(request);
    if (used.succeeded())
        m_used = used.output;
    std::vector<QCoro::Task<>> measurements;
    for (const CacheTarget& target : targets)
        measurements.push_back(measure(target));
    for (auto& measurement : measurements)
        co_await measurement;
    CleanupOverlap::mark(m_measured);
    std::ranges::stable_sort(m_measured, std::ranges::greater(), &CacheTarget::sizeBytes);
    co_return m_measured;
}

QCoro::Task<> CacheScanner::measure(CacheTarget target) {
    auto finding = PlaceFinder::find(target.paths, m_places, m_patience);
    const Result<QList<FoundPlace>> places = co_await finding;
    CacheTarget measured = target;
    if (places.done && !m_stop.stop_requested()) {
        auto scanning = scanPlaces(target, places.value);
        measured = co_await scanning;
        measured.lastScanned = m_clock->now();
    }
    if (m_stop.stop_requested()) {
        measured = target;
    } else if (!places.done) {
        measured.notes = QStringList(places.reason);
    }
    m_measured.append(measured);
    m_bytes += measured.sizeBytes;
    m_waiting.removeOne(measured.name);
    if (m_progress) {
        const int done = static_cast<int>(m_measured.size());
        m_progress({m_waiting.value(0), done, done + static_cast<int>(m_waiting.size()), m_bytes});
    }
}

QCoro::Task<CacheTarget> CacheScanner::scanPlaces(CacheTarget target, QList<FoundPlace> places) {
    switch (target.rule.measure) {
    case CleanupRule::Measure::containers:
        return scanContainers(target);
    case CleanupRule::Measure::command:
        return scanByCommand(target);
    case CleanupRule::Measure::oldFiles:
        return scanOldFiles(target, places);
    case CleanupRule::Measure::folders:
        break;
    }
    return scanFolders(target, places);
}

/// Leaves out the action log, which no clean removes.
QCoro::Task<quint64> CacheScanner::measureFolder(FoundPlace folder) {
    const std::optional<quint64> all = co_await Cleaner::directoryBytes(folder.root, m_tools);
    std::optional<quint64> kept;
    if (folder.hasLog)
        kept = co_await Cleaner::directoryBytes(CleanupPlan::keptFolder(), m_tools);
    co_return all.value_or(0) - std::min(all.value_or(0), kept.value_or(0));
}

QCoro::Task<QHash<QString, QString>> CacheScanner::namesIn(QString folder) {
    using Names = QHash<QString, QString>;
    auto reading =
        onThread<Names>([targets = m_targets, folder] { return targets->namesIn(folder); }, m_patience);
    const std::optional<Names> names = co_await reading;
    co_return names.value_or(Names());
}

QCoro::Task<CacheTarget> CacheScanner::scanFolders(CacheTarget target, QList<FoundPlace> places) {
    target.listed.clear();
    target.details.clear();
    target.sizeBytes = 0;
    const Instant now = m_clock->now();
    const QList<FoundPlace> folders = openPlaces(target, places);
    for (const FoundPlace& found : folders) {
        const QString& folder = found.place.path;
        auto listing = Cleaner::list(target.rule, found.root, now, m_tools, m_used);
        const Result<QByteArray> listed = co_await listing;
        quint64 bytes = CleanupPlan::ListingReader(listed.value).totalBytes();
        if (!listed.done)
            bytes = co_await measureFolder(found);
        QHash<QString, QString> names;
        if (target.isOfSystem())
            names = co_await namesIn(found.root);
        take(target, {folder, bytes, listed.value, found.root, names}, listed.reason);
        target.details.append({folder, bytes});
    }
    std::ranges::stable_sort(target.details, std::ranges::greater(), &CacheEntry::sizeBytes);
    co_return target;
}

QCoro::Task<CacheTarget> CacheScanner::scanOldFiles(CacheTarget target, QList<FoundPlace> places) {
    const QList<FoundPlace> folders = openPlaces(target, places);
    if (folders.isEmpty() && target.notes.isEmpty())
        co_return target;
    target.listed.clear();
    target.details.clear();
    target.sizeBytes = 0;
    const Instant now = m_clock->now();
    int sincePause = 0;
    for (const FoundPlace& found : folders) {
        const QString& folder = found.place.path;
        auto listing = Cleaner::list(target.rule, found.root, now, m_tools, m_used);
        const Result<QByteArray> made = co_await listing;
        ListedFolder listed{folder, 0, made.value, found.root};
        CleanupPlan::ListingReader reader(listed.listing);
        while (const auto entry = reader.next()) {
            listed.sizeBytes += entry->sizeBytes;
            if (target.details.size() < maxDetails)
                target.details.append(
                    {folder + u'/' + QFile::decodeName(entry->path.toByteArray()), entry->sizeBytes});
            if (++sincePause == filesPerPause) { // lets the windows on this thread run
                sincePause = 0;
                co_await QCoro::sleepFor(0ms);
            }
        }
        take(target, listed, made.reason);
    }
    std::ranges::stable_sort(target.details, std::ranges::greater(), &CacheEntry::sizeBytes);
    co_return target;
}

QCoro::Task<CacheTarget> CacheScanner::scanContainers(CacheTarget target) {
    const QByteArray report = co_await ask(forEngine(containerReport, target));
    target.sizeBytes = 0;
    target.details = parseContainerReport(report);
    for (const CacheEntry& entry : std::as_const(target.details))
        target.sizeBytes += entry.sizeBytes;
    target.notes.clear();
    target.volumes = QStringList();
    if (const auto reclaimable = parseReclaimable(report)) {
        target.notes.append(
            QCoreApplication::translate("CacheScanner", "The tool calls %1 of it reclaimable.")
                .arg(Formatters::bytes(*reclaimable)));
    }
    if (!target.details.isEmpty()) {
        const QByteArray volumes = co_await ask(forEngine(volumesThatGo, target));
        target.volumes = parseVolumes(volumes);
    }
    co_return target;
}

QCoro::Task<CacheTarget> CacheScanner::scanByCommand(CacheTarget target) {
    const QByteArray report = co_await ask(target.sizeCommand);
    const QByteArray lastLine = report.trimmed().split('\n').constLast().simplified();
    target.sizeBytes = lastLine.split(' ').constFirst().toULongLong();
    target.details.clear();
    if (target.sizeBytes > 0 && !target.paths.isEmpty())
        target.details.append({target.paths.constFirst(), target.sizeBytes});
    co_return target;
}

QCoro::Task<QByteArray> CacheScanner::ask(QString command) {
    const ToolRequest request = CleanupPlan::shellRequest(command, containerTimeout);
    const ToolResult result = co_await m_tools->run(request);
    co_return result.output;
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

std::optional<quint64> CacheScanner::parseReclaimable(const QByteArray& report) {
    std::optional<quint64> total;
    const QStringList lines = QString::fromUtf8(report).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() >= 3)
            total = total.value_or(0) + parseSize(fields[2].section(u'(', 0, 0));
    }
    return total;
}

std::optional<QStringList> CacheScanner::parseVolumes(const QByteArray& report) {
    QStringList volumes;
    for (const QString& line : QString::fromUtf8(report).split(u'\n')) {
        if (line == "volumes end"_L1)
            return volumes;
        if (line.startsWith("volume\t"_L1))
            volumes.append(line.section(u'\t', 1));
    }
    return std::nullopt;
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

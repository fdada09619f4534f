#include "Core/Cleanup/Cleaner.h"

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Cleanup/PlaceFinder.h"
#include "Core/Log.h"
#include "Core/OnThread.h"
#include "Platform/Places.h"
#include "Platform/ToolRunner.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype filesAtATime = 20; // to the trash, between two looks at the stop

Cleaner::CleanResult cancelled() {
    return {Outcome::failure(QCoreApplication::translate("Cleaner", "stopped"))};
}

void fail(Cleaner::CleanResult& result, const QString& reason) {
    result.done = false;
    if (result.reason.isEmpty())
        result.reason = reason;
}

void reportFailure(const char* step, const QString& what, const ToolResult& result) {
    qCWarning(Log::cleanup) << step << "ended with status" << result.exitStatus;
    qCDebug(Log::cleanup) << what << result.errorLine;
}

/// Printed after the command has succeeded. The user's start files may end the shell before it begins.
const auto done = u"tavrin: done"_s;

QCoro::Task<bool> prune(QString command, std::shared_ptr<ToolRunner> tools, std::stop_token stop) {
    const QString reported = command + u" && echo '"_s + done + u'\'';
    ToolRequest request = CleanupPlan::shellRequest(reported, CleanupPlan::toolTimeout);
    request.stop = stop;
    const ToolResult result = co_await tools->run(request);
    const bool isDone = result.succeeded() && result.output.trimmed().endsWith(done.toUtf8());
    if (!isDone)
        reportFailure("a command", command, result);
    co_return isDone;
}

QCoro::Task<Result<QByteArray>> runListing(ToolRequest request, QString folder,
                                           std::shared_ptr<ToolRunner> tools) {
    const ToolResult result = co_await tools->run(request);
    Result<QByteArray> listing{Outcome::failure(result.errorLine)};
    if (result.succeeded()) // a partial listing is useless
        listing = {Outcome::success(), result.output};
    else
        reportFailure("listing", folder, result);
    co_return listing;
}

QCoro::Task<Cleaner::CleanResult> removeListed(CleanupRule rule, ListedFolder folder, Instant now,
                                               std::shared_ptr<ToolRunner> tools, std::stop_token stop,
                                               Cleaner::Progress progress) {
    Cleaner::CleanResult result{Outcome::success()};
    const bool isMeasured = rule.measure == CleanupRule::Measure::folders;
    std::optional<quint64> before;
    if (isMeasured)
        before = co_await Cleaner::directoryBytes(folder.path, tools, stop);
    if (stop.stop_requested())
        co_return cancelled();
    const auto report = std::make_shared<CleanupPlan::RemovalReport>();
    ToolRequest request = CleanupPlan::removeRequest(rule, folder, now);
    request.stop = stop;
    request.onOutput = [report, progress](const QByteArray& line) {
        report->take(line);
        if (progress)
            progress(report->bytes);
    };
    const ToolResult removal = co_await tools->run(request);
    if (!removal.succeeded()) {
        reportFailure("removing", folder.path, removal);
        fail(result, stop.stop_requested() ? cancelled().reason : removal.errorLine);
    }
    result.volumeBytes = report->volumeBytes;
    if (isMeasured) {
        const std::optional<quint64> after = co_await Cleaner::directoryBytes(folder.path, tools, {});
        if (before && after)
            result.freedBytes = *before - std::min(*before, *after);
    }
    co_return result;
}

/// Makes the trash of the home folder, which Qt uses for every file without a trash on its volume. Where it
/// cannot be made, Qt would move the files to the working directory.
bool makeTrash() {
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString trash = home + u"/Trash"_s;
    QDir().mkpath(home);
    QDir().mkdir(trash, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QFileInfo made(trash);
    return QDir::isAbsolutePath(home) && made.isDir() && made.isWritable();
}

/// Moves files to the trash. Returns the reason of the first failure, empty without any.
QString trash(const QString& root, const QByteArrayList& paths) {
    if (!makeTrash())
        return QCoreApplication::translate("Cleaner", "there is no trash");
    QString reason;
    for (const QByteArray& path : paths) {
        QFile file(root + u'/' + QFile::decodeName(path));
        const bool isText = QFile::encodeName(QFile::decodeName(path)) == path;
        if (isText && file.moveToTrash())
            continue;
        const QString why =
            isText ? file.errorString() : QCoreApplication::translate("Cleaner", "its name is no text");
        if (reason.isEmpty())
            reason = QCoreApplication::translate("Cleaner", "%1 was not moved to the trash: %2")
                         .arg(file.fileName(), why);
    }
    return reason;
}

QCoro::Task<Cleaner::CleanResult> trashListed(CleanupRule rule, ListedFolder folder, Instant now,
                                              std::shared_ptr<ToolRunner> tools, std::stop_token stop,
                                              Cleaner::Progress progress) {
    Cleaner::CleanResult result{Outcome::success()};
    const ToolRequest request = CleanupPlan::checkRequest(rule, folder, now);
    auto checking = runListing(request, folder.path, tools);
    const Result<QByteArray> checked = co_await checking;
    if (!checked.done)
        co_return {Outcome::failure(checked.reason)};
    CleanupPlan::ListingReader reader(checked.value);
    quint64 moved = 0;
    for (bool isMore = true; isMore;) {
        if (stop.stop_requested())
            co_return cancelled();
        QByteArrayList paths;
        while (isMore && paths.size() < filesAtATime) {
            const auto entry = reader.next();
            isMore = entry.has_value();
            if (!isMore)
                continue;
            paths.append(entry->path.toByteArray());
            moved += entry->sizeBytes;
        }
        auto moving = onThread<QString>([root = folder.realPath(), paths] { return trash(root, paths); });
        const std::optional<QString> reason = co_await moving;
        if (!reason || !reason->isEmpty())
            fail(result, reason.value_or(QString()));
        if (progress)
            progress(moved);
    }
    co_return result;
}

struct OpenFolders {
    QList<ListedFolder> folders;
    Cleaner::CleanResult result; ///< why others may not be cleaned
};

/// Finds the folders of a target that may be cleaned now. A target that was never scanned is listed.
QCoro::Task<OpenFolders> findFolders(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                                     std::shared_ptr<Places> places, Instant now) {
    OpenFolders open{.folders = {}, .result = {Outcome::success()}};
    auto finding = PlaceFinder::find(target.paths, places);
    const Result<QList<FoundPlace>> found = co_await finding;
    if (!found.done)
        fail(open.result, found.reason);
    for (const FoundPlace& one : found.value) {
        if (!one.place.objection.isEmpty()) {
            fail(open.result, one.place.objection);
            continue;
        }
        const auto isPlace = [&](const ListedFolder& folder) { return folder.path == one.place.path; };
        const auto listed = std::ranges::find_if(target.listed, isPlace);
        if (listed != target.listed.end() && listed->listing.isEmpty()) {
            fail(open.result, QCoreApplication::translate("Cleaner", "it could not be listed"));
        } else if (listed != target.listed.end()) {
            open.folders.append({listed->path, listed->sizeBytes, listed->listing, one.root});
        } else if (!target.lastScanned) { // else it came after the scan
            auto listing = Cleaner::list(target.rule, one.root, now, tools);
            const Result<QByteArray> made = co_await listing;
            if (made.done)
                open.folders.append({one.place.path, 0, made.value, one.root});
            else
                fail(open.result, made.reason);
        }
    }
    co_return open;
}

using Step = QCoro::Task<Cleaner::CleanResult> (*)(CleanupRule, ListedFolder, Instant,
                                                   std::shared_ptr<ToolRunner>, std::stop_token,
                                                   Cleaner::Progress);

/// Takes the step for each folder of a target.
QCoro::Task<Cleaner::CleanResult> forEachFolder(Step step, CacheTarget target,
                                                std::shared_ptr<ToolRunner> tools,
                                                std::shared_ptr<Places> places, Instant now,
                                                std::stop_token stop, Cleaner::Progress progress) {
    if (stop.stop_requested())
        co_return cancelled();
    auto finding = findFolders(target, tools, places, now);
    const OpenFolders open = co_await finding;
    Cleaner::CleanResult result = open.result;
    quint64 sofar = 0;
    for (const ListedFolder& folder : open.folders) {
        if (stop.stop_requested()) {
            fail(result, cancelled().reason);
            break;
        }
        const auto last = std::make_shared<quint64>(0);
        const Cleaner::Progress ofAll = [progress, sofar, last](quint64 bytes) {
            *last = bytes;
            if (progress)
                progress(sofar + bytes);
        };
        auto working = step(target.rule, folder, now, tools, stop, ofAll);
        const Cleaner::CleanResult one = co_await working;
        sofar += *last;
        if (!one.done)
            fail(result, one.reason);
        result.freedBytes += one.freedBytes;
        if (one.volumeBytes)
            result.volumeBytes = result.volumeBytes.value_or(0) + *one.volumeBytes;
    }
    co_return result;
}

} // namespace

QCoro::Task<Result<QByteArray>> Cleaner::list(CleanupRule rule, QString folder, Instant now,
                                              std::shared_ptr<ToolRunner> tools, QByteArray used) {
    const ToolRequest request = CleanupPlan::listRequest(rule, folder, now, used);
    auto listing = runListing(request, folder, tools);
    co_return co_await listing;
}

QCoro::Task<Result<QByteArray>> Cleaner::listInside(CleanupRule rule, QString folder, QByteArray inside,
                                                    Instant now, std::shared_ptr<ToolRunner> tools) {
    auto finding = onThread<QString>([folder] { return PlaceFinder::rootOf(folder); }, PlaceFinder::patience);
    const std::optional<QString> root = co_await finding;
    if (!root)
        co_return {Outcome::failure(PlaceFinder::silence(folder))};
    const ToolRequest request = CleanupPlan::listInsideRequest(rule, *root, inside, now);
    auto listing = runListing(request, folder, tools);
    co_return co_await listing;
}

QCoro::Task<Cleaner::CleanResult> Cleaner::clean(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                                                 std::shared_ptr<Places> places, Instant now,
                                                 std::stop_token stop, Progress progress) {
    if (!target.pruneCommand) {
        auto removing = forEachFolder(removeListed, target, tools, places, now, stop, progress);
        co_return co_await removing;
    }
    CleanResult result{Outcome::success()};
    auto pruning = prune(*target.pruneCommand, tools, stop);
    result.done = co_await pruning;
    result.freedBytes = target.sizeBytes;
    if (!result.done && stop.stop_requested())
        result.reason = cancelled().reason;
    co_return result;
}

QCoro::Task<Cleaner::CleanResult> Cleaner::moveToTrash(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                                                       std::shared_ptr<Places> places, Instant now,
                                                       std::stop_token stop, Progress progress) {
    const bool isOfOldFiles =
        target.rule.hasUserFiles && target.rule.measure == CleanupRule::Measure::oldFiles;
    if (!isOfOldFiles || target.pruneCommand)
        co_return {Outcome::failure(QCoreApplication::translate("Cleaner", "only old files can be moved"))};
    auto moving = forEachFolder(trashListed, target, tools, places, now, stop, progress);
    co_return co_await moving;
}

QCoro::Task<std::optional<quint64>> Cleaner::directoryBytes(QString path, std::shared_ptr<ToolRunner> tools,
                                                            std::stop_token stop) {
    ToolRequest request = CleanupPlan::measureRequest(path);
    request.stop = stop;
    const ToolResult result = co_await tools->run(request);
    co_return reportedBytes(result.output);
}

std::optional<quint64> Cleaner::reportedBytes(const QByteArray& report) {
    constexpr quint64 maxKib = std::numeric_limits<quint64>::max() / 1024;
    bool isNumber = false;
    const quint64 kib = report.simplified().split(' ').constFirst().toULongLong(&isNumber);
    return isNumber && kib <= maxKib ? std::optional(kib * 1024) : std::nullopt;
}

#include "Core/Cleanup/Cleaner.h"

#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Log.h"
#include "Platform/Places.h"
#include "Platform/ToolRunner.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

Cleaner::CleanResult cancelled() {
    return {Outcome::failure(QCoreApplication::translate("Cleaner", "cancelled"))};
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
                                               std::shared_ptr<ToolRunner> tools, std::stop_token stop) {
    Cleaner::CleanResult result{Outcome::success()};
    const bool isMeasured = rule.measure == CleanupRule::Measure::folders;
    quint64 before = 0;
    if (isMeasured)
        before = co_await Cleaner::directoryBytes(folder.path, tools, stop);
    if (stop.stop_requested())
        co_return cancelled();
    ToolRequest request = CleanupPlan::removeRequest(rule, folder, now);
    request.stop = stop;
    const ToolResult removal = co_await tools->run(request);
    if (!removal.succeeded()) {
        reportFailure("removing", folder.path, removal);
        fail(result, stop.stop_requested() ? cancelled().reason : removal.errorLine);
    }
    if (isMeasured) {
        const quint64 after = co_await Cleaner::directoryBytes(folder.path, tools, {});
        result.freedBytes = before > after ? before - after : 0;
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
    const ToolRequest request = CleanupPlan::listInsideRequest(rule, folder, inside, now);
    auto listing = runListing(request, folder, tools);
    co_return co_await listing;
}

QCoro::Task<Cleaner::CleanResult> Cleaner::clean(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                                                 std::shared_ptr<Places> places, Instant now,
                                                 std::stop_token stop) {
    CleanResult result{Outcome::success()};
    if (target.pruneCommand) {
        result.done = co_await prune(*target.pruneCommand, tools, stop);
        result.freedBytes = target.sizeBytes;
        if (!result.done && stop.stop_requested())
            result.reason = cancelled().reason;
        co_return result;
    }
    const QList<Place> found = CleanupPlan::placesOf(target, *places);
    for (const Place& place : found) {
        if (!QFileInfo::exists(place.path))
            continue;
        if (!place.objection.isEmpty() || stop.stop_requested()) {
            fail(result, place.objection.isEmpty() ? cancelled().reason : place.objection);
            continue;
        }
        const auto isPlace = [&](const ListedFolder& folder) { return folder.path == place.path; };
        auto listed = std::ranges::find_if(target.listed, isPlace);
        if (listed == target.listed.end() && target.lastScanned)
            continue; // it came after the scan
        if (listed == target.listed.end()) {
            const Result<QByteArray> listing = co_await list(target.rule, place.path, now, tools);
            target.listed.append({place.path, 0, listing.value});
            listed = target.listed.end() - 1;
        }
        auto removal = removeListed(target.rule, *listed, now, tools, stop);
        const CleanResult one = co_await removal;
        if (!one.done)
            fail(result, one.reason);
        result.freedBytes += one.freedBytes;
    }
    co_return result;
}

QCoro::Task<quint64> Cleaner::directoryBytes(QString path, std::shared_ptr<ToolRunner> tools,
                                             std::stop_token stop) {
    ToolRequest request = CleanupPlan::measureRequest(path);
    request.stop = stop;
    const ToolResult result = co_await tools->run(request);
    co_return reportedBytes(result.output);
}

quint64 Cleaner::reportedBytes(const QByteArray& report) {
    constexpr quint64 maxKib = std::numeric_limits<quint64>::max() / 1024;
    const quint64 kib = report.simplified().split(' ').constFirst().toULongLong();
    return kib <= maxKib ? kib * 1024 : 0;
}

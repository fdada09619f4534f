#include "Core/Cleaner.h"

#include "Core/CleanupPlan.h"
#include "Platform/Places.h"
#include "Platform/ToolRunner.h"

#include <QFileInfo>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString shellQuoted(const QString& text) {
    QString inside = text;
    inside.replace(u'\'', u"'\\''"_s);
    return u'\'' + inside + u'\'';
}

/// Everything inside, hidden entries too, but not the folder; "--" because an entry may begin with a dash.
QString emptyingCommand(const QString& folder) {
    const QString quoted = shellQuoted(folder);
    return u"rm -rf -- "_s + quoted + u"/* "_s + quoted + u"/.[!.]*"_s;
}

QCoro::Task<Cleaner::CleanResult> emptyFolder(QString folder, std::shared_ptr<ToolRunner> tools,
                                              std::shared_ptr<Places> places) {
    Cleaner::CleanResult result;
    const QFileInfo info(folder);
    if (!info.exists())
        co_return result;
    if (info.isSymLink() || places->reachesMount(folder)) {
        result.success = false;
        co_return result;
    }
    const quint64 before = co_await Cleaner::directoryBytes(folder, tools);
    auto emptying = Cleaner::runShell(u"/bin/sh"_s, {u"-lc"_s, emptyingCommand(folder)}, tools);
    result.success = co_await emptying;
    const quint64 after = co_await Cleaner::directoryBytes(folder, tools);
    result.freedBytes = before > after ? before - after : 0;
    co_return result;
}

QCoro::Task<Cleaner::CleanResult> deleteOldFiles(CleanupPlan::OldFiles which, QString folder,
                                                 std::shared_ptr<ToolRunner> tools,
                                                 std::shared_ptr<Places> places) {
    Cleaner::CleanResult result;
    if (places->reachesMount(folder)) {
        result.success = false;
        co_return result;
    }
    const QStringList arguments = which.findArguments(folder) << u"-delete"_s;
    auto deleting = Cleaner::runShell(u"/usr/bin/find"_s, arguments, tools);
    result.success = co_await deleting;
    co_return result;
}

} // namespace

QCoro::Task<Cleaner::CleanResult> Cleaner::clean(CacheTarget target, std::shared_ptr<ToolRunner> tools,
                                                 std::shared_ptr<Places> places) {
    CleanResult result;
    if (target.pruneCommand) {
        auto pruning = runShell(u"/bin/sh"_s, {u"-lc"_s, *target.pruneCommand}, tools);
        result.success = co_await pruning;
        result.freedBytes = target.sizeBytes;
        co_return result;
    }
    const auto old = CleanupPlan::oldFiles(target.name);
    const QStringList folders = CleanupPlan::placesOf(target, *places);
    for (const QString& folder : folders) {
        auto step = old ? deleteOldFiles(*old, folder, tools, places) : emptyFolder(folder, tools, places);
        const CleanResult one = co_await step;
        result.success = result.success && one.success;
        result.freedBytes += one.freedBytes;
    }
    co_return result;
}

QCoro::Task<quint64> Cleaner::directoryBytes(QString path, std::shared_ptr<ToolRunner> tools) {
    ToolRequest request;
    request.launchPath = u"/usr/bin/du"_s;
    request.arguments = {u"-sk"_s, u"-x"_s, path};
    request.captureOutput = true;
    const ToolResult result = co_await tools->run(request);
    co_return reportedBytes(result.output);
}

quint64 Cleaner::reportedBytes(const QByteArray& report) {
    constexpr quint64 largest = std::numeric_limits<quint64>::max() / 1024;
    const quint64 kib = report.simplified().split(' ').constFirst().toULongLong();
    return kib <= largest ? kib * 1024 : 0;
}

QCoro::Task<bool> Cleaner::runShell(QString executable, QStringList arguments,
                                    std::shared_ptr<ToolRunner> tools) {
    ToolRequest request;
    request.launchPath = executable;
    request.arguments = arguments;
    const ToolResult result = co_await tools->run(request);
    co_return result.succeeded();
}

#include "Core/Cleanup/ProjectLeftovers.h"

#include "Core/ActionLog/ActionLog.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Core/Cleanup/PlaceFinder.h"
#include "Core/Formatters.h"
#include "Core/NearestInstant.h"
#include "Core/OnThread.h"
#include "Platform/Clock.h"
#include "Platform/ToolRunner.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

#include <sys/stat.h>

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool isMissing(const QByteArray& path) {
    struct stat status {};
    return lstat(path.constData(), &status) != 0 && errno == ENOENT;
}

constexpr QByteArrayView userStart = "user ";
constexpr QByteArrayView folderStart = "folder ";
constexpr auto searchTimeout = 2min; // since it last said where it is
constexpr auto usersTimeout = 30s;
constexpr auto changesTimeout = 20s;
constexpr int noSuchKey = 1; // of git-config(1)

/// Takes the text up to the next NUL off the front.
std::optional<QByteArray> takeText(QByteArrayView& rest) {
    const qsizetype end = rest.indexOf('\0');
    if (end < 0)
        return std::nullopt;
    const QByteArray text = rest.first(end).toByteArray();
    rest = rest.sliced(end + 1);
    return text;
}

/// Reads "project SECONDS PATH".
std::optional<LeftoverProject> projectOf(QByteArrayView record) {
    constexpr QByteArrayView start = "project ";
    if (!record.startsWith(start))
        return std::nullopt;
    record = record.sliced(start.size());
    const qsizetype space = record.indexOf(' ');
    bool isTime = false;
    const qint64 seconds = space < 0 ? 0 : record.first(space).toLongLong(&isTime);
    if (!isTime || !record.sliced(space + 1).startsWith('/'))
        return std::nullopt;
    LeftoverProject project{.path = record.sliced(space + 1).toByteArray()};
    if (seconds > 0)
        project.lastUse = nearestInstant(std::chrono::sys_seconds(std::chrono::seconds(seconds)));
    return project;
}

void takeListing(LeftoverProject& project, QByteArrayView listing) {
    CleanupPlan::ListingReader reader(listing);
    project.header = reader.header().toByteArray();
    const QByteArray start =
        QFile::encodeName(project.listedFolder == u"/"_s ? QString() : project.listedFolder);
    while (const auto entry = reader.next()) {
        project.folders.append(
            {start + '/' + entry->path.toByteArray(), entry->sizeBytes, entry->record.toByteArray()});
        project.sizeBytes += entry->sizeBytes;
    }
    std::ranges::stable_sort(project.folders, std::ranges::greater(), &Leftover::sizeBytes);
}

/// Returns the end of what belongs to a project: where the next begins.
qsizetype endOf(QByteArrayView report) {
    const qsizetype next = report.indexOf(QByteArrayView("\0project ", 9));
    return next < 0 ? report.size() : next + 1;
}

QStringList usersIn(const QByteArray& report) {
    QStringList users;
    QByteArrayView rest = report;
    while (const auto text = takeText(rest)) {
        if (text->startsWith(userStart))
            users.append(QString::fromUtf8(text->mid(userStart.size())));
    }
    return users;
}

} // namespace

QList<LeftoverProject> LeftoverProject::parse(const QByteArray& report) {
    QList<LeftoverProject> projects;
    QByteArrayView all = report;
    while (!all.isEmpty()) {
        QByteArrayView part = all.first(endOf(all));
        all = all.sliced(part.size());
        const auto first = takeText(part);
        auto project = first ? projectOf(*first) : std::nullopt;
        if (!project)
            continue;
        auto record = takeText(part);
        for (; record && record->startsWith(userStart); record = takeText(part))
            project->users.append(QString::fromUtf8(record->mid(userStart.size())));
        if (!record || !record->startsWith(folderStart) ||
            !record->sliced(folderStart.size()).startsWith('/'))
            continue;
        project->listedFolder = QFile::decodeName(record->mid(folderStart.size()));
        takeListing(*project, part);
        if (!project->folders.isEmpty())
            projects.append(*project);
    }
    std::ranges::stable_sort(projects, std::ranges::greater(), &LeftoverProject::sizeBytes);
    return projects;
}

ProjectLeftovers::ProjectLeftovers(const Platform& platform, const Preferences& preferences, ActionLog& log)
    : m_platform(platform)
    , m_preferences(preferences)
    , m_log(log) {}

quint64 ProjectLeftovers::totalBytes() const {
    return std::accumulate(m_projects.begin(), m_projects.end(), quint64(0),
                           [](quint64 sum, const LeftoverProject& each) { return sum + each.sizeBytes; });
}

/// Takes what a search prints as it comes.
void ProjectLeftovers::follow(const QByteArray& record) {
    Progress progress = m_progress;
    if (record.startsWith("project "))
        ++progress.found;
    else if (record.startsWith("at /"))
        progress.folder = record.mid(3);
    else
        return;
    publish(m_progress, progress);
}

QString ProjectLeftovers::failureOf(const ToolResult& result, bool wasStopped) const {
    if (wasStopped)
        return QCoreApplication::translate("ProjectLeftovers", "cancelled");
    if (!result.errorLine.isEmpty())
        return result.errorLine;
    const bool wasSilent = result.launched && result.exitStatus < 0 && m_isSearching;
    return wasSilent && !m_progress.folder.isEmpty()
               ? PlaceFinder::silence(QFile::decodeName(m_progress.folder))
               : QCoreApplication::translate("ProjectLeftovers", "it did not finish");
}

QCoro::Task<> ProjectLeftovers::search(QStringList folders) {
    const QPointer<ProjectLeftovers> self(this);
    const int search = ++m_searchesBegun;
    publish(m_progress, Progress());
    publish(m_isSearching, true);
    folders.removeIf([](const QString& folder) { return !folder.startsWith(u'/'); });
    if (folders.isEmpty())
        folders.append(QDir::homePath());
    ToolRequest request;
    request.launchPath = u"project_leftovers"_s;
    request.arguments =
        QStringList(u"find"_s) + CleanupPlan::excludeOptions(m_preferences.cleanupExcludes()) + folders;
    request.captureOutput = true;
    request.timeout = searchTimeout;
    request.stop = m_stop.get_token();
    request.lineEnd = '\0';
    request.onOutput = [self, search](const QByteArray& record) {
        if (self && self->m_searchesBegun == search)
            self->follow(record);
    };
    auto running = m_platform.tools->run(request);
    const ToolResult result = co_await running;
    if (!self || m_searchesBegun != search)
        co_return;
    m_asked.clear();
    const bool wasStopped = request.stop.stop_requested();
    publish(m_searchFailure, result.succeeded() ? QString() : failureOf(result, wasStopped));
    if (!wasStopped && result.launched)
        publish(m_lastSearch, std::optional(m_platform.clock->now()));
    publish(m_projects, LeftoverProject::parse(result.output));
    publish(m_isSearching, false);
}

QCoro::Task<> ProjectLeftovers::findChanges(QByteArray project) {
    const QPointer<ProjectLeftovers> self(this);
    const QString folder = QFile::decodeName(project);
    if (m_asked.contains(project) || QFile::encodeName(folder) != project)
        co_return;
    m_asked.insert(project);
    // A repository may name programs that filter or watch its files, which are not to run.
    ToolRequest filters;
    filters.launchPath = u"git"_s;
    filters.arguments = {u"-C"_s, folder, u"config"_s, u"--show-scope"_s, u"--get-regexp"_s, u"^filter\\."_s};
    filters.captureOutput = true;
    filters.timeout = changesTimeout;
    auto asking = m_platform.tools->run(filters);
    const ToolResult named = co_await asking;
    const bool isAnswer = named.launched && (named.exitStatus == 0 || named.exitStatus == noSuchKey);
    if (!self || !isAnswer || named.output.contains("local\t") || named.output.contains("worktree\t"))
        co_return;
    ToolRequest request;
    request.launchPath = u"git"_s;
    request.arguments = {
        u"-C"_s,     folder,          u"--no-optional-locks"_s, u"-c"_s, u"core.fsmonitor=false"_s,
        u"status"_s, u"--porcelain"_s};
    request.captureOutput = true;
    request.timeout = changesTimeout;
    auto running = m_platform.tools->run(request);
    const ToolResult result = co_await running;
    if (!self || !result.succeeded())
        co_return;
    QList<LeftoverProject> projects = m_projects;
    for (LeftoverProject& each : projects) {
        if (each.path == project)
            each.changes = result.output.isEmpty() ? LeftoverProject::Changes::none
                                                   : LeftoverProject::Changes::uncommitted;
    }
    publish(m_projects, projects);
}

QCoro::Task<QStringList> ProjectLeftovers::usersOf(QByteArray project, std::stop_token stop) {
    ToolRequest request;
    request.launchPath = u"project_leftovers"_s;
    request.arguments = {u"users"_s};
    request.captureOutput = true;
    request.timeout = usersTimeout;
    request.stop = stop;
    request.input = project + '\0';
    auto running = m_platform.tools->run(request);
    const ToolResult result = co_await running;
    if (!result.succeeded())
        co_return {QCoreApplication::translate("ProjectLeftovers", "a program that is unknown")};
    co_return usersIn(result.output);
}

QCoro::Task<Outcome> ProjectLeftovers::removeFolder(LeftoverProject project, Leftover folder,
                                                    std::stop_token stop,
                                                    std::shared_ptr<CleanupPlan::RemovalReport> report) {
    const QPointer<ProjectLeftovers> self(this);
    const ListedFolder listed{project.listedFolder, folder.sizeBytes, project.header + folder.record};
    Progress progress = m_progress;
    progress.folder = folder.path;
    publish(m_progress, progress);
    CleanupRule rule;
    rule.excludes = m_preferences.cleanupExcludes();
    ToolRequest request = CleanupPlan::removeRequest(rule, listed, m_platform.clock->now());
    request.stop = stop;
    request.onOutput = [self, report, progress, most = folder.sizeBytes](const QByteArray& line) {
        report->take(line);
        Progress now = progress;
        now.bytes += std::min(report->bytes, most);
        if (self)
            self->publish(self->m_progress, now);
    };
    auto running = m_platform.tools->run(request);
    const ToolResult result = co_await running;
    auto looking = onThread<bool>([path = folder.path] { return isMissing(path); }, PlaceFinder::patience);
    const std::optional<bool> isGone = co_await looking;
    if (result.succeeded() && isGone.value_or(false))
        co_return Outcome::success();
    if (result.succeeded())
        co_return Outcome::failure(QCoreApplication::translate(
            "ProjectLeftovers", "something in it is new, or is on the list of what is never cleaned"));
    co_return Outcome::failure(failureOf(result, stop.stop_requested()));
}

QCoro::Task<ProjectLeftovers::Removal> ProjectLeftovers::removeOne(LeftoverProject project,
                                                                   std::stop_token stop) {
    const QPointer<ProjectLeftovers> self(this);
    Removal removal;
    auto asking = usersOf(project.path, stop);
    const QStringList users = co_await asking;
    Outcome outcome = users.isEmpty()
                          ? Outcome::success()
                          : Outcome::failure(QCoreApplication::translate("ProjectLeftovers", "in use by %1")
                                                 .arg(Formatters::list(users)));
    for (const Leftover& folder : std::as_const(project.folders)) {
        if (!self || stop.stop_requested())
            break;
        const QString path = QFile::decodeName(folder.path);
        const auto report = std::make_shared<CleanupPlan::RemovalReport>();
        if (users.isEmpty()) {
            auto removing = removeFolder(project, folder, stop, report);
            outcome = co_await removing;
        }
        if (!self)
            break;
        if (report->volumeBytes)
            removal.volumeBytes = removal.volumeBytes.value_or(0) + *report->volumeBytes;
        m_log.record(ActionLogEntry::Kind::clean, path, outcome.done ? folder.sizeBytes : report->bytes,
                     outcome.done);
        if (outcome.done) {
            ++removal.folders;
            removal.freedBytes += folder.sizeBytes;
            forget(folder);
        } else {
            removal.failures.append(u"%1 (%2)"_s.arg(path, outcome.reason));
        }
    }
    co_return removal;
}

void ProjectLeftovers::forget(const Leftover& folder) {
    QList<LeftoverProject> left = m_projects;
    for (LeftoverProject& project : left) {
        if (project.folders.removeAll(folder) > 0)
            project.sizeBytes -= folder.sizeBytes;
    }
    left.removeIf([](const LeftoverProject& project) { return project.folders.isEmpty(); });
    publish(m_projects, left);
}

QCoro::Task<> ProjectLeftovers::remove(QList<LeftoverProject> projects) {
    const QPointer<ProjectLeftovers> self(this);
    if (m_isRemoving)
        co_return;
    Progress progress;
    for (const LeftoverProject& project : std::as_const(projects))
        progress.totalBytes += project.sizeBytes;
    publish(m_progress, progress);
    publish(m_isRemoving, true);
    const std::stop_token stop = m_stop.get_token();
    Removal all;
    for (qsizetype i = 0; i < projects.size() && !stop.stop_requested(); ++i) {
        auto removing = removeOne(projects[i], stop);
        const Removal removal = co_await removing;
        if (!self)
            co_return;
        all.folders += removal.folders;
        all.freedBytes += removal.freedBytes;
        all.failures += removal.failures;
        if (removal.volumeBytes)
            all.volumeBytes = all.volumeBytes.value_or(0) + *removal.volumeBytes;
    }
    all.wasCancelled = stop.stop_requested();
    publish(m_lastRemoval, std::optional(all));
    publish(m_isRemoving, false);
}

void ProjectLeftovers::stop() {
    std::exchange(m_stop, std::stop_source()).request_stop();
}

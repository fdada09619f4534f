#include "Platform/Unix/UnixToolRunner.h"

#include "Platform/Log.h"
#include "Platform/Unix/DescriptorLimit.h"

#include <QCoreApplication>
#include <QCoroFuture>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QPromise>
#include <QSet>
#include <QTimer>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The process groups of the running tools, killed when this program ends: a shell that is terminated does
/// not terminate its children.
class ToolGroups {
public:
    ~ToolGroups() {
        for (const pid_t group : m_groups)
            ::kill(-group, SIGKILL);
    }
    void add(pid_t group) { m_groups.insert(group); }
    void remove(pid_t group) { m_groups.remove(group); }

private:
    QSet<pid_t> m_groups;
};

ToolGroups& toolGroups() {
    static ToolGroups groups;
    return groups;
}

constexpr std::chrono::seconds killTimeout{1};
/// Exit status of a tool of our own that is unsupported here; a shell's for a program that it cannot start.
constexpr int cannotStart = 126;

/// Runs in the child before its program, with calls that are safe after a fork.
void prepareChild(pid_t parent, const rlimit& descriptors) {
    // ioprio_set(2), whose header C++ cannot read: the class in the upper bits, the level in the lower 13.
    constexpr int thisProcess = 1;
    constexpr int bestEffort = 2;
    constexpr int lowestPriority = 7;
    setpgid(0, 0);
    syscall(SYS_ioprio_set, thisProcess, 0, bestEffort << 13 | lowestPriority);
    setrlimit(RLIMIT_NOFILE, &descriptors);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) // it has ended already
        _exit(1);
}

void configure(QProcess& process, const ToolRequest& request, bool captureErrors) {
    if (request.input.isEmpty())
        process.setStandardInputFile(QProcess::nullDevice());
    if (!captureErrors)
        process.setStandardErrorFile(QProcess::nullDevice());
    if (!request.captureOutput && !request.onOutput)
        process.setStandardOutputFile(QProcess::nullDevice());
    process.setChildProcessModifier(
        [parent = getpid(), descriptors = DescriptorLimit::atStart()] { prepareChild(parent, descriptors); });
}

/// Lets a started process group run behind everything else. The child does not do it itself, so that its
/// program begins soon.
void putBehindAll(pid_t group) {
    constexpr int niceIncrement = 10;
    setpriority(PRIO_PGRP, static_cast<id_t>(group), getpriority(PRIO_PROCESS, 0) + niceIncrement);
}

/// Deletes the process, once it has ended. SIGKILL does not end one that waits for a broken disk.
void release(QProcess* process) {
    if (process->state() == QProcess::NotRunning) {
        delete process;
        return;
    }
    process->disconnect();
    QObject::connect(process, &QProcess::finished, process,
                     [process, group = static_cast<pid_t>(process->processId())] {
                         toolGroups().remove(group);
                         process->deleteLater();
                     });
}

using End = std::shared_ptr<QPromise<void>>;

/// Finishes when the process has ended or could not be launched.
End endOf(const QProcess& process) {
    auto end = std::make_shared<QPromise<void>>();
    end->start();
    QObject::connect(&process, &QProcess::stateChanged, [end](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            end->finish();
    });
    return end;
}

void signalGroup(const QProcess* process, int signal) {
    if (process->processId() > 0)
        ::kill(-static_cast<pid_t>(process->processId()), signal);
}

/// Sends SIGTERM, then SIGKILL, then stops waiting.
void terminate(QProcess* process, const End& end) {
    signalGroup(process, SIGTERM);
    QTimer::singleShot(killTimeout, process, [process] { signalGroup(process, SIGKILL); });
    QTimer::singleShot(2 * killTimeout, process, [end] { end->finish(); });
}

/// What a process has printed, or what is left of it where nobody wants it all.
struct PrintedOutput {
    QByteArray text;
    qsizetype passedOn = 0;

    /// Passes on the whole lines that are there.
    void takeFrom(QProcess& process, const ToolRequest& request) {
        if (process.isReadable() && (request.captureOutput || request.onOutput))
            text += process.readAllStandardOutput();
        if (!request.onOutput)
            return;
        for (qsizetype end = text.indexOf(request.lineEnd, passedOn); end >= 0;
             end = text.indexOf(request.lineEnd, passedOn)) {
            request.onOutput(text.sliced(passedOn, end - passedOn));
            passedOn = end + 1;
        }
        if (!request.captureOutput)
            text.remove(0, std::exchange(passedOn, 0));
    }
};

ToolResult resultOf(QProcess& process, bool isOurs) {
    ToolResult result;
    result.launched = process.error() != QProcess::FailedToStart;
    if (result.launched && process.state() == QProcess::NotRunning &&
        process.exitStatus() == QProcess::NormalExit)
        result.exitStatus = process.exitCode();
    if (!isOurs)
        return result;
    const QByteArray said = result.launched ? process.readAllStandardError() : process.errorString().toUtf8();
    result.errorLine = QString::fromUtf8(said.trimmed().split('\n').constFirst());
    if (result.exitStatus == cannotStart) {
        result.launched = false;
        result.exitStatus = -1;
    }
    return result;
}

void reportFailure(const QProcess& process, const ToolResult& result) {
    if (result.launched)
        qCInfo(Log::platform) << "a tool ended with status" << result.exitStatus;
    else
        qCWarning(Log::platform) << "a tool was not launched:" << process.error();
    qCDebug(Log::platform) << process.program() << process.arguments() << result.errorLine;
}

} // namespace

UnixToolRunner::UnixToolRunner(QString toolsFolder)
    : m_toolsFolder(std::move(toolsFolder)) {
    struct sigaction ofChildren {};
    sigaction(SIGCHLD, nullptr, &ofChildren);
    // Some window managers pass it on ignored, and the exit status of children would be lost.
    if (ofChildren.sa_handler == SIG_IGN)
        signal(SIGCHLD, SIG_DFL);
}

QString UnixToolRunner::ownToolsFolder() {
    const QDir own(QCoreApplication::applicationDirPath());
    for (const char* folder : {TAVRIN_TOOLS_FOLDERS}) {
        const QString path = QDir::cleanPath(own.filePath(QString::fromUtf8(folder)));
        if (QFileInfo(path).isDir())
            return path;
    }
    return own.path();
}

QString UnixToolRunner::programFor(const QString& launchPath) const {
    for (const auto& lacking : {u"/usr/bin/memory_pressure"_s, u"/usr/bin/osascript"_s, u"/usr/sbin/purge"_s,
                                u"cleanup"_s, u"fetch_feed"_s, u"project_leftovers"_s}) {
        if (launchPath == lacking)
            return QDir(m_toolsFolder).filePath(QFileInfo(lacking).fileName());
    }
    if (launchPath == u"/usr/bin/du") {
        const QFileInfo faster(QDir(m_toolsFolder), u"du"_s);
        if (faster.isExecutable())
            return faster.filePath();
    }
    return launchPath;
}

QCoro::Task<ToolResult> UnixToolRunner::run(ToolRequest request) {
    const QString program = programFor(request.launchPath);
    const bool isOurs = program != request.launchPath;
    const std::shared_ptr<QProcess> process(new QProcess, release);
    configure(*process, request, isOurs);
    const End end = endOf(*process);
    QFuture<void> ended = end->future();
    process->start(program, request.arguments);
    const auto group = static_cast<pid_t>(process->processId());
    if (group > 0) {
        setpgid(group, group); // as the child does, whoever comes first
        toolGroups().add(group);
        putBehindAll(group);
    }
    if (group > 0 && !request.input.isEmpty()) {
        process->write(request.input);
        process->closeWriteChannel();
    }
    const auto endIt = [tool = process.get(), end] { terminate(tool, end); };
    QTimer patience;
    patience.setSingleShot(true);
    patience.setTimerType(Qt::PreciseTimer);
    QObject::connect(&patience, &QTimer::timeout, process.get(), endIt);
    if (request.timeout)
        patience.start(*request.timeout);
    PrintedOutput output;
    if (request.onOutput)
        QObject::connect(process.get(), &QProcess::readyReadStandardOutput, &patience, [&] {
            output.takeFrom(*process, request);
            if (request.timeout)
                patience.start(*request.timeout);
        });
    const std::stop_callback whenStopped(request.stop, endIt);
    if (process->state() != QProcess::NotRunning) // a program without a name changes no state
        co_await ended;

    if (process->state() == QProcess::NotRunning)
        toolGroups().remove(group);
    ToolResult result = resultOf(*process, isOurs);
    if (!result.succeeded())
        reportFailure(*process, result);
    output.takeFrom(*process, request);
    if (request.captureOutput)
        result.output = output.text;
    co_return result;
}

#include "Platform/Linux/LinuxApplications.h"

#include "Platform/Linux/ApplicationUnit.h"
#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/TerminalSessions.h"
#include "Platform/Log.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxTextBytes = 16 * 1024;

/// Reads a file of procfs or of a sandbox, which may be anything. Returns an empty text on failure.
QByteArray textOf(const QString& path) {
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.read(maxTextBytes)
                                                                      : QByteArray();
}

/// Reads the application's id from flatpak's file in the sandbox (flatpak-metadata(5)).
QString flatpakId(const QByteArray& info) {
    bool isInside = false;
    for (const QByteArray& line : info.split('\n')) {
        if (line.startsWith('['))
            isInside = line == "[Application]";
        else if (isInside && line.startsWith("name="))
            return QString::fromUtf8(line.sliced(5)).simplified();
    }
    return {};
}

} // namespace

LinuxApplications::LinuxApplications(DesktopEntries entries, QString root)
    : m_entries(std::move(entries))
    , m_root(std::move(root)) {}

std::optional<Application> LinuxApplications::ofProgram(const QString& executable) {
    const auto* program = m_entries.ofFile(executable);
    if (!program && QFileInfo(executable).isSymLink())
        program = m_entries.ofFile(QFileInfo(executable).canonicalFilePath());
    return program ? std::optional(Application{program->entry.id, program->entry.name, program->entry.icon})
                   : std::nullopt;
}

std::optional<Application> LinuxApplications::ofProcess(qint32 pid) {
    const QString folder = m_root + u'/' + QString::number(pid);
    const QString executable = QFile::decodeName(
        KernelFile::programBehind(AT_FDCWD, QFile::encodeName(folder + u"/exe"_s).constData()));
    if (auto application = ofSandbox(folder, executable))
        return application;
    if (executable.isEmpty()) {
        qCInfo(Log::platform) << "the executable of a process cannot be read";
        return std::nullopt;
    }
    if (const auto* program = m_entries.ofFile(executable))
        return toldApart(program->entry);
    if (DesktopEntries::isInterpreter(DesktopEntry::fileName(executable)))
        return ofScript(folder);
    const auto unit = ApplicationUnit::of(textOf(folder + u"/cgroup"_s).toStdString());
    return unit.kind == ApplicationUnit::Kind::desktop ? ofUnit(unit.id, executable) : std::nullopt;
}

std::optional<Application> LinuxApplications::ofSandbox(const QString& folder, const QString& executable) {
    if (const QString id = flatpakId(textOf(folder + u"/root/.flatpak-info"_s)); !id.isEmpty())
        return named(id);
    const auto unit = ApplicationUnit::of(textOf(folder + u"/cgroup"_s).toStdString());
    if (unit.kind == ApplicationUnit::Kind::flatpak)
        return named(unit.id);
    return unit.kind == ApplicationUnit::Kind::snap ? ofSnap(unit.id, executable) : std::nullopt;
}

/// Returns the application of a program in the snap's folder. A person starts others in an unconfined snap.
std::optional<Application> LinuxApplications::ofSnap(const QString& name, const QString& executable) {
    if (!executable.startsWith(u"/snap/"_s + name + u'/') &&
        !executable.startsWith(u"/var/lib/snapd/snap/"_s + name + u'/'))
        return std::nullopt;
    return named(name + u'_' + name);
}

Application LinuxApplications::named(const QString& id) {
    const auto* entry = m_entries.withId(id);
    return entry ? toldApart(*entry) : Application{id, id, id};
}

Application LinuxApplications::toldApart(DesktopEntry entry) {
    const bool isUnique = m_entries.idsOf(entry.name).size() < 2;
    return {entry.id, isUnique ? entry.name : entry.id, entry.icon};
}

/// Finds the script, given as an absolute path in the interpreter's first argument that is not an option.
std::optional<Application> LinuxApplications::ofScript(const QString& folder) {
    QByteArrayList arguments = textOf(folder + u"/cmdline"_s).split('\0');
    arguments.removeFirst();
    for (const QByteArray& argument : std::as_const(arguments)) {
        if (argument.startsWith('-'))
            continue;
        const QString script =
            argument.startsWith('/') ? QFileInfo(QFile::decodeName(argument)).canonicalFilePath() : QString();
        const auto* program = script.isEmpty() ? nullptr : m_entries.ofProgram(script);
        return program ? std::optional(toldApart(program->entry)) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<Application> LinuxApplications::ofUnit(const QString& id, const QString& executable) {
    const auto* program = m_entries.ofId(id);
    if (!program || DesktopEntry::fileName(program->file) != DesktopEntry::fileName(executable))
        return std::nullopt;
    return toldApart(program->entry);
}

QList<qint32> LinuxApplications::inTerminalsOf(const QList<qint32>& pids) {
    return TerminalSessions::startedFrom(pids, m_root);
}

#include "Platform/Freedesktop/DesktopEntries.h"

#include "Platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxFileBytes = 256 * 1024;
constexpr qsizetype maxEntries = 5000;
constexpr qsizetype maxFolders = 500;
constexpr int maxDepth = 4;

QString folderOf(const QString& path) {
    return path.first(std::max<qsizetype>(path.lastIndexOf(u'/'), 0));
}

/// Returns the locale of messages in the form of LANG.
QString messageLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QString value = qEnvironmentVariable(variable); !value.isEmpty())
            return value;
    }
    return {};
}

/// Returns the file that runs for `program`, or an empty path.
QString resolved(const QString& program) {
    const QString found = program.contains(u'/') ? program : QStandardPaths::findExecutable(program);
    const QFileInfo file(found);
    return found.startsWith(u'/') && file.isFile() && file.isExecutable() ? file.canonicalFilePath()
                                                                          : QString();
}

bool isScript(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "#!";
}

/// Strips "env NAME=VALUE..." off the command.
QStringList withoutEnv(QStringList command) {
    if (command.isEmpty() || DesktopEntry::fileName(command.first()) != u"env")
        return command;
    command.removeFirst();
    while (!command.isEmpty() && command.first().contains(u'='))
        command.removeFirst();
    return command;
}

/// Returns whether an argument is another program, as in "xterm -e top".
bool runsAnother(const QStringList& command, const QString& program) {
    return std::any_of(command.begin() + 1, command.end(), [&program](const QString& argument) {
        if (argument.startsWith(u'-'))
            return false;
        const QString other = resolved(argument);
        return argument.startsWith(u'/') || (!other.isEmpty() && other != program);
    });
}

/// Returns whether `left` is the plainer entry of a program: the one with fewer arguments.
bool isPlainer(const DesktopEntry& left, const DesktopEntry& right) {
    const auto rank = [](const DesktopEntry& entry) {
        return std::tuple(entry.command.size(), entry.id.size(), entry.id);
    };
    return rank(left) < rank(right);
}

void claim(QHash<QString, DesktopEntries::Program>& index, const QString& key,
           const DesktopEntries::Program& program) {
    const auto known = index.find(key);
    if (known == index.end())
        index.insert(key, program);
    else if (known->file != program.file)
        known->isAmbiguous = true;
    else if (isPlainer(program.entry, known->entry))
        known->entry = program.entry;
}

const DesktopEntries::Program* answer(const QHash<QString, DesktopEntries::Program>& index,
                                      const QString& key) {
    const auto found = index.constFind(key);
    return found == index.cend() || found->isAmbiguous ? nullptr : &*found;
}

bool isInHome(const QString& path) {
    const QString home = QDir::homePath();
    return home.size() > 1 && path.startsWith(home + u'/');
}

} // namespace

QStringList DesktopEntries::usualFolders() {
    return QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
}

DesktopEntries::DesktopEntries(QStringList folders, std::chrono::milliseconds checkInterval)
    : m_folders(std::move(folders))
    , m_checkInterval(checkInterval) {}

bool DesktopEntries::isInterpreter(QStringView name) {
    static constexpr std::array<QStringView, 28> exact = {
        u"env",     u"sh",          u"bash", u"dash",   u"zsh",    u"fish",           u"ksh",
        u"busybox", u"java",        u"node", u"nodejs", u"bun",    u"deno",           u"php",
        u"gjs",     u"gjs-console", u"mono", u"wine",   u"wine64", u"wine-preloader", u"wine64-preloader",
        u"flatpak", u"bwrap",       u"snap", u"pkexec", u"sudo",   u"xdg-open",       u"dotnet"};
    static constexpr std::array<QStringView, 6> starts = {u"python", u"perl",  u"ruby",
                                                          u"lua",    u"guile", u"electron"};
    return std::find(exact.begin(), exact.end(), name) != exact.end() ||
           std::any_of(starts.begin(), starts.end(),
                       [name](QStringView start) { return name.startsWith(start); });
}

bool DesktopEntries::isPrivate(const QString& folder) const {
    static constexpr std::array<QStringView, 10> shared = {
        u"bin", u"sbin", u"lib", u"lib64", u"libexec", u"games", u"share", u"local", u"opt", u"applications"};
    const QString name = DesktopEntry::fileName(folder);
    if (folder.count(u'/') < 2 || name.contains(u"-linux-"_s) ||
        std::find(shared.begin(), shared.end(), name.toLower()) != shared.end())
        return false;
    const QStringList path = qEnvironmentVariable("PATH").split(u':');
    if (path.contains(folder) || folder == QDir::homePath())
        return false;
    if (!isInHome(folder))
        return isInstalled(folder);
    // In the home folder only hidden folders belong to programs: the rest is the user's work.
    const QString below = folder.mid(QDir::homePath().size() + 1);
    return below.startsWith(u'.') && below.contains(u'/');
}

/// Returns true beside a folder of menu entries and in /opt. Elsewhere, as where somebody builds programs, a
/// folder may contain unrelated ones.
bool DesktopEntries::isInstalled(const QString& folder) const {
    static const QString menu = u"/share/applications"_s;
    return folder.startsWith("/opt/"_L1) ||
           std::any_of(m_folders.begin(), m_folders.end(), [&folder](const QString& entries) {
               return entries.endsWith(menu) && folder.startsWith(entries.chopped(menu.size()) + u'/');
           });
}

bool DesktopEntries::hasChanged() const {
    return std::any_of(m_read.begin(), m_read.end(), [](const Folder& folder) {
        return QFileInfo(folder.path).lastModified() != folder.changed;
    });
}

void DesktopEntries::renew() {
    const auto now = std::chrono::steady_clock::now();
    const bool isFirst = m_read.isEmpty();
    if (!isFirst && now - m_lastCheck < m_checkInterval)
        return;
    m_lastCheck = now;
    if (isFirst || hasChanged())
        read();
}

void DesktopEntries::read() {
    m_read.clear();
    m_byId.clear();
    m_fileOfId.clear();
    m_byFile.clear();
    m_byFolder.clear();
    m_byScriptName.clear();
    for (const QString& folder : std::as_const(m_folders))
        readFolder(folder, {}, 0);
    if (m_read.size() >= maxFolders || m_byId.size() >= maxEntries)
        qCWarning(Log::platform) << "more desktop entries than are read";
    for (const DesktopEntry& entry : std::as_const(m_byId)) {
        if (entry.isListed)
            index(entry);
    }
}

void DesktopEntries::readFolder(const QString& root, const QString& below, int depth) {
    const QString path = root + below;
    if (m_read.size() >= maxFolders)
        return;
    m_read.append({path, QFileInfo(path).lastModified()});
    const QDir folder(path);
    for (const QString& file : folder.entryList({u"*.desktop"_s}, QDir::Files)) {
        QString id = (below + u'/' + file.chopped(8)).sliced(1);
        readFile(folder.filePath(file), id.replace(u'/', u'-'));
    }
    if (depth == maxDepth)
        return;
    for (const QString& inner : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks))
        readFolder(root, below + u'/' + inner, depth + 1);
}

/// Reads the first file of each id, even if it only hides the entry.
void DesktopEntries::readFile(const QString& path, const QString& id) {
    if (m_byId.contains(id) || m_byId.size() >= maxEntries)
        return;
    QFile file(path);
    if (file.size() > maxFileBytes || !file.open(QIODevice::ReadOnly)) {
        qCInfo(Log::platform) << "a desktop entry is left out:" << file.error() << file.size() << "bytes";
        qCDebug(Log::platform) << path;
        return;
    }
    DesktopEntry entry =
        DesktopEntry::parse(file.read(maxFileBytes), messageLocale()).value_or(DesktopEntry());
    entry.id = id;
    if (!entry.tryProgram.isEmpty() && resolved(entry.tryProgram).isEmpty())
        entry.isListed = false;
    m_byId.insert(id, entry);
}

void DesktopEntries::index(const DesktopEntry& entry) {
    const QStringList command = withoutEnv(entry.command);
    const QString file = command.isEmpty() ? QString() : resolved(command.first());
    if (file.isEmpty() || isInterpreter(DesktopEntry::fileName(file)) || runsAnother(command, file))
        return;
    const Program program{.entry = entry, .file = file, .isScript = isScript(file)};
    m_fileOfId.insert(entry.id, file);
    claim(m_byFile, file, program);
    if (isPrivate(folderOf(file)))
        claim(m_byFolder, folderOf(file), program);
    if (program.isScript)
        claim(m_byScriptName, DesktopEntry::fileName(file), program);
}

const DesktopEntries::Program* DesktopEntries::ofProgram(const QString& file) {
    renew();
    return answer(m_byFile, file);
}

const DesktopEntries::Program* DesktopEntries::ofId(const QString& id) {
    renew();
    return answer(m_byFile, m_fileOfId.value(id));
}

const DesktopEntries::Program* DesktopEntries::ofFile(const QString& file) {
    if (const Program* program = ofProgram(file))
        return program;
    for (QString folder = folderOf(file); isPrivate(folder); folder = folderOf(folder)) {
        if (m_byFolder.contains(folder))
            return answer(m_byFolder, folder);
        // /usr/lib/chromium contains what the script /usr/bin/chromium starts, and its crash handler.
        const QString main = folder + u'/' + DesktopEntry::fileName(folder);
        if (const Program* script = ofScriptNamedLike(main); script && QFileInfo(main).isExecutable())
            return script;
    }
    return ofScriptNamedLike(file);
}

/// An installed script does not start a program of its name that a person built in the home folder.
const DesktopEntries::Program* DesktopEntries::ofScriptNamedLike(const QString& file) const {
    const Program* script = isInterpreter(DesktopEntry::fileName(file))
                                ? nullptr
                                : answer(m_byScriptName, DesktopEntry::fileName(file));
    return script && (!isInHome(file) || isInHome(script->file)) ? script : nullptr;
}

const DesktopEntry* DesktopEntries::withId(const QString& id) {
    renew();
    const auto found = m_byId.constFind(id);
    return found == m_byId.cend() || !found->isListed ? nullptr : &*found;
}

/// Returns the id of the plainest entry of the same program.
QString DesktopEntries::mainIdOf(const DesktopEntry& entry) const {
    const auto program = m_byFile.constFind(m_fileOfId.value(entry.id));
    return program == m_byFile.cend() ? entry.id : program->entry.id;
}

QStringList DesktopEntries::idsOf(const QString& text) {
    renew();
    QStringList byName;
    for (const DesktopEntry& entry : std::as_const(m_byId)) {
        if (entry.isListed && entry.name == text)
            byName.append(mainIdOf(entry));
    }
    byName.removeDuplicates();
    if (!byName.isEmpty())
        return byName;
    if (const DesktopEntry* entry = withId(text))
        return {mainIdOf(*entry)};
    QStringList byProgram;
    for (const Program& program : std::as_const(m_byFile)) {
        if (DesktopEntry::fileName(program.file) == text)
            byProgram.append(program.entry.id);
    }
    return byProgram;
}

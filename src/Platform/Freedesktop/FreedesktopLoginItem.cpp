#include "Platform/Freedesktop/FreedesktopLoginItem.h"

#include "Platform/Log.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 maxEntryBytes = 65536;

QString autostartFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

QString entryFile() {
    return autostartFolder() + QStringLiteral("/tavrin.desktop");
}

Outcome failure(const QString& path, const QString& reason) {
    qCWarning(Log::platform) << "the login item:" << reason;
    qCDebug(Log::platform) << path;
    return Outcome::failure(QStringLiteral("%1: %2").arg(path, reason));
}

Outcome failure(const QString& path, int error) {
    return failure(path, QString::fromStdString(std::generic_category().message(error)));
}

/// Quotes an argument for the key Exec and escapes field codes.
QString quoted(const QString& argument) {
    QString result;
    for (const QChar character : argument) {
        if (QStringView(u"\"`$\\").contains(character))
            result += u'\\';
        if (character == u'%')
            result += u'%';
        result += character;
    }
    return u'"' + result + u'"';
}

/// Escapes a value of type string.
QByteArray value(QString text) {
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\t', QStringLiteral("\\t"))
        .toUtf8();
}

/// Undoes `value`.
QString unescapedValue(const QByteArray& value) {
    QString text;
    bool isEscaped = false;
    for (const QChar character : QString::fromUtf8(value)) {
        const qsizetype escape = isEscaped ? QStringView(u"nrt").indexOf(character) : -1;
        if (!isEscaped && character == u'\\') {
            isEscaped = true;
            continue;
        }
        text += escape < 0 ? character : QStringView(u"\n\r\t")[escape];
        isEscaped = false;
    }
    return text;
}

/// Returns the value of TryExec in the entry, or an empty path.
QString registeredProgram() {
    QFile file(entryFile());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    constexpr QByteArrayView key = "TryExec=";
    for (const QByteArray& line : file.read(maxEntryBytes).split('\n')) {
        if (line.startsWith(key))
            return unescapedValue(line.mid(key.size()));
    }
    return {};
}

/// Returns the command for Exec, which opens no window: a shell starts names with "=" and with "%", which
/// desktops mistake.
QString command(const QString& program) {
    if (!program.contains(u'%') && !program.contains(u'='))
        return quoted(program) + QStringLiteral(" --hidden");
    return QStringLiteral("/bin/sh -c %1 %2")
        .arg(quoted(QStringLiteral("exec \"$0\" --hidden")), quoted(program));
}

Outcome makeFolder(const QString& folder) {
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    return error ? failure(folder, error.value()) : Outcome::success();
}

} // namespace

FreedesktopLoginItem::FreedesktopLoginItem(QString program)
    : m_program(std::move(program)) {}

QByteArray FreedesktopLoginItem::entry(const QString& program) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Tavrin\n"
           "Comment=Watches memory and disk space and gives them back\n"
           "Exec=" +
           value(command(program)) + "\nTryExec=" + value(program) +
           "\nIcon=tavrin\n"
           "Terminal=false\n"
           "StartupNotify=false\n";
}

Outcome FreedesktopLoginItem::registerItem() {
    if (!QDir::isAbsolutePath(m_program))
        return Outcome::failure(
            QCoreApplication::translate("FreedesktopLoginItem", "The program's own file cannot be found."));
    if (const Outcome made = makeFolder(autostartFolder()); !made.done)
        return made;
    QSaveFile file(entryFile());
    const QByteArray text = entry(m_program);
    // QSaveFile::commit alone does not notice a short write to a full disk.
    const bool saved =
        file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush() && file.commit();
    return saved ? Outcome::success() : failure(entryFile(), file.errorString());
}

Outcome FreedesktopLoginItem::unregisterItem() {
    const QByteArray entry = QFile::encodeName(entryFile());
    const bool removed = unlink(entry.constData()) == 0;
    const int reason = errno;
    struct stat nothing; // a read-only file system refuses to remove missing files too
    const bool neverThere = lstat(entry.constData(), &nothing) != 0 && (errno == ENOENT || errno == ENOTDIR);
    return removed || neverThere ? Outcome::success() : failure(entryFile(), reason);
}

bool FreedesktopLoginItem::isInstalled() const {
    return !QFile::exists(QFileInfo(m_program).dir().filePath(QStringLiteral("CMakeCache.txt")));
}

void FreedesktopLoginItem::replaceGoneProgram() {
    const QString registered = registeredProgram();
    const bool isGone = QDir::isAbsolutePath(registered) && !QFile::exists(registered);
    if (isGone && isInstalled())
        registerItem();
}

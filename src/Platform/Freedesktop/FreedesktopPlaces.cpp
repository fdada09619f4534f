#include "Platform/Freedesktop/FreedesktopPlaces.h"

#include "Platform/Log.h"
#include "Platform/Unix/MountField.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

enum class Base { home, cacheHome, settingsHome, dataHome, stateHome, downloads, desktop, pictures };

struct KnownPlace {
    QStringView path;
    Base base;
    QStringView below;         ///< a pattern, see expanded
    bool isAdditional = false; ///< counts even if the path itself exists
};

// Folders that Linux keeps elsewhere, in the order of the result. Logs have no common folder, and one called
// "logs" may contain conversations: only known folders of logs and those in the state home are listed.
constexpr KnownPlace elsewhere[] = {
    {u"~/Library/Caches", Base::cacheHome, u""},
    {u"~/Library/Caches/Homebrew", Base::cacheHome, u"Homebrew"},
    {u"~/Library/Caches/Yarn", Base::cacheHome, u"yarn"},
    {u"~/Library/Caches/ms-playwright", Base::cacheHome, u"ms-playwright"},
    {u"~/Library/Caches/org.swift.swiftpm", Base::cacheHome, u"org.swift.swiftpm"},
    {u"~/Library/Caches/pip", Base::cacheHome, u"pip"},
    {u"~/Library/Caches/uv", Base::cacheHome, u"uv"},
    {u"~/.pnpm-store", Base::dataHome, u"pnpm/store"},
    {u"~/.Trash", Base::dataHome, u"Trash/files"},
    {u"~/.Trash", Base::dataHome, u"Trash/info"},
    {u"~/Downloads", Base::downloads, u""},
    {u"~/Desktop", Base::desktop, u""},
    {u"~/Desktop", Base::pictures, u"Screenshots", true},
    {u"~/Library/Logs", Base::stateHome, u"*/logs", true},
    {u"~/Library/Logs", Base::stateHome, u"*/log", true},
    {u"~/Library/Logs", Base::settingsHome, u"Code/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"Code - OSS/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"VSCodium/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"Cursor/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"Windsurf/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"Claude/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"Slack/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"Postman/logs", true},
    {u"~/Library/Logs", Base::settingsHome, u"obs-studio/logs", true},
    {u"~/Library/Logs", Base::dataHome, u"xorg", true},
    {u"~/Library/Logs", Base::dataHome, u"JetBrains/Toolbox/logs", true},
    {u"~/Library/Logs", Base::dataHome, u"Steam/logs", true},
    {u"~/Library/Logs", Base::cacheHome, u"JetBrains/*/log", true},
    {u"~/Library/Logs", Base::home, u".npm/_logs", true},
    {u"~/Library/Logs", Base::home, u".pm2/logs", true},
    {u"~/Library/Logs", Base::home, u".codex/log", true},
    {u"~/Library/Logs", Base::home, u".minikube/logs", true},
    {u"~/Library/Logs", Base::home, u".docker/desktop/log", true},
};

/// Folders that a variable may name, with where they are without it. A path begins with "$NAME/".
struct NamedFolder {
    const char* variable;
    QStringView otherwise; ///< in the home folder, or in another of the table
};

constexpr NamedFolder namedFolders[] = {
    {"HOME", u"~/."},
    {"XDG_CACHE_HOME", u"~/.cache"},
    {"XDG_CONFIG_HOME", u"~/.config"},
    {"XDG_DATA_HOME", u"~/.local/share"},
    {"XDG_STATE_HOME", u"~/.local/state"},
    {"BUN_INSTALL", u"~/.bun"},
    {"CARGO_HOME", u"~/.cargo"},
    {"CCACHE_DIR", u"$XDG_CACHE_HOME/ccache"},
    {"CLAUDE_CONFIG_DIR", u"~/.claude"},
    {"CODEX_HOME", u"~/.codex"},
    {"CONAN_HOME", u"~/.conan2"},
    {"COREPACK_HOME", u"$XDG_CACHE_HOME/node/corepack"},
    {"DENO_DIR", u"$XDG_CACHE_HOME/deno"},
    {"GRADLE_USER_HOME", u"~/.gradle"},
    {"HF_HOME", u"$XDG_CACHE_HOME/huggingface"},
    {"OLLAMA_MODELS", u"~/.ollama/models"},
    {"QWEN_HOME", u"~/.qwen"},
    {"RUSTUP_HOME", u"~/.rustup"},
    {"SCCACHE_DIR", u"$XDG_CACHE_HOME/sccache"},
};

/// Bounds what a pattern may stand for.
constexpr qsizetype maxExpanded = 1000;

/// Returns HOME if it is the absolute path of an existing folder other than the root.
std::optional<QString> homeFolder() {
    const QString home = qEnvironmentVariable("HOME");
    const QString canonical = QFileInfo(home).canonicalFilePath();
    if (!home.startsWith(u'/') || canonical.isEmpty() || canonical == u"/") {
        qCWarning(Log::platform) << "HOME names no folder of a user";
        return std::nullopt;
    }
    return QDir::cleanPath(home);
}

/// Ignores a relative path, which is invalid in such a variable.
QString xdgFolder(const char* variable, const QString& otherwise) {
    const QString folder = qEnvironmentVariable(variable);
    if (!folder.isEmpty() && !folder.startsWith(u'/'))
        qCInfo(Log::platform) << variable << "is ignored: its path is relative";
    return folder.startsWith(u'/') ? QDir::cleanPath(folder) : otherwise;
}

QString folderOf(Base base, const QString& home) {
    switch (base) {
    case Base::home:
        return home;
    case Base::cacheHome:
        return xdgFolder("XDG_CACHE_HOME", home + u"/.cache"_s);
    case Base::settingsHome:
        return xdgFolder("XDG_CONFIG_HOME", home + u"/.config"_s);
    case Base::stateHome:
        return xdgFolder("XDG_STATE_HOME", home + u"/.local/state"_s);
    case Base::dataHome:
        return xdgFolder("XDG_DATA_HOME", home + u"/.local/share"_s);
    case Base::downloads:
        return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    case Base::desktop:
        return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    case Base::pictures:
        return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    }
    return {};
}

bool contains(const QString& outer, const QString& inner) {
    return outer == inner || outer == u"/" || inner.startsWith(outer + u'/');
}

QString canonical(const QString& path) {
    const QString found = QFileInfo(path).canonicalFilePath();
    return found.isEmpty() ? QDir::cleanPath(path) : found;
}

bool isPattern(const QString& name) {
    return name.contains(u'*') || name.contains(u'?');
}

/// Returns the existing folders of an absolute path in which "*" and "?" stand for any text and any character
/// of a name, as many as the bound allows. They stand for no symlink. A path without them may name a file.
QStringList expanded(const QString& pattern) {
    constexpr auto matched =
        QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks | QDir::CaseSensitive;
    QStringList found{QString()};
    bool isPlain = true;
    for (const QString& name : pattern.split(u'/', Qt::SkipEmptyParts)) {
        if (!isPattern(name)) {
            for (QString& folder : found)
                folder += u'/' + name;
            continue;
        }
        isPlain = false;
        QStringList inside;
        for (const QString& folder : std::as_const(found)) {
            const QDir outer(folder + u'/');
            for (const QString& each : outer.entryList({name}, matched)) {
                if (inside.size() < maxExpanded)
                    inside.append(outer.filePath(each));
            }
        }
        found = inside;
    }
    found.removeIf([isPlain](const QString& path) {
        return isPlain ? !QFileInfo::exists(path) : !QFileInfo(path).isDir();
    });
    return found;
}

/// Returns the path with the folder in the place of the "~" or "$NAME" that it begins with, or an empty text
/// where neither is known.
QString absolute(const QString& path, const QString& home) {
    if (path.startsWith("~/"_L1))
        return home + path.mid(1);
    const QString name = path.mid(1).section(u'/', 0, 0);
    for (const NamedFolder& named : namedFolders) {
        if (name != QLatin1StringView(named.variable))
            continue;
        const QString folder = xdgFolder(named.variable, absolute(named.otherwise.toString(), home));
        return QDir::cleanPath(folder + path.mid(name.size() + 1));
    }
    return {};
}

/// Returns the folders that are no caches.
QStringList keptForGood(const QString& home) {
    return {folderOf(Base::settingsHome, home), folderOf(Base::dataHome, home),
            folderOf(Base::stateHome, home)};
}

QStringList userFolders() {
    QStringList folders;
    for (const auto kind : {QStandardPaths::DocumentsLocation, QStandardPaths::DownloadLocation,
                            QStandardPaths::DesktopLocation, QStandardPaths::PicturesLocation,
                            QStandardPaths::MusicLocation, QStandardPaths::MoviesLocation})
        folders.append(QStandardPaths::writableLocation(kind));
    return folders;
}

QString aFileSystem(const QString& folder) {
    return QCoreApplication::translate("FreedesktopPlaces",
                                       "%1 is left alone: a whole file system is mounted there.")
        .arg(folder);
}

} // namespace

FreedesktopPlaces::FreedesktopPlaces(std::string mountInfo)
    : m_mountInfo(std::move(mountInfo)) {}

QList<Place> FreedesktopPlaces::locate(const QString& path) const {
    if (path.startsWith(u'/'))
        return {{path}};
    const auto home = homeFolder();
    if (!home)
        return {};
    if (path.startsWith(u'$') || isPattern(path))
        return located(path, *home);
    if (!path.startsWith(u"~/"))
        return {};

    const QString asItStands = *home + path.mid(1);
    const bool stands = QFileInfo::exists(asItStands);
    QList<Place> places;
    if (stands)
        places.append({asItStands, objection(asItStands, *home)});
    const QString toCaches = objectionToCacheHome(folderOf(Base::cacheHome, *home), *home);
    for (const KnownPlace& known : elsewhere) {
        if (known.path != path || (stands && !known.isAdditional))
            continue;
        const QString pattern = QDir::cleanPath(folderOf(known.base, *home) + u'/' + known.below.toString());
        for (const QString& place : expanded(pattern)) {
            const bool isCache = known.base == Base::cacheHome && !toCaches.isEmpty();
            places.append({place, isCache ? toCaches : objection(place, *home)});
        }
    }
    if (places.isEmpty())
        return {{asItStands}};
    // A disabled user folder is configured as the home folder, and variables may name any folder.
    const auto isNoPlace = [&](const Place& place) {
        const bool isExplained = !toCaches.isEmpty() && place.objection == toCaches;
        return contains(canonical(place.path), canonical(*home)) && !isExplained;
    };
    places.removeIf(isNoPlace);
    return places;
}

QList<Place> FreedesktopPlaces::located(const QString& path, const QString& home) const {
    const QString pattern = absolute(path, home);
    const bool isNamed = path.startsWith(u'$') && !path.startsWith("$XDG_"_L1) &&
                         !path.startsWith("$HOME/"_L1) &&
                         qEnvironmentVariableIsSet(path.mid(1).section(u'/', 0, 0).toLatin1());
    const bool isCache = path.startsWith("$XDG_CACHE_HOME/"_L1);
    const QString toCaches =
        isCache ? objectionToCacheHome(folderOf(Base::cacheHome, home), home) : QString();
    QList<Place> places;
    for (const QString& place : expanded(pattern)) {
        if (contains(canonical(place), canonical(home)))
            continue;
        QString reason = toCaches.isEmpty() ? objection(place, home) : toCaches;
        if (reason.isEmpty() && isNamed)
            reason = objectionToCacheHome(place, home);
        if (reason.isEmpty() && isMountPoint(canonical(place)))
            reason = aFileSystem(place);
        places.append({place, reason});
    }
    return places;
}

bool FreedesktopPlaces::canExist(const QString& path) const {
    const auto isIt = [&](const KnownPlace& known) { return known.path == path; };
    return !path.startsWith("~/Library/"_L1) || std::ranges::any_of(elsewhere, isIt);
}

QString FreedesktopPlaces::objection(const QString& place, const QString& home) const {
    if (QFileInfo(place).isSymLink())
        return QCoreApplication::translate("FreedesktopPlaces", "%1 is left alone: it is a link.").arg(place);
    if (canonical(place) == canonical(folderOf(Base::cacheHome, home)))
        return objectionToCacheHome(place, home);
    for (const QString& kept : keptForGood(home)) {
        if (contains(canonical(place), canonical(kept)))
            return QCoreApplication::translate("FreedesktopPlaces",
                                               "%1 is left alone: it holds more than that, in %2.")
                .arg(place, kept);
    }
    return {};
}

QString FreedesktopPlaces::objectionToCacheHome(const QString& folder, const QString& home) const {
    const QString place = canonical(folder);
    if (place == u"/tmp" || place == u"/var/tmp")
        return QCoreApplication::translate("FreedesktopPlaces", "%1 is left alone: all programs share it.")
            .arg(folder);
    if (isMountPoint(place))
        return aFileSystem(folder);
    for (const QString& kept : keptForGood(home) + userFolders()) {
        const QString other = canonical(kept);
        if (other != canonical(home) && (contains(place, other) || contains(other, place)))
            return QCoreApplication::translate(
                       "FreedesktopPlaces",
                       "%1 is left alone: the folder of caches must have nothing to do with %2.")
                .arg(folder, kept);
    }
    return {};
}

bool FreedesktopPlaces::isMountPoint(const QString& folder) const {
    std::ifstream table(m_mountInfo);
    if (!table) {
        qCWarning(Log::platform) << "the mounts cannot be read";
        return true;
    }
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string id, parent, device, root, mountPoint;
        fields >> id >> parent >> device >> root >> mountPoint;
        if (unescapedMountField(QByteArray::fromStdString(mountPoint)) == folder)
            return true;
    }
    return false;
}

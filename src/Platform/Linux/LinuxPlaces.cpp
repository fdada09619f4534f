#include "Platform/Linux/LinuxPlaces.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <fstream>
#include <optional>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

enum class Base { cacheHome, dataHome, downloads, desktop };

struct Row {
    QStringView path;
    Base base;
    QStringView below;
};

// What Linux keeps elsewhere. A path may have several rows: its places, in this order.
constexpr Row elsewhere[] = {
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
};

/// Empty unless HOME is the absolute path of an existing folder other than the root.
std::optional<QString> homeFolder() {
    const QString home = qEnvironmentVariable("HOME");
    const QString canonical = QFileInfo(home).canonicalFilePath();
    if (!home.startsWith(u'/') || canonical.isEmpty() || canonical == u"/")
        return std::nullopt;
    return QDir::cleanPath(home);
}

/// A relative path in such a variable is invalid and to be ignored.
QString xdgFolder(const char* variable, const QString& otherwise) {
    const QString folder = qEnvironmentVariable(variable);
    return folder.startsWith(u'/') ? QDir::cleanPath(folder) : otherwise;
}

QString folderOf(Base base, const QString& home) {
    switch (base) {
    case Base::cacheHome:
        return xdgFolder("XDG_CACHE_HOME", home + u"/.cache"_s);
    case Base::dataHome:
        return xdgFolder("XDG_DATA_HOME", home + u"/.local/share"_s);
    case Base::downloads:
        return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    case Base::desktop:
        return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    }
    return {};
}

bool holds(const QString& outer, const QString& inner) {
    return outer == inner || outer == u"/" || inner.startsWith(outer + u'/');
}

/// A user folder that is switched off is configured as the home folder, and a variable may say anything:
/// what holds the home folder is nobody's cache.
bool holdsHome(const QString& place, const QString& home) {
    return holds(QFileInfo(place).canonicalFilePath(), QFileInfo(home).canonicalFilePath());
}

/// Undoes the octal escapes of blanks and backslashes.
QString unescaped(const std::string& field) {
    QByteArray bytes;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            bytes += static_cast<char>(QByteArray(field.data() + i + 1, 3).toInt(nullptr, 8));
            i += 3;
        } else {
            bytes += field[i];
        }
    }
    return QFile::decodeName(bytes);
}

} // namespace

LinuxPlaces::LinuxPlaces(std::string mountInfo)
    : m_mountInfo(std::move(mountInfo)) {}

QStringList LinuxPlaces::locate(const QString& path) const {
    if (path.startsWith(u'/'))
        return {path};
    const auto home = homeFolder();
    if (!home || !path.startsWith(u"~/"))
        return {};

    const QString asItStands = *home + path.mid(1);
    QStringList places;
    if (QFileInfo::exists(asItStands)) {
        places.append(asItStands);
    } else {
        for (const Row& row : elsewhere) {
            if (row.path != path)
                continue;
            const QString place = QDir::cleanPath(folderOf(row.base, *home) + u'/' + row.below.toString());
            if (QFileInfo::exists(place))
                places.append(place);
        }
        if (places.isEmpty())
            return {asItStands};
    }
    places.removeIf([&](const QString& place) { return holdsHome(place, *home); });
    return places;
}

bool LinuxPlaces::reachesMount(const QString& folder) const {
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    if (canonical.isEmpty())
        return false;
    std::ifstream table(m_mountInfo);
    if (!table)
        return true;
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string id, parent, device, root, mountPoint, options;
        fields >> id >> parent >> device >> root >> mountPoint >> options;
        const QString place = unescaped(mountPoint);
        const bool readOnly = options == "ro" || options.starts_with("ro,");
        if (!readOnly && place != canonical && holds(canonical, place))
            return true;
    }
    return false;
}

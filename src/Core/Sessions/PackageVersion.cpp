#include "Core/Sessions/PackageVersion.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxPackageBytes = 256 << 10;
constexpr qsizetype maxVersionLength = 40;

/// Returns the folder of the package that the path is in, with "@scope/NAME" as one; empty without one.
QString packageFolder(const QString& path) {
    constexpr auto modules = "/node_modules/"_L1;
    const qsizetype at = path.lastIndexOf(modules);
    if (at < 0)
        return {};
    const qsizetype name = at + modules.size();
    qsizetype end = path.indexOf(u'/', name);
    if (path[name] == u'@' && end >= 0)
        end = path.indexOf(u'/', end + 1);
    return end < 0 ? QString() : path.first(end);
}

QString versionOfPackage(const QString& folder) {
    QFile file(folder + "/package.json"_L1);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject package = QJsonDocument::fromJson(file.read(maxPackageBytes)).object();
    return package.value("version"_L1).toString().left(maxVersionLength);
}

} // namespace

QString packageVersion(const QString& path) {
    if (!path.startsWith(u'/'))
        return {};
    const QString file = QFileInfo(path).canonicalFilePath();
    const QString folder = packageFolder(file);
    if (!folder.isEmpty())
        return versionOfPackage(folder);
    const QStringList parts = file.split(u'/', Qt::SkipEmptyParts);
    const qsizetype versions = parts.lastIndexOf(u"versions"_s);
    const QString below = parts.value(versions + 2);
    const bool isInterpreters = below == "bin"_L1 || below == "lib"_L1; // of a version manager
    const QString version = versions < 0 || isInterpreters ? QString() : parts.value(versions + 1);
    return version.contains(u'.') ? version.left(maxVersionLength) : QString();
}

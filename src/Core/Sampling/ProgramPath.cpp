#include "Core/Sampling/ProgramPath.h"

#include <QDir>

#include <array>

namespace {

constexpr std::array<QStringView, 8> scriptSuffixes = {u".js", u".mjs", u".cjs", u".ts",
                                                       u".py", u".sh",  u".rb",  u".pl"};

/// Returns whether `path` is `folder` or below it.
bool isBelow(QStringView path, QStringView folder) {
    return !folder.isEmpty() && path.startsWith(folder) &&
           (path.size() == folder.size() || path[folder.size()] == u'/');
}

/// Returns "NAME" for "NAME@1.2".
QStringView withoutPackageVersion(QStringView package) {
    const qsizetype version = package.indexOf(u'@', 1);
    return version < 0 ? package : package.first(version);
}

QStringView folderAfter(QStringView path, QStringView mark) {
    const qsizetype found = path.lastIndexOf(mark);
    return found < 0 ? QStringView() : path.sliced(found + mark.size());
}

} // namespace

QStringView ProgramPath::lastComponent(QStringView path) {
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QStringView ProgramPath::scriptName(QStringView path) {
    QStringView name = lastComponent(path);
    for (const QStringView suffix : scriptSuffixes) {
        if (name.size() > suffix.size() && name.endsWith(suffix))
            return name.chopped(suffix.size());
    }
    return name;
}

QStringView ProgramPath::packageName(QStringView program) {
    QStringView package = program;
    const bool isPath = program.contains(u'/') && !program.startsWith(u'@'); // of a script or an image
    if (isPath) {
        package = folderAfter(program, u"/node_modules/");
        if (package.isEmpty())
            package = folderAfter(program, u"/site-packages/");
        if (package.isEmpty() || package.startsWith(u'.'))
            return {};
    }
    if (package.startsWith(u'@')) {
        const qsizetype scopeEnd = package.indexOf(u'/');
        if (scopeEnd < 0)
            return {};
        package = package.sliced(scopeEnd + 1);
    }
    const qsizetype end = package.indexOf(u'/');
    return withoutPackageVersion(end < 0 ? package : package.first(end));
}

QStringView ProgramPath::withoutPrefix(QStringView path) {
    const QString home = QDir::homePath();
    if (home.size() > 1 && isBelow(path, home))
        return path.sliced(home.size());
    constexpr QStringView libraries = u"/usr/lib/";
    if (!path.startsWith(libraries))
        return path;
    const qsizetype end = path.indexOf(u'/', libraries.size());
    const bool isArchitecture = end > 0 && path.first(end).contains(u"-linux-gnu");
    return isArchitecture ? path.sliced(end) : path;
}

QString ProgramPath::withTilde(const QString& folder) {
    const QString home = QDir::homePath();
    return isBelow(folder, home) ? u'~' + folder.sliced(home.size()) : folder;
}

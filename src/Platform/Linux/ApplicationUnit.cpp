#include "Platform/Linux/ApplicationUnit.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Undoes "\xNN", the escape of unit names.
QString unescaped(const QString& name) {
    QByteArray bytes;
    const QByteArray text = name.toUtf8();
    for (qsizetype i = 0; i < text.size(); ++i) {
        bool isNumber = false;
        const int value = text.sliced(i).startsWith("\\x") ? text.mid(i + 2, 2).toInt(&isNumber, 16) : 0;
        bytes += isNumber ? static_cast<char>(value) : text[i];
        i += isNumber ? 3 : 0;
    }
    return QString::fromUtf8(bytes);
}

/// Returns the path in systemd's hierarchy.
QString pathIn(std::string_view cgroup) {
    for (const QString& line :
         QString::fromUtf8(cgroup.data(), static_cast<qsizetype>(cgroup.size())).split(u'\n')) {
        const QString controllers = line.section(u':', 1, 1);
        if (line.startsWith(u"0::") || controllers == u"name=systemd")
            if (const QString path = line.section(u':', 2); path != u"/")
                return path;
    }
    return {};
}

ApplicationUnit unitNamed(const QString& unit) {
    const bool isScope = unit.endsWith(u".scope");
    if (unit.startsWith(u"snap."))
        return {ApplicationUnit::Kind::snap, unit.section(u'.', 1, 1)};
    if (!unit.startsWith(u"app-") || (!isScope && !unit.endsWith(u".service")))
        return {};
    QString name = unit.first(unit.lastIndexOf(u'.'));
    if (!isScope)
        name = name.section(u'@', 0, 0);
    QStringList parts = name.split(u'-');
    parts.removeFirst();
    if (isScope)
        parts.removeLast(); // the random part
    if (parts.isEmpty() || parts.size() > 2 || parts.last().isEmpty())
        return {};
    const bool isFlatpak = parts.size() == 2 && parts.first() == u"flatpak";
    return {isFlatpak ? ApplicationUnit::Kind::flatpak : ApplicationUnit::Kind::desktop,
            unescaped(parts.last())};
}

} // namespace

ApplicationUnit ApplicationUnit::of(std::string_view cgroup) {
    const QStringList groups = pathIn(cgroup).split(u'/', Qt::SkipEmptyParts);
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
        if (group->endsWith(u".scope") || group->endsWith(u".service"))
            return unitNamed(*group);
    }
    return {};
}

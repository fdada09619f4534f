#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The text of every source file, by its path below src/.
using SourceTree = QMap<QString, QString>;

struct Include {
    QString file;
    int line = 0;
    QString target;
    bool quoted = false; ///< one of ours, "..."

    QString fault(const QString& what) const {
        return u"%1:%2: includes %3, %4"_s.arg(file).arg(line).arg(target, what);
    }
};

QList<Include> includesOf(const QString& file, const QString& text) {
    static const QRegularExpression pattern(uR"(^\s*#\s*include\s*(["<])([^">]+)[">])"_s);
    QList<Include> includes;
    int line = 0;
    for (const QString& content : text.split(u'\n')) {
        ++line;
        const auto match = pattern.match(content);
        if (match.hasMatch())
            includes.append({file, line, match.captured(2), match.captured(1) == u"\""_s});
    }
    return includes;
}

QList<Include> includesOf(const SourceTree& tree) {
    QList<Include> includes;
    for (auto it = tree.begin(); it != tree.end(); ++it)
        includes += includesOf(it.key(), it.value());
    return includes;
}

/// The floor that a file stands on, counted from the ground; empty for a file that has no place.
std::optional<int> floorOf(const QString& file) {
    static const QList<std::pair<QString, int>> floors = {
        {u"Platform/"_s, 0},    {u"Tools/"_s, 0},     {u"Core/"_s, 1},
        {u"Preferences."_s, 1}, {u"AppModel"_s, 2},   {u"UI/"_s, 3},
        {u"main."_s, 4},        {u"TavrinApp."_s, 4}, {u"AppDelegate."_s, 4},
    };
    for (const auto& [start, floor] : floors) {
        if (file.startsWith(start))
            return floor;
    }
    return std::nullopt;
}

bool isLinux(const QString& file) {
    return file.startsWith(u"Platform/Linux/"_s);
}

bool isPlatformInterface(const QString& file) {
    return file.startsWith(u"Platform/"_s) && !isLinux(file) && file.endsWith(u".h"_s);
}

/// Whether a file may know of windows: those of the upper floors, and what Platform asks of a desktop.
bool mayUseWindows(const QString& file) {
    return floorOf(file) >= 3 || file.startsWith(u"Platform/Desktop/"_s) ||
           file.startsWith(u"Platform/Linux/Desktop/"_s);
}

/// Whether a header belongs to one of Qt's modules with windows or pictures in them.
bool isWindowHeader(const QString& header) {
    static const QDir qt(QLibraryInfo::path(QLibraryInfo::HeadersPath));
    for (const auto* module : {"QtGui", "QtWidgets", "QtSvg"}) {
        const QString folder = QString::fromLatin1(module) + u'/';
        if (header.startsWith(folder) || qt.exists(folder + header))
            return true;
    }
    return false;
}

/// Why the file may not include another one of ours; empty when it may.
QString objection(const QString& file, const QString& target) {
    if (floorOf(file) < floorOf(target))
        return u"from a floor above"_s;
    if (isPlatformInterface(file))
        return u"where nothing of ours may be"_s;
    if (isLinux(target) && !isLinux(file))
        return u"which only Linux's own files may know"_s;
    if (mayUseWindows(target) && !mayUseWindows(file))
        return u"which has windows in it"_s;
    return {};
}

/// What remains of the tree once each file goes that includes none of the remaining, or that none includes.
QStringList inCircles(const SourceTree& tree) {
    QMap<QString, QSet<QString>> targets;
    for (const Include& include : includesOf(tree)) {
        if (include.quoted)
            targets[include.file] += include.target;
    }
    const auto leadsOn = [&targets](const QSet<QString>& to) {
        return std::any_of(to.begin(), to.end(),
                           [&](const QString& target) { return targets.contains(target); });
    };
    const auto isReached = [&targets](const QString& file) {
        return std::any_of(targets.begin(), targets.end(),
                           [&](const auto& from) { return from.contains(file); });
    };
    while (targets.removeIf(
        [&](const auto& each) { return !leadsOn(each.value()) || !isReached(each.key()); })) {
    }
    return targets.keys();
}

QStringList faultsOf(const SourceTree& tree) {
    QStringList faults;
    for (const QString& file : tree.keys()) {
        if (!floorOf(file))
            faults += u"%1: stands on no floor"_s.arg(file);
    }
    for (const Include& include : includesOf(tree)) {
        const QString why = objection(include.file, include.target);
        if (include.quoted && !tree.contains(include.target))
            faults += include.fault(u"which is no file below src/"_s);
        else if (include.quoted && !why.isEmpty())
            faults += include.fault(why);
        else if (!include.quoted && !mayUseWindows(include.file) && isWindowHeader(include.target))
            faults += include.fault(u"a header with windows in it"_s);
    }
    const QStringList circle = inCircles(tree);
    return circle.isEmpty() ? faults : faults << u"a circle: "_s + circle.join(u", "_s);
}

SourceTree readSources() {
    const QDir root(QStringLiteral(TAVRIN_SOURCE_DIR "/src"));
    SourceTree tree;
    QDirIterator files(root.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        tree.insert(root.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()));
    }
    return tree;
}

const SourceTree soundTree = {
    {u"Platform/Clock.h"_s, u"#include <chrono>\nclass Platform;\n"_s},
    {u"Platform/Desktop/Popover.h"_s, u"#include <QWidget>\n"_s},
    {u"Platform/Linux/LinuxClock.h"_s, u"#include \"Platform/Clock.h\"\n"_s},
    {u"Platform/Linux/LinuxClock.cpp"_s, u"#include \"Platform/Linux/LinuxClock.h\"\n"_s},
    {u"Preferences.h"_s, u"#include \"Core/Models.h\"\n#include <QSettings>\n"_s},
    {u"Core/Models.h"_s, u"// #include \"Core/Models.h\"\n#include <QString>\n"_s},
    {u"Core/Sampler.h"_s, u"#include \"Core/Models.h\"\n#include \"Platform/Clock.h\"\n"_s},
    {u"AppModel.h"_s, u"#include \"Core/Sampler.h\"\n#include \"Preferences.h\"\n"_s},
    {u"UI/RootView.cpp"_s,
     u"#include \"AppModel.h\"\n#include \"Platform/Desktop/Popover.h\"\n#include <QIcon>\n"_s},
    {u"main.cpp"_s, u"#include \"AppModel.h\"\n#include \"UI/RootView.cpp\"\n"_s},
};

} // namespace

TEST(Includes, EveryRuleIsChecked) {
    EXPECT_EQ(faultsOf(soundTree), QStringList());
    /// What is appended to a file of the sound tree, or is a file of its own; the line and what it may not.
    const std::tuple<QString, QString, QString> cases[] = {
        {u"Core/Models.h"_s, u"  # include \"AppDelegate.h\""_s,
         u"3: includes AppDelegate.h, which is no file below src/"_s},
        {u"Platform/Linux/LinuxClock.cpp"_s, u"#include \"Core/Models.h\""_s,
         u"2: includes Core/Models.h, from a floor above"_s},
        {u"UI/Row.h"_s, u"#include \"main.cpp\""_s, u"1: includes main.cpp, from a floor above"_s},
        {u"Platform/Host.h"_s, u"#include \"Platform/Clock.h\""_s,
         u"1: includes Platform/Clock.h, where nothing of ours may be"_s},
        {u"Core/Sampler.h"_s, u"#include \"Platform/Linux/LinuxClock.h\""_s,
         u"3: includes Platform/Linux/LinuxClock.h, which only Linux's own files may know"_s},
        {u"AppModel.h"_s, u"#include \"Platform/Desktop/Popover.h\""_s,
         u"3: includes Platform/Desktop/Popover.h, which has windows in it"_s},
        {u"Core/Models.h"_s, u"#include <QColor>"_s, u"3: includes QColor, a header with windows in it"_s},
        {u"Platform/Linux/LinuxClock.cpp"_s, u"#include <QtWidgets/QLabel>"_s,
         u"2: includes QtWidgets/QLabel, a header with windows in it"_s},
        {u"Core/Sampler.h"_s, u"#include \"Models.h\""_s,
         u"3: includes Models.h, which is no file below src/"_s},
        {u"Helpers/Misc.h"_s, {}, u" stands on no floor"_s},
    };
    for (const auto& [file, text, fault] : cases) {
        SourceTree tree = soundTree;
        tree[file] += text;
        EXPECT_EQ(faultsOf(tree), QStringList(file + u':' + fault));
    }
    const std::tuple<QString, QString, QString> circles[] = {
        {u"main.h"_s, u"#include \"main.h\""_s, u"main.h"_s},
        {u"Core/Models.h"_s, u"#include \"Core/Sampler.h\""_s, u"Core/Models.h, Core/Sampler.h"_s}};
    for (const auto& [file, text, circle] : circles) {
        SourceTree tree = soundTree;
        tree[file] += text;
        EXPECT_EQ(faultsOf(tree), QStringList(u"a circle: "_s + circle));
    }
}

TEST(Includes, OfTheSourcesPointDownAndNeverInCircles) {
    const SourceTree tree = readSources();
    ASSERT_TRUE(tree.contains(u"main.cpp"_s) && tree.contains(u"Core/Models.h"_s));
    const QStringList faults = faultsOf(tree);
    EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(u'\n'));
}

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

/// The text of each source file, by its path below src/.
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

QList<Include> includesOf(const SourceTree& tree) {
    static const QRegularExpression pattern(uR"(^\s*#\s*include\s*(["<])([^">]+)[">])"_s);
    QList<Include> includes;
    for (const auto& [file, text] : tree.asKeyValueRange()) {
        int line = 0;
        for (const QString& content : text.split(u'\n')) {
            ++line;
            if (const auto match = pattern.match(content); match.hasMatch())
                includes.append({file, line, match.captured(2), match.captured(1) == u"\""_s});
        }
    }
    return includes;
}

/// Returns the floor of a file, counted from the ground, or an empty optional for an unknown file.
std::optional<int> floorOf(const QString& file) {
    static const QList<std::pair<QString, int>> floors = {
        {u"Platform/"_s, 0},     {u"Tools/"_s, 0},         {u"Core/"_s, 1},        {u"Preferences."_s, 1},
        {u"Model/"_s, 2},        {u"AppModel."_s, 2},      {u"UI/"_s, 3},          {u"Cli/"_s, 3},
        {u"TavrinApp."_s, 4},    {u"AppDelegate."_s, 4},   {u"main."_s, 4},        {u"tavrinctl."_s, 4},
        {u"DisplayGuard."_s, 4}, {u"LaunchOptions."_s, 4}, {u"Destination."_s, 4}, {u"ProgramBus."_s, 4},
    };
    for (const auto& [start, floor] : floors) {
        if (file.startsWith(start))
            return floor;
    }
    return std::nullopt;
}

/// The folders that implement Platform, each with those that it builds on.
const QMap<QString, QStringList> answers = {
    {u"Unix"_s, {}},
    {u"Freedesktop"_s, {u"Unix"_s}},
    {u"Linux"_s, {u"Unix"_s, u"Freedesktop"_s}},
    {u"Null"_s, {}},
};

/// Returns the folder of `answers` that contains the file, or an empty text.
QString answerOf(const QString& file) {
    const QStringList parts = file.split(u'/');
    return parts.first() == u"Platform"_s && answers.contains(parts.value(1)) ? parts[1] : QString();
}

bool isPlatformInterface(const QString& file) {
    return file.startsWith(u"Platform/"_s) && answerOf(file).isEmpty() && file.endsWith(u".h"_s);
}

/// Returns whether the file is in the folder `answer` or in one that builds on it.
bool mayKnowAnswer(const QString& file, const QString& answer) {
    const QString own = answerOf(file);
    return own == answer || answers.value(own).contains(answer) ||
           file.startsWith(u"Tools/"_s); // programs for Linux alone
}

/// Returns true for the files of the program for a terminal.
bool isOfTerminal(const QString& file) {
    return file.startsWith(u"Cli/"_s) || file.startsWith(u"tavrinctl."_s);
}

/// Returns true for files of the upper floors and for Platform's desktop folders.
bool mayUseWindows(const QString& file) {
    return (floorOf(file) >= 3 && !isOfTerminal(file)) ||
           (file.startsWith(u"Platform/"_s) && file.contains(u"/Desktop/"_s));
}

/// Returns whether a header belongs to one of Qt's modules for windows or pictures.
bool isWindowHeader(const QString& header) {
    static const QDir qt(QLibraryInfo::path(QLibraryInfo::HeadersPath));
    for (const auto* module : {"QtGui", "QtWidgets", "QtSvg"}) {
        const QString folder = QString::fromLatin1(module) + u'/';
        if (header.startsWith(folder) || qt.exists(folder + header))
            return true;
    }
    return false;
}

/// Returns why the file must not include another one of ours, or an empty text.
QString objection(const QString& file, const QString& target) {
    if (floorOf(file) < floorOf(target))
        return u"from a floor above"_s;
    if (isPlatformInterface(file))
        return target == u"Platform/Result.h"_s ? QString() : u"where nothing of ours may be"_s;
    if (const QString answer = answerOf(target); !answer.isEmpty() && !mayKnowAnswer(file, answer))
        return u"an answer that it may not know"_s;
    if (mayUseWindows(target) && !mayUseWindows(file))
        return u"which has windows in it"_s;
    if (isOfTerminal(target) && !isOfTerminal(file))
        return u"of the program for a terminal"_s;
    return {};
}

/// Removes, until none is left, files that include none of the remaining or that none of them includes. The
/// rest are circles.
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

} // namespace

TEST(Includes, EveryRuleIsChecked) {
    const SourceTree tree = {
        {u"AppModel.h"_s,
         u"#include <QTimer>\n#include \"Core/Sound.h\"\n#include \"Platform/Desktop/Popover.h\"\n"_s},
        {u"Cli/Table.h"_s, u"#include <QWidget>\n#include \"UI/One.h\"\n"_s},
        {u"Core/Drawing.h"_s, u"#include <chrono>\n\n#include <QColor>\n"_s},
        {u"Core/Self.h"_s, u"#include \"Core/Self.h\"\n"_s},
        {u"Core/Sound.h"_s,
         u"// #include \"Core/Sound.h\"\n#include <QString>\n#include \"Platform/Clock.h\"\n"_s},
        {u"Helpers/Misc.h"_s, {}},
        {u"Platform/Clock.h"_s, u"#include <chrono>\nclass Platform;\n"_s},
        {u"Platform/Desktop/Popover.h"_s, u"#include <QWidget>\n"_s},
        {u"Platform/Host.h"_s, u"#include \"Platform/Clock.h\"\n#include \"Platform/Result.h\"\n"_s},
        {u"Platform/Linux/LinuxClock.cpp"_s,
         u"#include \"Platform/Clock.h\"\n#include \"Core/Sound.h\"\n#include <QtWidgets/QLabel>\n"_s},
        {u"Platform/Result.h"_s, u"#include <QString>\n"_s},
        {u"Platform/Unix/UnixClock.cpp"_s, u"#include \"Platform/Linux/LinuxClock.cpp\"\n"_s},
        {u"Preferences.h"_s, u"#include \"Clock.h\"\n#include \"Platform/Linux/LinuxClock.cpp\"\n"_s},
        {u"UI/One.h"_s, u"  # include \"UI/Two.h\"\n#include \"AppModel.h\"\n#include <QIcon>\n"_s},
        {u"UI/Three.h"_s, u"#include \"Cli/Table.h\"\n"_s},
        {u"UI/Two.h"_s,
         u"#include \"UI/One.h\"\n#include \"main.cpp\"\n#include \"Platform/Desktop/Popover.h\"\n"_s},
        {u"main.cpp"_s, u"#include \"AppModel.h\"\n"_s},
    };
    const QStringList faults = {
        u"Helpers/Misc.h: stands on no floor"_s,
        u"AppModel.h:3: includes Platform/Desktop/Popover.h, which has windows in it"_s,
        u"Cli/Table.h:1: includes QWidget, a header with windows in it"_s,
        u"Cli/Table.h:2: includes UI/One.h, which has windows in it"_s,
        u"Core/Drawing.h:3: includes QColor, a header with windows in it"_s,
        u"Platform/Host.h:1: includes Platform/Clock.h, where nothing of ours may be"_s,
        u"Platform/Linux/LinuxClock.cpp:2: includes Core/Sound.h, from a floor above"_s,
        u"Platform/Linux/LinuxClock.cpp:3: includes QtWidgets/QLabel, a header with windows in it"_s,
        u"Platform/Unix/UnixClock.cpp:1: includes Platform/Linux/LinuxClock.cpp, an answer that it may not know"_s,
        u"Preferences.h:1: includes Clock.h, which is no file below src/"_s,
        u"Preferences.h:2: includes Platform/Linux/LinuxClock.cpp, an answer that it may not know"_s,
        u"UI/Three.h:1: includes Cli/Table.h, of the program for a terminal"_s,
        u"UI/Two.h:2: includes main.cpp, from a floor above"_s,
        u"a circle: Core/Self.h, UI/One.h, UI/Two.h"_s,
    };
    EXPECT_EQ(faultsOf(tree).join(u'\n').toStdString(), faults.join(u'\n').toStdString());
}

TEST(Includes, OfTheSourcesPointDownAndNeverInCircles) {
    const SourceTree tree = readSources();
    ASSERT_TRUE(tree.contains(u"main.cpp"_s) && tree.contains(u"Core/Instant.h"_s));
    const QStringList faults = faultsOf(tree);
    EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(u'\n'));
}

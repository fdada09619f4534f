#include "Core/Grouping/ProcessGrouper.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Grouping/PatternMatcher.h"
#include "Core/Sampling/LaunchedProgram.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using enum ProcGroup;

TEST(ProcessGrouper, TheFirstMatchingRuleDecides) {
    const std::tuple<const char*, const char*, const char*, ProcGroup> cases[] = {
        {"node", "", "@modelcontextprotocol/server-filesystem", agents},
        {"node", "", "server.js", other},
        {"python3", "", "-m foo-mcp", agents},
        {"bash", "", "run mcp-server", terminals}, // no script runtime
        {"foo", "/home/u/.claude/local/foo", "", agents},
        {"cursor-agent", "", "", agents},
        {"Xcode", "", "", ides},
        {"helper", "/opt/idea-2024/bin/helper", "", ides}, // a folder that begins with the pattern
        {"helper", "/opt/myidea/bin/helper", "", other},   // one that only contains it
        {"unicode-input", "", "", ides},                   // contains "code"
        {"ZSH", "", "", terminals},
        {"hyperkit", "", "", terminals},
        {"Google Chrome Helper (Renderer)", "", "", browsers},
        {"mediaanalysisd", "", "", browsers}, // contains "dia"
        {"foo", "/usr/lib/firefox/foo", "", browsers},
        {"foo", "", "--root /var/lib/containerd", containers},
        {"node", "", "docker-proxy.js", containers},
        {"\u212Aitty", "", "", terminals}, // the Kelvin sign is an upper-case k
        {"", "", "", other},
    };
    for (const auto& [name, path, arguments, group] : cases) {
        const ProcSample process{.name = QString::fromUtf8(name),
                                 .executablePath = QString::fromUtf8(path),
                                 .arguments = QString::fromUtf8(arguments)};
        EXPECT_EQ(rawValue(ProcessGrouper().groupOf(process)), rawValue(group)) << name;
    }
}

TEST(ProcessGrouper, GroupsTheProgramsOfRealMachines) {
    const QByteArray home = QDir::homePath().toUtf8();
    QFile file(QStringLiteral(TAVRIN_SOURCE_DIR "/tests/Core/data/programs.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList groups = u"agents ides terminals browsers containers other"_s.split(u' ');
    int count = 0;
    for (QByteArray line : file.readAll().split('\n')) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        line.replace("~/", home + '/');
        QStringList cells = QString::fromUtf8(line).split(u" |"_s);
        ASSERT_EQ(cells.size(), 4) << line.constData();
        for (QString& cell : cells)
            cell = cell.trimmed();
        const auto launched = LaunchedProgram::read(cells[2], cells[3].split(u' '));
        const ProcSample process{.name = cells[1],
                                 .executablePath = cells[2],
                                 .arguments = cells[3].section(u' ', 1),
                                 .program = launched.program};
        const ProcGroup group = ProcessGrouper().groupOf(process);
        EXPECT_EQ(groups[static_cast<int>(group)].toStdString(), cells[0].toStdString()) << line.constData();
        ++count;
    }
    EXPECT_GE(count, 150);
}

TEST(GroupRollup, TotalsEveryGroupInOrder) {
    const auto empty = GroupRollup::build({});
    ASSERT_EQ(empty.size(), 6);
    for (qsizetype i = 0; i < 6; ++i)
        EXPECT_EQ(empty[i], (GroupRollup{.group = allCases<ProcGroup>()[static_cast<std::size_t>(i)]}));

    QList<ProcSample> processes(3);
    processes[0] = {.cpuPercent = 10, .rssBytes = 100, .group = browsers};
    processes[1] = {.cpuPercent = 5, .rssBytes = 7, .group = other};
    processes[2] = {.cpuPercent = 2.5, .rssBytes = 50, .group = browsers};
    const auto rollups = GroupRollup::build(processes);
    EXPECT_EQ(rollups[3], (GroupRollup{.group = browsers,
                                       .rssBytes = 150,
                                       .cpuPercent = 12.5,
                                       .count = 2,
                                       .memory = SummedMemory::of({processes[0], processes[2]})}));
    EXPECT_EQ(rollups[5], (GroupRollup{.group = other,
                                       .rssBytes = 7,
                                       .cpuPercent = 5,
                                       .count = 1,
                                       .memory = SummedMemory::of({processes[1]})}));
}

TEST(PatternMatcher, AgreesWithPlainSearchesOnOverlappingPatterns) {
    const QList<PatternMatcher::Pattern> patterns{{"he", 1},  {"she", 2},  {"hers", 4},
                                                  {"his", 8}, {"e h", 16}, {"s", 32}};
    const PatternMatcher matcher(patterns);
    for (const char* text :
         {"", "ushers", "SHE HERS", "hishe", "xhxexrxs", "hhhe he", "hist\xc3\xb6ry", "e\xc5\xa1h"}) {
        const QString string = QString::fromUtf8(text);
        PatternMatcher::Facts expected = 0;
        for (const auto& [pattern, facts] : patterns) {
            if (string.toLower().contains(QString::fromLatin1(pattern)))
                expected |= facts;
        }
        EXPECT_EQ(matcher.search(string), expected) << text;
    }
}

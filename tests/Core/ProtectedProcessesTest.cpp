#include "Core/Relief/ProtectedProcesses.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ProcSample sample(qint32 pid, qint32 parent, const QString& name, const QString& path = {},
                  const QString& arguments = {}) {
    return {.pid = pid, .parentPid = parent, .name = name, .executablePath = path, .arguments = arguments};
}

} // namespace

TEST(ProtectedProcessesTest, WhatALoginHangsOnIsKnownWhereverItStands) {
    const QList<ProcSample> processes{
        sample(1, 0, u"systemd"_s),
        sample(2, 1, u"systemd"_s, u"/usr/lib/systemd/systemd"_s, u"--user"_s),
        sample(3, 1, u"bash"_s, u"/usr/bin/bash"_s), // a login that starts X by hand
        sample(4, 3, u"startx"_s, u"/usr/bin/dash"_s),
        sample(5, 4, u"Xorg"_s), // of root, so without a path
        sample(6, 2, u"gnome-shell"_s, u"/usr/bin/gnome-shell"_s),
        sample(7, 2, u"terminal"_s),
        sample(8, 7, u"zsh"_s),
        sample(9, 8, u"tavrin"_s),
        sample(10, 8, u"sway"_s, u"/usr/bin/python3"_s), // only calls itself so
        sample(11, 7, u"zsh"_s),
        sample(12, 12, u"own parent"_s),
    };
    const ProtectedProcesses guarded(processes, 9);
    const QList<std::optional<Protection>> expected{
        Protection::machine, Protection::services, Protection::login,   Protection::login,
        Protection::display, Protection::display,  Protection::starter, Protection::starter,
        std::nullopt,        std::nullopt,         std::nullopt,        std::nullopt};
    for (qsizetype i = 0; i < processes.size(); ++i)
        EXPECT_EQ(guarded.of(processes[i].pid), expected[i]) << processes[i].pid;
    const ProtectedProcesses shown({sample(5, 1, u"Xvfb"_s), sample(6, 1, u"Xvfb"_s), processes[1]}, 9,
                                   {5, 2, 77});
    EXPECT_EQ(shown.of(5), Protection::display) << "Tavrin's windows are on it";
    EXPECT_EQ(shown.of(6), std::nullopt);
    EXPECT_EQ(shown.of(2), Protection::services) << "which holds the socket for a server";
    EXPECT_FALSE(shown.contains(77));
    QList<qint32> below;
    for (const ProcSample& process : descendantsOf(processes[6], processes))
        below.append(process.pid);
    EXPECT_EQ(below, (QList<qint32>{8, 9, 10, 11}));
    EXPECT_TRUE(ProtectedProcesses({sample(5, 6, u"a"_s), sample(6, 5, u"b"_s)}, 5).contains(6))
        << "a circle of reused PIDs ends";
}

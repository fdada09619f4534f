#include "Platform/Linux/LinuxApplications.h"
#include "support/TemporaryFolder.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Running {
    const char* what;
    const char* executable; ///< "@" is the folder of the test
    const char* arguments;  ///< separated by blanks
    const char* cgroup;
    const char* flatpak; ///< id of the sandbox
    const char* id;      ///< of its application; empty for none
    const char* name;
};

constexpr auto elf = "\177ELF";

/// A machine made of files: its menu, its programs and procfs.
class ApplicationsTest : public testing::Test {
protected:
    ApplicationsTest() {
        m_folder.makeProgram(u"usr/bin/chromium"_s, "#!/bin/sh\n");
        m_folder.makeProgram(u"usr/lib/chromium/chromium"_s, elf);
        m_folder.makeProgram(u"usr/lib/firefox/firefox"_s, elf);
        m_folder.makeProgram(u"usr/bin/konsole"_s, elf);
        m_folder.makeProgram(u"usr/bin/tweaks"_s, "#!/usr/bin/python3\n");
        m_folder.makeProgram(u"usr/bin/notes"_s, "#!/bin/sh\nexec electron /usr/lib/notes/app.asar\n");
        m_folder.makeProgram(u"usr/bin/music"_s, "#!/bin/sh\nexec electron /usr/lib/music/app.asar\n");
        m_folder.makeProgram(u"srv/app/build/app"_s, elf);
        entry("app", "App", "@/srv/app/build/app");
        entry("chromium", "Chromium Web Browser", "@/usr/bin/chromium %U");
        entry("firefox", "Firefox", "@/usr/lib/firefox/firefox %u");
        entry("org.mozilla.firefox", "Firefox", "flatpak run org.mozilla.firefox");
        entry("org.gimp.GIMP", "GIMP", "flatpak run org.gimp.GIMP");
        entry("org.kde.konsole", "Konsole", "@/usr/bin/konsole");
        entry("tweaks", "Tweaks", "@/usr/bin/tweaks");
        entry("notes", "Notes", "@/usr/bin/notes");
        entry("music", "Music", "@/usr/bin/music");
    }

    QString here(const char* text) const { return QString::fromUtf8(text).replace(u'@', m_folder.path()); }

    void entry(const char* id, const char* name, const char* exec) {
        m_folder.makeFile(u"usr/share/applications/"_s + QString::fromUtf8(id) + u".desktop"_s,
                          u"[Desktop Entry]\nType=Application\nName=%1\nExec=%2\nIcon=%3-icon\n"_s
                              .arg(QString::fromUtf8(name), here(exec), QString::fromUtf8(id))
                              .toUtf8());
    }

    QString process(qint32 pid) const { return u"proc/"_s + QString::number(pid); }

    void add(qint32 pid, const Running& running) {
        const QString folder = process(pid);
        m_folder.makeFile(folder + u"/cmdline"_s, here(running.arguments).toUtf8().replace(' ', '\0') + '\0');
        m_folder.makeFile(folder + u"/cgroup"_s, "0::" + QByteArray(running.cgroup) + '\n');
        QFile::link(here(running.executable), m_folder.path(folder + u"/exe"_s));
        if (*running.flatpak)
            m_folder.makeFile(folder + u"/root/.flatpak-info"_s,
                              "[Application]\nname=" + QByteArray(running.flatpak) + '\n');
    }

    /// `ignored` is the mask of ignored signals, in hexadecimal.
    void addInTerminal(qint32 pid, qint32 parent, qint32 session, int terminal, const char* ignored = "0") {
        m_folder.makeFile(process(pid) + u"/stat"_s,
                          u"%1 (a b) S %2 %3 %3 %4 -1 0 0 0 0 0 1 1 0 0 20 0 1 0 500 1 1 0\n"_s.arg(pid)
                              .arg(parent)
                              .arg(session)
                              .arg(terminal)
                              .toUtf8());
        m_folder.makeFile(process(pid) + u"/status"_s, "Name:\ta\nSigIgn:\t" + QByteArray(ignored) + '\n');
    }

    LinuxApplications applications() const {
        return LinuxApplications(DesktopEntries({m_folder.path() + u"/usr/share/applications"_s}),
                                 m_folder.path() + u"/proc"_s);
    }

private:
    TemporaryFolder m_folder;
};

constexpr auto konsole = "/user.slice/app-org.kde.konsole-812.scope";

} // namespace

TEST_F(ApplicationsTest, AProcessIsOfTheApplicationThatItsProgramSays) {
    const Running processes[] = {
        {"a browser behind a script", "@/usr/lib/chromium/chromium", "chromium", "/", "", "chromium",
         "Chromium Web Browser"},
        {"its crash handler", "@/usr/lib/chromium/chrome_crashpad_handler", "handler", "/", "", "chromium",
         "Chromium Web Browser"},
        {"one that was built", "@/srv/app/build/app", "app", "/", "", "app", "App"},
        {"another beside it", "@/srv/app/build/tests", "tests", "/", "", "", ""},
        {"the script itself", "@/usr/bin/dash", "/bin/sh @/usr/bin/chromium", "/", "", "chromium",
         "Chromium Web Browser"},
        {"a browser of the system's", "@/usr/lib/firefox/firefox", "firefox", "/", "", "firefox", "firefox"},
        {"the same in a sandbox", "/app/lib/firefox/firefox", "firefox", "/", "org.mozilla.firefox",
         "org.mozilla.firefox", "org.mozilla.firefox"},
        {"a shell in a sandbox", "/usr/bin/bash", "bash", "/app-flatpak-org.gimp.GIMP-7.scope",
         "org.gimp.GIMP", "org.gimp.GIMP", "GIMP"},
        {"a sandbox without an entry", "/app/bin/x", "x", "/", "org.example.X", "org.example.X",
         "org.example.X"},
        {"a script", "@/usr/bin/python3.11", "python3 -u @/usr/bin/tweaks", "/", "", "tweaks", "Tweaks"},
        {"another script", "@/usr/bin/python3.11", "python3 @/usr/bin/other", "/", "", "", ""},
        {"a terminal", "@/usr/bin/konsole", "konsole", konsole, "", "org.kde.konsole", "Konsole"},
        {"a shell in it", "@/usr/bin/bash", "bash", konsole, "", "", ""},
        {"node in it", "@/usr/bin/node", "node server.js", konsole, "", "", ""},
        {"an editor in it", "@/usr/bin/vim", "vim", konsole, "", "", ""},
        {"one of two that share a program", "@/usr/lib/electron/electron",
         "electron @/usr/lib/notes/app.asar", "/app-notes-5.scope", "", "", ""},
        {"a helper of it", "@/usr/lib/electron/electron", "electron --type=renderer", "/app-notes-5.scope",
         "", "", ""},
        {"the other one", "@/usr/lib/electron/electron", "electron @/usr/lib/music/app.asar",
         "/app-music-6.scope", "", "", ""},
    };
    LinuxApplications applications = this->applications();
    qint32 pid = 100;
    for (const Running& running : processes) {
        add(++pid, running);
        const auto application = applications.ofProcess(pid);
        EXPECT_EQ(application.value_or(Application()).id, QString::fromUtf8(running.id)) << running.what;
        EXPECT_EQ(application.value_or(Application()).name, QString::fromUtf8(running.name)) << running.what;
        if (*running.id != 0 && *running.flatpak == 0) {
            EXPECT_EQ(application->icon, QString::fromUtf8(running.id) + u"-icon"_s) << running.what;
        }
    }
    EXPECT_EQ(applications.idsOf(u"Firefox"_s).size(), 2);
    EXPECT_EQ(applications.idsOf(u"firefox"_s), QStringList(u"firefox"_s));
    EXPECT_EQ(applications.idsOf(u"org.mozilla.firefox"_s), QStringList(u"org.mozilla.firefox"_s));
}

TEST_F(ApplicationsTest, ATerminalOwnsTheSessionsThatItStarted) {
    addInTerminal(10, 1, 9, 34900);        // the terminal emulator, started in another terminal
    addInTerminal(20, 10, 20, 34816);      // a shell
    addInTerminal(21, 20, 20, 34816);      // started in it
    addInTerminal(22, 20, 20, 34816, "1"); // the same under nohup
    addInTerminal(23, 20, 23, 0);          // a daemon
    addInTerminal(30, 21, 30, 34818);      // sudo's own terminal
    addInTerminal(31, 30, 30, 34818, "4000000000000002");
    addInTerminal(40, 1, 40, 34820);  // another terminal's shell
    addInTerminal(41, 10, 40, 34820); // a child of the emulator in a session that it did not start
    LinuxApplications applications = this->applications();
    const auto sorted = [](QList<qint32> pids) {
        std::sort(pids.begin(), pids.end());
        return pids;
    };
    EXPECT_EQ(sorted(applications.inTerminalsOf({10})), (QList<qint32>{20, 21, 30, 31}));
    EXPECT_EQ(sorted(applications.inTerminalsOf({1})), (QList<qint32>{40, 41}));
    EXPECT_TRUE(applications.inTerminalsOf({}).isEmpty());
}

#include "Core/Relief/ProtectedProcesses.h"

#include "Core/Sessions/ProcessTree.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Known {
    std::u16string_view name;
    Protection reason;
};

/// By the name of the program, sorted.
constexpr std::array knownNames = {
    Known{u"Hyprland", Protection::display},
    Known{u"X", Protection::display},
    Known{u"Xorg", Protection::display},
    Known{u"Xwayland", Protection::display},
    Known{u"cage", Protection::display},
    Known{u"cinnamon", Protection::display},
    Known{u"cinnamon-session", Protection::login},
    Known{u"cinnamon-session-binary", Protection::login},
    Known{u"cosmic-comp", Protection::display},
    Known{u"cosmic-session", Protection::login},
    Known{u"dbus-broker", Protection::login},
    Known{u"dbus-broker-launch", Protection::login},
    Known{u"dbus-daemon", Protection::login},
    Known{u"gdm-session-worker", Protection::login},
    Known{u"gdm-wayland-session", Protection::login},
    Known{u"gdm-x-session", Protection::login},
    Known{u"gnome-session", Protection::login},
    Known{u"gnome-session-binary", Protection::login},
    Known{u"gnome-shell", Protection::display},
    Known{u"kwin_wayland", Protection::display},
    Known{u"kwin_x11", Protection::display},
    Known{u"labwc", Protection::display},
    Known{u"lxqt-session", Protection::login},
    Known{u"lxsession", Protection::login},
    Known{u"mate-session", Protection::login},
    Known{u"muffin", Protection::display},
    Known{u"mutter", Protection::display},
    Known{u"niri", Protection::display},
    Known{u"plasma_session", Protection::login},
    Known{u"river", Protection::display},
    Known{u"sddm-helper", Protection::login},
    Known{u"startplasma-wayland", Protection::login},
    Known{u"startplasma-x11", Protection::login},
    Known{u"sway", Protection::display},
    Known{u"wayfire", Protection::display},
    Known{u"weston", Protection::display},
    Known{u"xfce4-session", Protection::login},
    Known{u"xinit", Protection::login},
};
static_assert(std::ranges::is_sorted(knownNames, {}, &Known::name));

QStringView programName(const ProcSample& process) {
    const QStringView path = process.executablePath;
    return path.isEmpty() ? QStringView(process.name) : path.sliced(path.lastIndexOf(u'/') + 1);
}

std::optional<Protection> reasonOf(const ProcSample& process) {
    if (process.pid == 1)
        return Protection::machine;
    const QStringView name = programName(process);
    if (name == u"systemd" && process.arguments.contains(QStringView(u"--user")))
        return Protection::services;
    const std::u16string_view wanted(name.utf16(), static_cast<std::size_t>(name.size()));
    const auto found = std::ranges::lower_bound(knownNames, wanted, {}, &Known::name);
    return found != knownNames.end() && found->name == wanted ? std::optional(found->reason) : std::nullopt;
}

} // namespace

ProtectedProcesses::ProtectedProcesses(const QList<ProcSample>& processes, qint32 ownPid,
                                       const QList<qint32>& displayServers) {
    QHash<qint32, qint32> parents;
    parents.reserve(processes.size());
    for (const ProcSample& process : processes) {
        parents.insert(process.pid, process.parentPid);
        if (const auto reason = reasonOf(process))
            m_reasons.insert(process.pid, *reason);
    }
    const QList<qint32> known = m_reasons.keys();
    for (const qint32 pid : known)
        addAncestors(parents, pid, Protection::login);
    for (const qint32 pid : displayServers) {
        if (parents.contains(pid) && !m_reasons.contains(pid))
            m_reasons.insert(pid, Protection::display);
    }
    addAncestors(parents, ownPid, Protection::starter);
}

/// Adds what a process was started from, as far as it is not protected yet.
void ProtectedProcesses::addAncestors(const QHash<qint32, qint32>& parents, qint32 pid, Protection reason) {
    for (pid = parents.value(pid); pid > 0 && parents.contains(pid) && !m_reasons.contains(pid);
         pid = parents.value(pid))
        m_reasons.insert(pid, reason);
}

QString ProtectedProcesses::consequence(Protection reason) {
    constexpr std::array sentences = {
        QT_TRANSLATE_NOOP("ProtectedProcesses",
                          "It is the first process of this system, which ends with it."),
        QT_TRANSLATE_NOOP("ProtectedProcesses", "It draws the screen: every window closes, and what is not "
                                                "saved in them is lost."),
        QT_TRANSLATE_NOOP("ProtectedProcesses",
                          "It holds your login: you are logged out, and what is not saved is lost."),
        QT_TRANSLATE_NOOP("ProtectedProcesses", "It runs the services of your login, such as sound and the "
                                                "message bus, and much of the desktop. They end with it."),
        QT_TRANSLATE_NOOP("ProtectedProcesses",
                          "Tavrin was started from it and may end with it, as may everything else that was."),
    };
    return QCoreApplication::translate("ProtectedProcesses", sentences[static_cast<std::size_t>(reason)]);
}

QList<ProcSample> descendantsOf(const ProcSample& process, const QList<ProcSample>& processes) {
    const ProcessTree tree(processes);
    const int root = tree.find(process.pid);
    QList<ProcSample> result;
    if (root == ProcessTree::none)
        return result;
    QSet<int> below{root};
    for (const int place : tree.parentsFirst()) {
        if (below.contains(tree.parent(place)))
            below.insert(place);
    }
    for (int place = 0; place < tree.size(); ++place) {
        if (place != root && below.contains(place))
            result.append(tree.at(place));
    }
    return result;
}

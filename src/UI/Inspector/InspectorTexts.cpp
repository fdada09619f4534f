#include "UI/Inspector/InspectorTexts.h"

#include "AppModel.h"
#include "Core/Formatters.h"
#include "Core/Inspection/ProcessInspection.h"
#include "Core/Translations.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Inspector)

public:
    static QString ofServer(const AppModel& model, const MCPInspector::LiveServer& server);
    static QString ofSession(const Session& session, const SessionProcess& member);
    static QString helper(const ProcSample& process);
    static QString listens(const QString& ports) { return tr("Listens on %1").arg(ports); }
    static QString ofGroup(ProcGroup group) {
        return tr("Program of the group %1").arg(Translations::of(group));
    }
    static QString unknownGroup() { return tr("Program of no known group"); }
    static QString started(const QString& at, const QString& ago) {
        return tr("%1, %2 ago", "a point in time, and how long ago").arg(at, ago);
    }
};

const Session* sessionWith(const AppModel& model, qint32 pid, const SessionProcess** found = nullptr) {
    for (const Session& session : model.sessionReport().sessions) {
        for (const SessionProcess& member : session.processes) {
            if (member.process.pid != pid)
                continue;
            if (found)
                *found = &member;
            return &session;
        }
    }
    return nullptr;
}

QString Texts::ofServer(const AppModel& model, const MCPInspector::LiveServer& server) {
    const Session* session = sessionWith(model, server.pid);
    if (session)
        return tr("MCP server %1 for %2").arg(server.displayLabel, session->title());
    return server.isOrphan ? tr("MCP server %1, which nobody uses any more").arg(server.displayLabel)
                           : tr("MCP server %1 for %2").arg(server.displayLabel, server.parentName);
}

QString Texts::ofSession(const Session& session, const SessionProcess& member) {
    switch (member.part) {
    case SessionPart::agent:
        return tr("Coding agent %1").arg(session.title());
    case SessionPart::server:
        return tr("MCP server for %1").arg(session.title());
    case SessionPart::devServer:
        return member.ports.isEmpty()
                   ? tr("Dev server of %1").arg(session.title())
                   : tr("Dev server on %1 of %2").arg(InspectorTexts::ports(member.ports), session.title());
    case SessionPart::browser:
        return tr("Browser of %1").arg(session.title());
    case SessionPart::command:
        break;
    }
    return tr("Command of %1").arg(session.title());
}

/// Returns what a helper of a browser or of an application like one is, by its arguments.
QString Texts::helper(const ProcSample& process) {
    struct Kind {
        QStringView argument;
        const char* text;
    };
    constexpr std::array kinds = {
        Kind{u"--type=renderer", QT_TR_NOOP("Renderer of %1: a page or an extension")},
        Kind{u"--type=gpu-process", QT_TR_NOOP("Graphics process of %1")},
        Kind{u"--type=utility", QT_TR_NOOP("Service process of %1")},
        Kind{u"--type=zygote", QT_TR_NOOP("Process that %1 starts others from")},
        Kind{u"-contentproc", QT_TR_NOOP("Content process of %1: pages or extensions")}};
    const auto found = std::ranges::find_if(
        kinds, [&process](const Kind& kind) { return process.arguments.contains(kind.argument); });
    return found == kinds.end() ? QString() : tr(found->text).arg(process.name);
}

} // namespace

QString InspectorTexts::whatItIs(const AppModel& model, const ProcSample& process,
                                 const ProcessInspection* seen) {
    const auto& servers = model.mcpReport().live;
    const auto server = std::ranges::find(servers, process.identity(), &MCPInspector::LiveServer::identity);
    if (server != servers.end())
        return Texts::ofServer(model, *server);
    const SessionProcess* member = nullptr;
    if (const Session* session = sessionWith(model, process.pid, &member))
        return Texts::ofSession(*session, *member);
    if (const QString helper = Texts::helper(process); !helper.isEmpty())
        return helper;
    const QString kind =
        process.group == ProcGroup::other ? Texts::unknownGroup() : Texts::ofGroup(process.group);
    return seen && !seen->ports.isEmpty() ? Texts::listens(ports(seen->ports)) : kind;
}

QString InspectorTexts::sessionOf(const AppModel& model, const ProcSample& process) {
    const Session* session = sessionWith(model, process.pid);
    return session ? session->title() : QString();
}

QList<ProcSample> InspectorTexts::parentsOf(const AppModel& model, const ProcSample& process) {
    constexpr qsizetype most = 12;
    QList<ProcSample> parents;
    const ProcSample* parent = model.process(process.parentPid);
    while (parent && parents.size() < most && parent->pid != process.pid) {
        parents.append(*parent);
        parent = model.process(parent->parentPid);
    }
    return parents;
}

QString InspectorTexts::started(const ProcSample& process, Instant now) {
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(process.startTime.time_since_epoch());
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(milliseconds.count());
    const double age = std::chrono::duration<double>(now - process.startTime).count();
    return Texts::started(QLocale().toString(start, QLocale::ShortFormat),
                          Formatters::duration(std::max(age, 0.0)));
}

QString InspectorTexts::ports(const QList<quint16>& ports) {
    QStringList texts;
    for (const quint16 port : ports)
        texts.append(u':' + QString::number(port));
    return Formatters::list(texts);
}

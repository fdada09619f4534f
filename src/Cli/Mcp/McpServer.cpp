#include "Cli/Mcp/McpServer.h"

#include "Cli/Machine.h"
#include "Cli/Mcp/McpTools.h"

#include <QJsonDocument>
#include <QPointer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Of JSON-RPC.
constexpr int parseError = -32700;
constexpr int invalidRequest = -32600;
constexpr int unknownMethod = -32601;
constexpr int invalidParameters = -32602;

constexpr qsizetype maxCalls = 100; ///< that wait

/// The first is offered to a client that speaks none of them.
const QStringList& versions() {
    static const QStringList all = {u"2025-06-18"_s, u"2025-03-26"_s, u"2024-11-05"_s};
    return all;
}

QJsonObject welcome(const QJsonObject& parameters, const QString& version) {
    const QString wanted = parameters.value(u"protocolVersion"_s).toString();
    return {{u"protocolVersion"_s, versions().contains(wanted) ? wanted : versions().constFirst()},
            {u"capabilities"_s, QJsonObject{{u"tools"_s, QJsonObject()}}},
            {u"serverInfo"_s,
             QJsonObject{{u"name"_s, u"tavrin"_s}, {u"title"_s, u"Tavrin"_s}, {u"version"_s, version}}},
            {u"instructions"_s,
             u"Tells what holds the memory and the disk of this machine. It only reads: to end or "
             "clean something, the user runs tavrinctl or opens Tavrin."_s}};
}

QJsonObject toolResult(const QJsonObject& told) {
    const QString text = QString::fromUtf8(Report::text(told));
    const QJsonObject content{{u"type"_s, u"text"_s}, {u"text"_s, text}};
    return {{u"content"_s, QJsonArray{content}}, {u"structuredContent"_s, told}, {u"isError"_s, false}};
}

bool isId(const QJsonValue& id) {
    return id.isString() || id.isDouble();
}

} // namespace

McpServer::McpServer(Machine& machine, Identity identity)
    : m_machine(machine)
    , m_identity(std::move(identity)) {}

void McpServer::take(const QByteArray& line) {
    if (line.trimmed().isEmpty())
        return;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        refuse(QJsonValue(), parseError, error.errorString());
    else if (document.isObject())
        takeMessage(document.object());
    else
        refuse(QJsonValue(), invalidRequest, u"A message is an object."_s);
}

void McpServer::takeMessage(const QJsonObject& message) {
    const QJsonValue id = message.value(u"id"_s);
    const QString method = message.value(u"method"_s).toString();
    const bool isOfProtocol = message.value(u"jsonrpc"_s).toString() == "2.0"_L1;
    if (message.contains(u"result"_s) || message.contains(u"error"_s))
        return; // an answer, though nothing was asked
    if (!isOfProtocol || method.isEmpty() || (!id.isUndefined() && !isId(id)))
        refuse(isId(id) ? id : QJsonValue(), invalidRequest, u"This is no request of JSON-RPC 2.0."_s);
    else if (!id.isUndefined())
        takeRequest(id, method, message.value(u"params"_s).toObject());
    else if (method == "notifications/cancelled"_L1)
        cancel(message.value(u"params"_s).toObject().value(u"requestId"_s));
}

void McpServer::takeRequest(const QJsonValue& id, const QString& method, const QJsonObject& parameters) {
    if (method == "initialize"_L1)
        answer(id, welcome(parameters, m_identity.version));
    else if (method == "ping"_L1)
        answer(id, {});
    else if (method == "tools/list"_L1)
        answer(id, {{u"tools"_s, McpTools::list()}});
    else if (method == "tools/call"_L1)
        takeCall(id, parameters);
    else
        refuse(id, unknownMethod, u"Unknown method: "_s + method);
}

void McpServer::takeCall(const QJsonValue& id, const QJsonObject& parameters) {
    const Call call{id, parameters.value(u"name"_s).toString(), parameters.value(u"arguments"_s).toObject()};
    const QString objection = McpTools::objection(call.tool, call.arguments);
    if (!objection.isEmpty())
        refuse(id, invalidParameters, objection);
    else if (m_calls.size() >= maxCalls)
        refuse(id, invalidRequest, u"Too many calls wait for their answer."_s);
    else
        m_calls.append(call);
    if (!m_isWorking)
        work();
}

void McpServer::cancel(const QJsonValue& id) {
    for (qsizetype i = 0; i < m_calls.size(); ++i) {
        if (m_calls[i].id != id)
            continue;
        if (i == 0 && m_isWorking)
            m_isCancelled = true;
        else
            m_calls.removeAt(i);
        return;
    }
}

QCoro::Task<> McpServer::work() {
    const QPointer<McpServer> self(this);
    m_isWorking = true;
    while (!m_calls.isEmpty()) {
        const Call call = m_calls.constFirst();
        m_isCancelled = false;
        auto asking = McpTools::call(m_machine, call.tool, call.arguments, m_identity.pid);
        const QJsonObject told = co_await asking;
        if (!self)
            co_return;
        m_calls.removeFirst();
        if (!m_isCancelled)
            answer(call.id, toolResult(told));
    }
    m_isWorking = false;
    if (m_isFinishing)
        Q_EMIT finished();
}

void McpServer::finish() {
    m_isFinishing = true;
    if (!m_isWorking)
        Q_EMIT finished();
}

void McpServer::answer(const QJsonValue& id, const QJsonObject& result) {
    Q_EMIT answered({{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, id}, {u"result"_s, result}});
}

void McpServer::refuse(const QJsonValue& id, int code, const QString& why) {
    const QJsonObject error{{u"code"_s, code}, {u"message"_s, why}};
    Q_EMIT answered({{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, id}, {u"error"_s, error}});
}

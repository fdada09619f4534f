#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QObject>

class Machine;

/// The Model Context Protocol: JSON-RPC 2.0, a message in each line. Calls of tools are answered one after
/// another, all other requests at once. A cancelled call gets no answer.
class McpServer : public QObject {
    Q_OBJECT

public:
    struct Identity {
        QString version;
        qint64 pid = 0;
    };

    /// `machine` outlives the server.
    McpServer(Machine& machine, Identity identity);

    void take(const QByteArray& line);
    /// Lets the server end with the last answer.
    void finish();

Q_SIGNALS:
    void answered(const QJsonObject& message);
    /// Emitted after `finish`, when every call is answered.
    void finished();

private:
    struct Call {
        QJsonValue id;
        QString tool;
        QJsonObject arguments;
    };

    void takeMessage(const QJsonObject& message);
    void takeRequest(const QJsonValue& id, const QString& method, const QJsonObject& parameters);
    void takeCall(const QJsonValue& id, const QJsonObject& parameters);
    void cancel(const QJsonValue& id);
    QCoro::Task<> work();
    void answer(const QJsonValue& id, const QJsonObject& result);
    void refuse(const QJsonValue& id, int code, const QString& why);

    Machine& m_machine;
    Identity m_identity;
    QList<Call> m_calls; ///< the first is being worked on
    bool m_isWorking = false;
    bool m_isCancelled = false; ///< the one that is being worked on
    bool m_isFinishing = false;
};

#pragma once

#include <QCoroTask>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class Machine;

/// The tools that an agent may call. Each only reads.
namespace McpTools {

/// Returns the tools as the protocol lists them.
QJsonArray list();

/// Returns why a call is not one of these, or an empty text.
QString objection(const QString& name, const QJsonObject& arguments);

/// Returns what the tool tells, in as few words as an agent needs. `ownPid` is this program, which is
/// nobody's leak.
QCoro::Task<QJsonObject> call(Machine& machine, QString name, QJsonObject arguments, qint64 ownPid);

} // namespace McpTools

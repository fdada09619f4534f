#pragma once

#include <QCoroTask>
#include <QJsonObject>

class Machine;

/// Measures the targets of the cleanup now.
namespace Scan {

/// Returns the document of the caches.
QCoro::Task<QJsonObject> caches(Machine& machine);

} // namespace Scan

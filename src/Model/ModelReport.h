#pragma once

#include "Core/Report/Report.h"

class AppModel;

/// The documents of the model's last tick.
namespace ModelReport {

/// Returns a document, and an empty object for those of other sources: projects and the log. Sessions are
/// wanted for a tick more.
QJsonObject of(AppModel& model, Report::Kind kind, const Report::Origin& origin);

} // namespace ModelReport

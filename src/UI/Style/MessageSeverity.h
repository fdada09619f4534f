#pragma once

#include "Core/Announcements/MessageFeed.h"
#include "UI/Style/Theme.h"

/// How the banner shows a message of each severity.
namespace MessageSeverity {

/// Returns the name of the severity's symbol, under resources/symbols.
QString symbol(Message::Severity severity);
Theme::Role role(Message::Severity severity);
QColor buttonFill(Message::Severity severity);
QColor buttonOutline(Message::Severity severity);
QColor actionLabelColor(Message::Severity severity);

} // namespace MessageSeverity

#pragma once

#include "Core/Announcements/MessageFeed.h"
#include "UI/Style/Theme.h"

/// How the banner shows a message of each severity.
namespace MessageSeverity {

/// Name of the severity's symbol, under resources/symbols.
QString symbol(Message::Severity severity);

Theme::Role role(Message::Severity severity);

/// Of the action button: filled with the severity's colour in full, where the others are in its light.
bool isSolid(Message::Severity severity);
QColor buttonFill(Message::Severity severity);
QColor buttonOutline(Message::Severity severity);
QColor actionLabelColor(Message::Severity severity);

} // namespace MessageSeverity

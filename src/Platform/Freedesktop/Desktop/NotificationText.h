#pragma once

#include <QString>

/// The texts of a notification as a server takes them. They come from processes and may contain anything.
namespace NotificationText {

/// Returns one line of at most 120 characters.
QString title(const QString& text);
/// Returns lines of at most 600 characters together, escaped where the server reads markup.
QString body(const QString& text, bool hasMarkup);
/// Returns one line of at most 40 characters.
QString action(const QString& text);

} // namespace NotificationText

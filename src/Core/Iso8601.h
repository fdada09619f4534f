#pragma once

#include "Core/Instant.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

/// Internet date-times in whole seconds, as the action log holds them. Written by hand because a log of a
/// million lines is read at once.
namespace Iso8601 {

/// In UTC, a fraction of a second dropped: "2026-11-16T14:23:43Z".
QByteArray format(Instant instant);

/// Strict: every field has its full width and is in range, upper-case T, no fraction, and the zone is "Z" or
/// an offset such as "+01:00". Empty for anything else, and for a time that an Instant cannot hold.
std::optional<Instant> parse(QByteArrayView text);

} // namespace Iso8601

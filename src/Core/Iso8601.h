#pragma once

#include "Core/Instant.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

/// Internet date-times in whole seconds. Written by hand for speed: a log may have a million lines.
namespace Iso8601 {

/// Returns the time in UTC without a fraction: "2026-11-16T14:23:43Z".
QByteArray format(Instant instant);

/// Reads a time with fields of full width and in range, an upper-case T, no fraction, and the zone "Z" or an
/// offset such as "+01:00". Returns an empty optional for anything else and beyond the range of Instant.
std::optional<Instant> parse(QByteArrayView text);

} // namespace Iso8601

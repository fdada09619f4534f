#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

/// The few shapes in which procfs and sysfs write their figures.
namespace KernelText {

/// The decimal number that `text` begins with, after blanks; `text` then begins behind it. Empty, and
/// `text` unspecified, when there is none or it does not fit.
std::optional<quint64> takeNumber(std::string_view& text);
std::optional<qint64> takeSignedNumber(std::string_view& text);

/// What follows `key` (which holds its colon) on the line that begins with it.
std::optional<std::string_view> valueOf(std::string_view text, std::string_view key);

/// The number on the line that begins with `key`, in the unit of the file (meminfo: KiB).
std::optional<quint64> numberOf(std::string_view text, std::string_view key);

} // namespace KernelText

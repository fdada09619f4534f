#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

/// Parsers for the figures of procfs and sysfs.
namespace KernelText {

/// Takes the decimal number at the start of `text`, after blanks, off it. Returns an empty optional when
/// there is none or it overflows; `text` is then unspecified.
std::optional<quint64> takeNumber(std::string_view& text);
std::optional<qint64> takeSignedNumber(std::string_view& text);

/// Returns the rest of the line that begins with `key`: the name and what follows it, a colon or a blank.
std::optional<std::string_view> valueOf(std::string_view text, std::string_view key);

/// Returns the number on the line that begins with `key`, in the unit of the file (meminfo: KiB).
std::optional<quint64> numberOf(std::string_view text, std::string_view key);

} // namespace KernelText

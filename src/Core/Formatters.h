#pragma once

#include <QLocale>
#include <QStringList>

/// The texts for figures on screen, in the user's language.
namespace Formatters {

/// Formats as printf's "%.Nf", with the decimal sign of the locale. An exact half is rounded to the even
/// digit.
QString fixed(double value, int decimals);

/// Returns "42s", "3m" or "1.5h", rounded as `fixed` does; half minutes round up.
QString duration(double seconds);

/// Returns a size in steps of 1,024 with at most one decimal: "512 MB", "1.5 GB", "0 bytes".
QString bytes(quint64 count);

/// Returns the same in English, as the log has it in every language.
QString bytesForLog(quint64 count);

/// Returns "5 minutes ago" or "1 day ago" in whole units, "just now" below a second and for the future.
QString ago(double seconds);

/// Returns the locale's long format of a time, without the time zone.
QString timeFormat(const QLocale& locale);

/// Returns the local time of an instant in seconds since the epoch, with its seconds in the long format.
QString timeOfDay(double seconds, QLocale::FormatType format = QLocale::LongFormat);

/// Returns a whole number with its sign: "42%".
QString percent(double value);

/// Returns "a, b, c".
QString list(const QStringList& items);

/// Returns the words with a full stop.
QString sentence(const QString& words);

/// Returns whether a character controls what shows it, or ends its line or paragraph.
bool isInvisible(QChar character);

/// Returns a text that is safe to show: characters that are invisible become visible pictures, but for those
/// that join the parts of an emoji.
QString visible(const QString& text);

/// Returns a tool tip that shows any text literally and wraps it. Qt renders a plain text that looks like
/// markup, and shows the escapes of an escaped one that does not.
QString toolTip(const QString& text);

} // namespace Formatters

#pragma once

#include <QString>

/// The texts that figures are shown as, the same everywhere in the program.
namespace Formatters {

/// As printf's "%.Nf" in every language: decided by the exact binary value, an exact half goes to the even
/// digit.
QString fixed(double value, int decimals);

/// "42s", "3m", "1.5h"; but for half minutes, which go up, rounded as `fixed` does.
QString duration(double seconds);

/// Steps of 1,024 with at most one decimal, none when it is zero: "512 MB", "1.5 GB", "0 bytes".
QString bytes(quint64 count);

/// How long ago, in whole units: "5 minutes ago", "1 day ago"; "just now" below a second and for a time that
/// is yet to come.
QString ago(double seconds);

/// A share of 100 as a whole number with its sign: "42%".
QString percent(double value);

/// Text from outside made safe to show: control and formatting characters become visible pictures.
QString visible(const QString& text);

} // namespace Formatters

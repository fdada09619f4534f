#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

/// A desktop entry of an application.
struct DesktopEntry {
    QString id;            ///< without ".desktop"
    QString name;          ///< in the locale, on one line
    QString icon = {};     ///< a name in the theme, or a path
    QStringList command;   ///< the program and its fixed arguments, without field codes
    QString tryProgram;    ///< has to exist for the entry to be shown
    bool isListed = false; ///< the menu shows it, and it has a window of its own

    /// Parses an entry file. `locale` is as in LANG. Returns an empty optional unless it is an application.
    static std::optional<DesktopEntry> parse(QByteArrayView text, const QString& locale);
    /// Splits a value of the key Exec. Returns an empty list when its quotes do not match.
    static QStringList arguments(const QString& exec);
    /// Returns what follows the last slash.
    static QString fileName(const QString& path) { return path.sliced(path.lastIndexOf(u'/') + 1); }
};

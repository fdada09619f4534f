#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

/// What a desktop entry says of the application that it starts.
struct DesktopEntry {
    QString id;          ///< without ".desktop"
    QString name;        ///< in the language asked for, on one line
    QStringList command; ///< the program and its fixed arguments, without the places for files and addresses
    QString tryProgram;  ///< what has to be there for the entry to be shown
    bool isListed = false; ///< whether the menu shows it, and it brings a window of its own

    /// Reads an entry file. `locale` is as in LANG. Empty for a text that is no entry of an application.
    static std::optional<DesktopEntry> parse(QByteArrayView text, const QString& locale);
    /// The arguments that a value of the key Exec stands for. Empty where its quotes do not match.
    static QStringList arguments(const QString& exec);
};

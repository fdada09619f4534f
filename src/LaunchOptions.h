#pragma once

#include "Destination.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

/// What the command line asks of the program.
struct LaunchOptions {
    /// A text that is all that the start does, with the exit status.
    struct Answer {
        QString text;
        int status = 0; ///< 0: to standard output; else one line to standard error

        bool operator==(const Answer&) const = default;
    };

    bool isHidden = false; ///< no window is shown
    std::optional<Destination> place;
    std::optional<Answer> answer;

    bool operator==(const LaunchOptions&) const = default;

    /// Reads the arguments without the program's name. Those of Qt, such as "-style", are left to Qt.
    static LaunchOptions parse(const QStringList& arguments);

    /// Returns what a second start asks of the running program, and reads it back.
    QByteArray request() const;
    static LaunchOptions ofRequest(const QByteArray& request);
};

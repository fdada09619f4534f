#pragma once

#include <QString>

/// What this system calls the things that every desktop has under a name of its own.
struct Words {
    QString computer;
    QString system;
    QString initProcess; ///< the parent of whoever lost its own
    QString taskBar;     ///< within a sentence
    QString statusArea;  ///< as a title
    QString symbol;      ///< a drawing that is chosen by its name

    /// In the user's language.
    static Words native();
};

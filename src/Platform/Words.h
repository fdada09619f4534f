#pragma once

#include <QString>

/// This system's names for what every desktop has.
struct Words {
    QString computer;
    QString system;
    QString initProcess; ///< the parent of orphaned processes
    QString taskBar;     ///< within a sentence
    QString statusArea;  ///< as a title
    QString symbol;      ///< an icon that is chosen by name

    /// Returns the names in the user's language.
    static Words native();
};

#pragma once

#include <QString>

/// How something ended that the system may refuse.
struct Outcome {
    bool done = false;
    QString reason = {}; ///< why it was not done, as a sentence for the user; empty where nobody says why

    static Outcome success() { return {true, {}}; }
    static Outcome failure(const QString& reason) { return {false, reason}; }

    bool operator==(const Outcome&) const = default;
};

/// The same of a question, with the answer.
template <typename T> struct Result : Outcome {
    T value = {}; ///< empty unless done
};

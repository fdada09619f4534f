#pragma once

#include <QString>

/// The outcome of a call that may fail.
struct Outcome {
    bool done = false;
    QString reason = {}; ///< of a failure, as a sentence for the user; empty when unknown

    static Outcome success() { return {true, {}}; }
    static Outcome failure(const QString& reason) { return {false, reason}; }

    bool operator==(const Outcome&) const = default;
};

/// An outcome with a value.
template <typename T> struct Result : Outcome {
    T value = {}; ///< empty unless done
};

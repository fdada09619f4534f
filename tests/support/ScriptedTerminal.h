#pragma once

#include "Platform/Terminal.h"

#include <QByteArrayList>

#include <functional>

/// Keeps what is written, and answers questions from a list.
class ScriptedTerminal : public Terminal {
public:
    QByteArray output;
    QByteArray errors;
    std::optional<int> columns;      ///< empty: a file or a pipe
    QByteArrayList answers;          ///< of a person; empty: nobody can be asked
    std::function<void()> whenAsked; ///< what happens while a person thinks
    Outcome outcome = Outcome::success();

    Outcome write(const QByteArray& text) override {
        if (outcome.done)
            output += text;
        return outcome;
    }
    void writeError(const QByteArray& text) override { errors += text; }
    std::optional<int> width() const override { return columns; }
    bool canAsk() const override { return !answers.isEmpty(); }
    QByteArray readLine() override {
        if (whenAsked)
            whenAsked();
        return answers.takeFirst();
    }
    void listen() override {}
};

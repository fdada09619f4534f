#pragma once

#include "Platform/Result.h"

#include <QByteArray>
#include <QObject>

#include <optional>

/// Where a program without windows reads and writes: a terminal, a file or a pipe.
class Terminal : public QObject {
    Q_OBJECT

public:
    /// Writes the whole text. A failure has no reason when nobody reads any more.
    virtual Outcome write(const QByteArray& text) = 0;
    /// Writes to where errors go. A failure is ignored.
    virtual void writeError(const QByteArray& text) = 0;
    /// Returns the columns of the terminal that shows the output, empty where none does.
    virtual std::optional<int> width() const = 0;
    /// Returns whether a person sees a question and can answer it.
    virtual bool canAsk() const = 0;
    /// Waits for a line and returns it without its end, empty at the end of the input.
    virtual QByteArray readLine() = 0;
    /// Emits each line from now on. A line longer than a mebibyte comes as an empty one.
    virtual void listen() = 0;

Q_SIGNALS:
    void lineRead(const QByteArray& line);
    void inputEnded();
};

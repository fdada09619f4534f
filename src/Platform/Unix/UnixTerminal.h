#pragma once

#include "Platform/Terminal.h"

#include <memory>

class QSocketNotifier;

/// The terminal by the standard descriptors. A pipe that nobody reads any more does not end the program.
class UnixTerminal : public Terminal {
public:
    UnixTerminal();
    ~UnixTerminal() override;

    Outcome write(const QByteArray& text) override;
    void writeError(const QByteArray& text) override;
    std::optional<int> width() const override;
    bool canAsk() const override;
    QByteArray readLine() override;
    void listen() override;

private:
    void readInput();
    void takeLines(QByteArray input);

    std::unique_ptr<QSocketNotifier> m_input;
    QByteArray m_line; ///< read so far
    bool m_isTooLong = false;
};

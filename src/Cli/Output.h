#pragma once

#include "Cli/Command.h"
#include "Cli/Table.h"

class Terminal;

/// What a command says: a document for programs, or a text for people.
class Output {
public:
    Output(Terminal& terminal, bool isJson, bool wantsColour);

    const TableStyle& style() const { return m_style; }

    /// Writes the document, or what `text` makes of it.
    template <typename Text> void print(const QJsonObject& document, Text text) {
        if (m_isJson)
            printJson(document, true);
        else
            printText(text(document));
    }
    void printJson(const QJsonObject& document, bool isIndented);
    void printText(const QString& text);
    /// Writes one line to where errors go.
    void complain(const QString& sentence);

    /// Returns whether all could be written. Where a disk is full, that was said.
    bool isWritten() const { return m_isWritten; }
    Terminal& terminal() { return m_terminal; }

private:
    void write(const QByteArray& text);

    Terminal& m_terminal;
    bool m_isJson;
    TableStyle m_style;
    bool m_isWritten = true;
};

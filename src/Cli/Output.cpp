#include "Cli/Output.h"

#include "Core/Formatters.h"
#include "Core/Report/Report.h"
#include "Platform/Terminal.h"

using namespace Qt::StringLiterals;

Output::Output(Terminal& terminal, bool isJson, bool wantsColour)
    : m_terminal(terminal)
    , m_isJson(isJson)
    , m_style{.width = terminal.width(), .hasColour = wantsColour && terminal.width().has_value()} {}

void Output::printJson(const QJsonObject& document, bool isIndented) {
    QByteArray text = Report::text(document, isIndented);
    write(text.endsWith('\n') ? text : text + '\n');
}

void Output::printText(const QString& text) {
    write(text.toUtf8());
}

void Output::complain(const QString& sentence) {
    m_terminal.writeError((u"tavrinctl: "_s + Formatters::visible(sentence) + u'\n').toUtf8());
}

void Output::write(const QByteArray& text) {
    if (!m_isWritten)
        return;
    const Outcome outcome = m_terminal.write(text);
    m_isWritten = outcome.done;
    if (!outcome.done && !outcome.reason.isEmpty())
        complain(u"the output could not be written: "_s + outcome.reason);
}

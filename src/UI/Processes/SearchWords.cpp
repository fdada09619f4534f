#include "UI/Processes/SearchWords.h"

#include <algorithm>

namespace {

std::optional<quint16> portIn(const QString& word) {
    bool isNumber = false;
    const quint16 port = word.startsWith(u':') ? word.mid(1).toUShort(&isNumber) : quint16(0);
    return isNumber && port > 0 ? std::optional(port) : std::nullopt;
}

} // namespace

SearchWords::SearchWords(const QString& search) {
    for (const QString& word : search.simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (const auto port = portIn(word))
            m_port = port;
        else
            m_words.append(word);
    }
}

bool SearchWords::match(const ProcSample& process, const Listens& listens) const {
    const auto isIn = [&process](const QString& word) {
        return process.name.contains(word, Qt::CaseInsensitive) ||
               process.executablePath.contains(word, Qt::CaseInsensitive) ||
               process.arguments.contains(word, Qt::CaseInsensitive) || word == QString::number(process.pid);
    };
    return std::ranges::all_of(m_words, isIn) && (!m_port || (listens && listens(process.pid, *m_port)));
}

QList<SearchWords::Part> SearchWords::partsOf(const QString& text) const {
    QList<Part> found;
    for (const QString& word : m_words) {
        for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive))
            found.append({at, word.size()});
    }
    std::ranges::sort(found, {}, &Part::begin);
    QList<Part> parts;
    for (const Part& part : std::as_const(found)) {
        const qsizetype end = parts.isEmpty() ? 0 : parts.last().begin + parts.last().length;
        if (part.begin >= end)
            parts.append(part);
        else
            parts.last().length =
                std::max(parts.last().length, part.begin + part.length - parts.last().begin);
    }
    return parts;
}

bool SearchWords::areIn(const QString& text) const {
    return std::ranges::all_of(
        m_words, [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

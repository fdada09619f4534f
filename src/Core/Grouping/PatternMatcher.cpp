#include "Core/Grouping/PatternMatcher.h"

#include <queue>

PatternMatcher::PatternMatcher(const QList<Pattern>& patterns) {
    collectLetters(patterns);
    addState();
    for (const Pattern& pattern : patterns)
        insert(pattern);
    linkFailures();
}

void PatternMatcher::collectLetters(const QList<Pattern>& patterns) {
    for (const auto& [text, facts] : patterns) {
        for (const char character : text) {
            quint8& column = m_letter[static_cast<quint8>(character)];
            if (column == 0)
                column = static_cast<quint8>(m_letterCount++);
        }
    }
    for (char upper = 'A'; upper <= 'Z'; ++upper)
        m_letter[static_cast<quint8>(upper)] = m_letter[static_cast<quint8>(upper - 'A' + 'a')];
}

std::size_t PatternMatcher::addState() {
    m_next.resize(m_next.size() + m_letterCount, 0);
    m_facts.push_back(0);
    return m_facts.size() - 1;
}

void PatternMatcher::insert(const Pattern& pattern) {
    std::size_t state = 0;
    for (const char character : pattern.first) {
        const std::size_t letter = m_letter[static_cast<quint8>(character)];
        if (next(state, letter) == 0) {
            const std::size_t added = addState();
            next(state, letter) = static_cast<quint16>(added);
        }
        state = next(state, letter);
    }
    m_facts[state] |= pattern.second;
}

/// Gives every state a successor for every letter and all facts of the patterns that end in it. Breadth
/// first, so that the state of a failure is complete before it is copied.
void PatternMatcher::linkFailures() {
    std::vector<quint16> failure(m_facts.size(), 0);
    std::queue<quint16> pending;
    for (std::size_t letter = 1; letter < m_letterCount; ++letter) {
        if (next(0, letter) != 0)
            pending.push(next(0, letter));
    }
    while (!pending.empty()) {
        const quint16 state = pending.front();
        pending.pop();
        m_facts[state] |= m_facts[failure[state]];
        for (std::size_t letter = 1; letter < m_letterCount; ++letter) {
            const quint16 child = next(state, letter);
            const quint16 fallback = next(failure[state], letter);
            if (child == 0) {
                next(state, letter) = fallback;
            } else {
                failure[child] = fallback;
                pending.push(child);
            }
        }
    }
}

quint8 PatternMatcher::letterOf(QChar character) const {
    char16_t code = character.unicode();
    if (code >= asciiCount)
        code = character.toLower().unicode();
    return code < asciiCount ? m_letter[code] : quint8(0);
}

PatternMatcher::Facts PatternMatcher::search(QStringView text) const {
    Facts found = 0;
    std::size_t state = 0;
    for (const QChar character : text) {
        state = m_next[state * m_letterCount + letterOf(character)];
        found |= m_facts[state];
    }
    return found;
}

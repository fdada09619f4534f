#pragma once

#include <QList>
#include <QStringView>

#include <array>
#include <utility>
#include <vector>

/// Finds which of many lower-case ASCII patterns occur in a text, in any case, in one pass (the automaton of
/// Aho and Corasick). Each pattern stands for a set of facts, one bit each.
class PatternMatcher {
public:
    using Facts = quint16;
    using Pattern = std::pair<QByteArray, Facts>;

    explicit PatternMatcher(const QList<Pattern>& patterns);

    /// Returns the facts of all patterns found.
    Facts search(QStringView text) const;

private:
    static constexpr std::size_t asciiCount = 128;

    void collectLetters(const QList<Pattern>& patterns);
    void insert(const Pattern& pattern);
    void linkFailures();
    quint16& next(std::size_t state, std::size_t letter) { return m_next[state * m_letterCount + letter]; }
    std::size_t addState();
    quint8 letterOf(QChar character) const;

    std::array<quint8, asciiCount> m_letter{}; ///< column of each character; 0 for one in no pattern
    std::size_t m_letterCount = 1;
    std::vector<quint16> m_next; ///< one row of columns a state
    std::vector<Facts> m_facts;  ///< one a state
};

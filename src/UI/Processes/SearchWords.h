#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

/// The words of a search. Each has to be part of a process's name, path or arguments, in any case, or to be
/// its PID; ":8080" is whoever listens on that port.
class SearchWords {
public:
    /// A part of a text.
    struct Part {
        qsizetype begin = 0;
        qsizetype length = 0;

        bool operator==(const Part&) const = default;
    };
    using Listens = std::function<bool(qint32 pid, quint16 port)>;

    SearchWords() = default;
    explicit SearchWords(const QString& search);

    bool isEmpty() const { return m_words.isEmpty() && !m_port; }
    std::optional<quint16> port() const { return m_port; }
    bool match(const ProcSample& process, const Listens& listens) const;
    /// Returns the parts of a text that are words, from left to right, without overlaps.
    QList<Part> partsOf(const QString& text) const;
    /// Returns whether the text has all words.
    bool areIn(const QString& text) const;

private:
    QStringList m_words;
    std::optional<quint16> m_port;
};

#pragma once

#include <array>
#include <cstddef>
#include <streambuf>
#include <string>

/// A JSON document on its way to a parser that holds one token at a time. What a string, a run of blanks or a
/// number has beyond 128 KiB, the most that an argument of a program may have (execve(2)), is left out, so
/// that no document needs more memory than that. Half a surrogate pair, which other programs write where they
/// cut a text, becomes U+FFFD. A broken document stays broken, but for what is left out of a string.
class JsonText : public std::streambuf {
public:
    static constexpr std::size_t maxTokenBytes = 128 << 10;

    /// `source` has to outlive it.
    explicit JsonText(std::streambuf& source)
        : m_source(source) {}

protected:
    int_type underflow() override;

private:
    enum class Run { none, blanks, digits };

    static Run runOf(char byte);
    void take(char byte);
    void takeInString(char byte);
    void takeCharacter(char byte);
    void takeEscape();
    void endHalf();

    std::streambuf& m_source;
    std::array<char, 16 << 10> m_block;
    std::string m_passedOn;
    Run m_run = Run::none;
    std::size_t m_runBytes = 0; ///< of the string, the blanks or the digits that the text is in
    bool m_isInString = false;
    bool m_isSkipping = false; ///< to the end of the string
    std::string m_escape;      ///< as far as it has come
    std::string m_half;        ///< the first half of a surrogate pair whose second half may follow
};

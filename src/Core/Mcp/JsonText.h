#pragma once

#include <array>
#include <cstddef>
#include <streambuf>
#include <string>

/// A JSON document on its way to a parser that keeps one token at a time. A string, a run of spaces or a
/// number is cut at 128 KiB, the maximum of a program's argument (execve(2)), which bounds the memory. Half a
/// surrogate pair, which programs write where they cut a text, becomes U+FFFD. A broken document stays
/// broken, except in a part of a string that is cut.
class JsonText : public std::streambuf {
public:
    static constexpr std::size_t maxTokenBytes = 128 << 10;

    /// `source` outlives it.
    explicit JsonText(std::streambuf& source)
        : m_source(source) {}

protected:
    int_type underflow() override;

private:
    enum class Run { none, spaces, digits };

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
    std::size_t m_runBytes = 0; ///< of the current string, spaces or digits
    bool m_isInString = false;
    bool m_isSkipping = false; ///< to the end of the string
    std::string m_escape;      ///< the part read so far
    std::string m_half;        ///< the first half of a surrogate pair whose second half may follow
};

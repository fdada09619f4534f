#include "Core/Mcp/JsonText.h"

#include <cctype>

namespace {

constexpr const char* replacement = "\\ufffd";

bool isOneOf(char byte, std::string_view bytes) {
    return bytes.find(byte) != bytes.npos;
}

/// Returns whether the escape is over: "\n", "\u" with four digits, or with a digit that is wrong.
bool isComplete(const std::string& escape) {
    if (escape.size() == 2)
        return escape[1] != 'u';
    return escape.size() == 6 || !std::isxdigit(static_cast<unsigned char>(escape.back()));
}

/// Returns whether the escape is half a surrogate pair: "\ud83d" with a fourth byte out of `bytes`.
bool isHalf(const std::string& escape, std::string_view bytes) {
    return escape.size() == 6 && isOneOf(escape[2], "dD") && isOneOf(escape[3], bytes);
}

} // namespace

JsonText::int_type JsonText::underflow() {
    m_passedOn.clear();
    while (m_passedOn.empty()) {
        const std::streamsize count = m_source.sgetn(m_block.data(), m_block.size());
        if (count <= 0)
            return traits_type::eof();
        for (std::streamsize i = 0; i < count; ++i)
            take(m_block[i]);
    }
    setg(m_passedOn.data(), m_passedOn.data(), m_passedOn.data() + m_passedOn.size());
    return traits_type::to_int_type(*gptr());
}

JsonText::Run JsonText::runOf(char byte) {
    if (isOneOf(byte, " \t\r\n"))
        return Run::spaces;
    return byte >= '0' && byte <= '9' ? Run::digits : Run::none;
}

void JsonText::take(char byte) {
    if (m_isInString) {
        takeInString(byte);
        return;
    }
    const Run run = runOf(byte);
    m_runBytes = run == m_run && run != Run::none ? m_runBytes + 1 : 0;
    m_run = run;
    m_isInString = byte == '"';
    if (m_runBytes < maxTokenBytes)
        m_passedOn += byte == '\0' ? '\1' : byte; // NUL would end the parser
}

void JsonText::takeInString(char byte) {
    ++m_runBytes;
    if (!m_escape.empty()) {
        m_escape += byte;
        if (isComplete(m_escape)) {
            takeEscape();
            m_escape.clear();
        }
    } else if (byte == '\\') {
        m_escape = byte;
    } else if (byte == '"') {
        endHalf();
        m_passedOn += byte;
        m_isInString = m_isSkipping = false;
        m_runBytes = 0;
    } else {
        takeCharacter(byte);
    }
}

void JsonText::takeCharacter(char byte) {
    endHalf();
    const bool isWithinCharacter = (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
    m_isSkipping |= m_runBytes > maxTokenBytes && !isWithinCharacter;
    if (!m_isSkipping)
        m_passedOn += byte;
}

void JsonText::takeEscape() {
    if (m_isSkipping)
        return;
    const bool isSecond = isHalf(m_escape, "cdefCDEF");
    if (isSecond && !m_half.empty()) {
        m_passedOn += m_half + m_escape;
        m_half.clear();
    } else if (isSecond) {
        m_passedOn += replacement;
    } else {
        endHalf();
        if (isHalf(m_escape, "89abAB"))
            m_half = m_escape;
        else
            m_passedOn += m_escape;
    }
    m_isSkipping = m_runBytes > maxTokenBytes;
}

void JsonText::endHalf() {
    if (m_half.empty())
        return;
    m_passedOn += replacement;
    m_half.clear();
}

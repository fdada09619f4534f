#include "Core/Mcp/FileStream.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

FileStream::FileStream(int descriptor, IsUnwanted isUnwanted)
    : m_descriptor(descriptor)
    , m_isUnwanted(std::move(isUnwanted)) {}

FileStream::int_type FileStream::underflow() {
    if (m_isUnwanted && m_isUnwanted())
        return traits_type::eof();
    ssize_t count = 0;
    do {
        count = ::read(m_descriptor, m_block.data(), m_block.size());
    } while (count < 0 && errno == EINTR);
    if (count <= 0)
        return traits_type::eof();
    setg(m_block.data(), m_block.data(), m_block.data() + count);
    return traits_type::to_int_type(*gptr());
}

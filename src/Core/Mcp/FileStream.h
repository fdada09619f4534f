#pragma once

#include <array>
#include <functional>
#include <streambuf>

/// The bytes of an open file, a block at a time. It ends early where the file cannot be read on, and once
/// nobody wants the rest.
class FileStream : public std::streambuf {
public:
    using IsUnwanted = std::function<bool()>;

    /// The descriptor stays the caller's. `isUnwanted` is asked before each block; empty: it is wanted whole.
    explicit FileStream(int descriptor, IsUnwanted isUnwanted = {});

protected:
    int_type underflow() override;

private:
    int m_descriptor;
    IsUnwanted m_isUnwanted;
    std::array<char, 16 << 10> m_block;
};

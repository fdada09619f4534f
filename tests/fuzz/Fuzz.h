#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <source_location>

/// Takes one input and returns 0. Each target defines it. The fuzzer calls it, or `replay.cpp` with the saved
/// inputs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Fuzz {

inline QByteArray bytes(const std::uint8_t* data, std::size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

/// Splits one input into `count` texts at lines of "--". Missing ones are empty.
inline QList<QByteArray> texts(QByteArray input, qsizetype count) {
    QList<QByteArray> result;
    while (result.size() < count) {
        const qsizetype end = result.size() + 1 < count ? input.indexOf("\n--\n") : -1;
        result.append(end < 0 ? input : input.first(end));
        input = end < 0 ? QByteArray() : input.sliced(end + 4);
    }
    return result;
}

/// Returns whether a text survives UTF-8: half a surrogate pair and a leading byte order mark do not.
inline bool isText(const QString& text) {
    return text.isValidUtf16() && !text.startsWith(QChar::ByteOrderMark);
}

/// Ends the program, which the fuzzer and ctest report, when a condition is false.
inline void require(bool condition, std::source_location place = std::source_location::current()) {
    if (condition)
        return;
    std::fprintf(stderr, "%s:%u: the condition is false\n", place.file_name(),
                 static_cast<unsigned>(place.line()));
    std::abort();
}

} // namespace Fuzz

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <source_location>

/// What each target defines: takes one input, whatever it is, and returns 0. Called by the fuzzer, or with
/// the saved inputs by `replay.cpp`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Fuzz {

inline QByteArray bytes(const std::uint8_t* data, std::size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

/// `count` texts out of one input: a line "--" ends each. What is missing is empty.
inline QList<QByteArray> texts(QByteArray input, qsizetype count) {
    QList<QByteArray> result;
    while (result.size() < count) {
        const qsizetype end = result.size() + 1 < count ? input.indexOf("\n--\n") : -1;
        result.append(end < 0 ? input : input.first(end));
        input = end < 0 ? QByteArray() : input.sliced(end + 4);
    }
    return result;
}

/// Half a surrogate pair, which JSON can name, has no form in UTF-8; a byte order mark is dropped in reading.
inline bool isText(const QString& text) {
    return text.isValidUtf16() && !text.startsWith(QChar::ByteOrderMark);
}

/// Ends the program, which the fuzzer and ctest take for a finding, where a promise does not hold.
inline void require(bool holds, std::source_location place = std::source_location::current()) {
    if (holds)
        return;
    std::fprintf(stderr, "%s:%u: the promise does not hold\n", place.file_name(),
                 static_cast<unsigned>(place.line()));
    std::abort();
}

} // namespace Fuzz

#include "Core/CacheScanner.h"
#include "Core/Cleaner.h"
#include "fuzz/Fuzz.h"

using namespace Qt::StringLiterals;

namespace {

void containerReport(const QByteArray& report) {
    const QList<CacheEntry> entries = CacheScanner::parseContainerReport(report);
    Fuzz::require(entries.size() <= report.count('\n') + 1);
    for (const CacheEntry& entry : entries)
        Fuzz::require(!entry.path.contains(u'\n') && !entry.path.contains(u'\t'));
}

void listing(const QByteArray& found) {
    QByteArrayView rest(found);
    QByteArrayList paths;
    for (QByteArray path = CacheScanner::takePath(rest); !path.isEmpty(); path = CacheScanner::takePath(rest))
        paths.append(path);
    Fuzz::require(rest.isEmpty());
    QByteArrayList expected = found.split('\0');
    expected.removeAll(QByteArray());
    Fuzz::require(paths == expected);
}

void size(const QString& text) {
    const quint64 bytes = CacheScanner::parseSize(text);
    Fuzz::require(CacheScanner::parseSize(u" \t"_s + text + u' ') == bytes);
    constexpr quint64 exact = quint64(1) << 53;
    if (bytes < exact)
        Fuzz::require(CacheScanner::parseSize(QString::number(bytes) + u" B"_s) == bytes);
    if (bytes > 0 && bytes < exact / 1000)
        Fuzz::require(CacheScanner::parseSize(QString::number(bytes) + u"KB"_s) == bytes * 1000);
}

} // namespace

/// What a tool printed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    const QByteArray report = Fuzz::bytes(data, length);
    Fuzz::require(Cleaner::reportedBytes(report) % 1024 == 0);
    containerReport(report);
    listing(report);
    size(QString::fromUtf8(report));
    return 0;
}

#include "Core/Cleanup/CacheScanner.h"
#include "Core/Cleanup/Cleaner.h"
#include "Core/Cleanup/CleanupPlan.h"
#include "Tools/Cleanup.h"
#include "fuzz/Fuzz.h"

#include <sstream>

using namespace Qt::StringLiterals;

namespace {

void containerReport(const QByteArray& report) {
    const QList<CacheEntry> entries = CacheScanner::parseContainerReport(report);
    Fuzz::require(entries.size() <= report.count('\n') + 1);
    for (const CacheEntry& entry : entries)
        Fuzz::require(!entry.path.contains(u'\n') && !entry.path.contains(u'\t'));
}

void listing(const QByteArray& found) {
    CleanupPlan::ListingReader reader(found);
    qsizetype length = 0;
    while (const auto entry = reader.next())
        length += entry->path.size() + 3; // two spaces and the end
    Fuzz::require(length <= found.size());

    const auto parsed = Tools::CleanupListing::parse(found.toStdString());
    if (!parsed)
        return;
    std::ostringstream written;
    parsed->write(written);
    const std::string text = written.str();
    Fuzz::require(Tools::CleanupListing::parse(text) == parsed);
    CleanupPlan::ListingReader both(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    for (const auto& entry : parsed->entries) {
        const auto same = both.next();
        Fuzz::require(same && same->path.toByteArray().toStdString() == entry.path &&
                      same->sizeBytes == entry.bytes);
    }
    Fuzz::require(!both.next());
}

void usedFiles(const std::string& text) {
    const auto files = Tools::parseFiles(text);
    if (files)
        Fuzz::require(Tools::parseFiles(Tools::textOf(*files)) == files);
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

/// The output of a tool.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    const QByteArray report = Fuzz::bytes(data, length);
    Fuzz::require(Cleaner::reportedBytes(report).value_or(0) % 1024 == 0);
    containerReport(report);
    listing(report);
    usedFiles(report.toStdString());
    size(QString::fromUtf8(report));
    return 0;
}

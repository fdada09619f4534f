#include "Core/Cleanup/ProjectLeftovers.h"
#include "Tools/GitRepository.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

namespace {

void leftovers(const QByteArray& report) {
    const QList<LeftoverProject> projects = LeftoverProject::parse(report);
    for (const LeftoverProject& project : projects) {
        quint64 sum = 0;
        for (const Leftover& folder : project.folders) {
            Fuzz::require(folder.path.startsWith('/') && report.contains(folder.record));
            sum += folder.sizeBytes;
        }
        Fuzz::require(!project.folders.isEmpty() && sum == project.sizeBytes);
    }
    Fuzz::require(std::ranges::is_sorted(projects, std::ranges::greater(), &LeftoverProject::sizeBytes));
}

void gitIndex(const std::string& text) {
    constexpr std::size_t sha1 = 20;
    constexpr std::size_t sha256 = 32;
    for (const std::size_t hashBytes : {sha1, sha256}) {
        const auto index = Tools::GitIndex::parse(text, hashBytes);
        Fuzz::require(!index || text.starts_with("DIRC"));
    }
}

} // namespace

/// The report of the tool that finds the leftovers of projects, or the index of a git repository.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text = Fuzz::bytes(data, size);
    leftovers(text);
    gitIndex(text.toStdString());
    return 0;
}

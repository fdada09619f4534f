#include "Core/Relief/QuickKillPreset.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

namespace {

bool isWritable(const QuickKillPreset& preset) {
    return Fuzz::isText(preset.name) && Fuzz::isText(preset.pattern) && Fuzz::isText(preset.symbol);
}

} // namespace

/// The stored document of the quick-kill presets.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto presets = QuickKillPreset::decode(Fuzz::bytes(data, size));
    if (!presets)
        return 0;
    const QByteArray stored = QuickKillPreset::encode(*presets);
    Fuzz::require(!stored.isEmpty());
    const auto again = QuickKillPreset::decode(stored);
    Fuzz::require(again && again->size() == presets->size());
    if (std::all_of(presets->begin(), presets->end(), isWritable))
        Fuzz::require(again == presets);
    for (const QuickKillPreset& preset : *presets) {
        constexpr qsizetype maxRestLength = 1000; // two numbers of 309 digits at most, and the words
        Fuzz::require(preset.summaryLine().size() <= preset.pattern.size() + maxRestLength);
        Fuzz::require(preset.outcomeMessage(3, 2).startsWith(preset.name));
    }
    return 0;
}

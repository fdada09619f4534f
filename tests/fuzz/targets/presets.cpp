#include "Core/QuickKillPreset.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

namespace {

/// Half a surrogate pair, which JSON can name, has no form in UTF-8; a byte order mark is dropped in reading.
bool isText(const QString& text) {
    return text.isValidUtf16() && !text.startsWith(QChar::ByteOrderMark);
}

bool isWritable(const QuickKillPreset& preset) {
    return isText(preset.name) && isText(preset.pattern) && isText(preset.symbol);
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
        constexpr qsizetype longestRest = 1000; // two numbers of 309 digits at most, and the words
        Fuzz::require(preset.summaryLine().size() <= preset.pattern.size() + longestRest);
        Fuzz::require(preset.outcomeMessage(3, 2).startsWith(preset.name));
    }
    return 0;
}

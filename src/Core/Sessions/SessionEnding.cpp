#include "Core/Sessions/SessionEnding.h"

#include <algorithm>

qsizetype SessionEndResult::endedCount() const {
    return std::ranges::count_if(records, [](const Record& record) {
        return record.outcome == KillOutcome::quit || record.outcome == KillOutcome::forced;
    });
}

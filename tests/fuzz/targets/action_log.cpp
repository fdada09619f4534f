#include "Core/ActionLog/ActionLogFile.h"
#include "Core/ActionLog/ActionLogReader.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

namespace {

bool isNewerOrEqual(const LoggedAction& one, const LoggedAction& other) {
    return one.timestamp >= other.timestamp;
}

void readsBackAsWritten(const LoggedAction& action) {
    const auto kind = fromRawValue<ActionLogEntry::Kind>(action.kind);
    if (!kind)
        return;
    const QByteArray line = ActionLogFile::lineOf({.id = {},
                                                   .timestamp = action.timestamp,
                                                   .kind = *kind,
                                                   .detail = action.detail,
                                                   .freedBytes = action.freedBytes,
                                                   .success = action.success});
    Fuzz::require(ActionLogReader::parse(line) == QList{action});
}

} // namespace

/// The bytes of an action log.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray log = Fuzz::bytes(data, size);
    const QList<LoggedAction> actions = ActionLogReader::parse(log);
    Fuzz::require(actions.size() <= log.count('\n') + 1);
    Fuzz::require(std::adjacent_find(actions.begin(), actions.end(), [](const auto& a, const auto& b) {
                      return !isNewerOrEqual(a, b);
                  }) == actions.end());
    for (const LoggedAction& action : actions) {
        Fuzz::require(!action.detail.isEmpty() && !action.kind.isEmpty());
        readsBackAsWritten(action);
    }
    const QByteArray good = "2026-11-16T14:23:43Z\tquit\tok\t1\tgood\n";
    const qsizetype expected = QUtf8StringView(log).isValidUtf8() ? actions.size() + 2 : 0;
    Fuzz::require(ActionLogReader::parse(good + log + '\n' + good).size() == expected);

    const QString csv = ActionLogReader::csv(actions);
    Fuzz::require(csv.count(u'\n') == actions.size() + 1);
    return 0;
}

#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"

using namespace Qt::StringLiterals;

namespace {

ExitStatus runGroups(Run& run) {
    const QJsonObject document = QCoro::waitFor(run.machine.report(Report::Kind::groups));
    const QList<Column> columns = {
        Column::ofBytes(u"MEMORY"_s, u"memory_bytes"_s), Column::ofBytes(u"SWAP"_s, u"swap_bytes"_s, 3),
        Column::ofPercent(u"CPU"_s, u"cpu_percent"_s, 2),
        Column::ofNumber(u"PROCESSES"_s, u"process_count"_s, 4), Column::ofText(u"GROUP"_s, u"label"_s)};
    run.output.print(document, [&](const QJsonObject& each) {
        return Table::of(columns, each.value(u"groups"_s).toArray(), run.output.style());
    });
    return ExitStatus::done;
}

} // namespace

Command Commands::groups() {
    return {.name = u"groups"_s,
            .summary = u"Shows what each group of processes holds, shared pages counted once"_s,
            .run = runGroups};
}

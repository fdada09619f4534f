#include "Cli/Commands.h"
#include "Cli/Machine.h"
#include "Cli/Output.h"
#include "Platform/TerminationRequest.h"
#include "Preferences.h"

#include <QCommandLineParser>
#include <QEventLoop>
#include <QTimer>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double minSeconds = 0.25;
constexpr double maxSeconds = 86400;

/// Waits, and returns false when the program is to end.
bool wait(double seconds, const TerminationRequest& termination) {
    QEventLoop loop;
    QObject::connect(&termination, &TerminationRequest::received, &loop, [&loop] { loop.exit(1); });
    QTimer::singleShot(static_cast<int>(std::lround(seconds * 1000)), &loop, [&loop] { loop.exit(0); });
    return loop.exec() == 0;
}

ExitStatus runWatch(Run& run) {
    const QString interval = run.options.value(u"interval"_s);
    bool isNumber = true;
    const double seconds =
        interval.isEmpty() ? run.environment.preferences.pollIntervalSeconds() : interval.toDouble(&isNumber);
    if (!isNumber || !(seconds >= minSeconds && seconds <= maxSeconds)) {
        run.output.complain(u"watch: '%1' is no interval; it is at least 0.25 s"_s.arg(interval));
        return ExitStatus::misuse;
    }
    const QString limit = run.options.value(u"count"_s);
    bool isCount = true;
    const int count = limit.isEmpty() ? 0 : limit.toInt(&isCount);
    if (!isCount || (!limit.isEmpty() && count < 1)) {
        run.output.complain(u"watch: '%1' is no number of lines"_s.arg(limit));
        return ExitStatus::misuse;
    }
    const TerminationRequest termination;
    for (int done = 1;; ++done) {
        run.output.printJson(QCoro::waitFor(run.machine.report(Report::Kind::status)), false);
        if (!run.output.isWritten() || done == count || !wait(seconds, termination))
            return ExitStatus::done;
    }
}

} // namespace

Command Commands::watch() {
    return {.name = u"watch"_s,
            .summary = u"Writes the status as a line of JSON at each interval"_s,
            .options = {{u"interval"_s, u"seconds between two lines; else those of the settings"_s, u"S"_s},
                        {u"count"_s, u"end after so many lines"_s, u"N"_s}},
            .run = runWatch};
}

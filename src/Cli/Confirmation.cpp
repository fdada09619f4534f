#include "Cli/Confirmation.h"

#include "Cli/Output.h"
#include "Platform/Terminal.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

bool agrees(Run& run, const QString& question) {
    Terminal& terminal = run.output.terminal();
    terminal.writeError((question + u" [y/N] "_s).toUtf8());
    const QByteArray answer = terminal.readLine().trimmed().toLower();
    return answer == "y" || answer == "yes";
}

void show(Run& run, const Confirmation::Plan& plan) {
    QJsonObject document = plan.document;
    document.insert(u"done"_s, false);
    run.output.print(document, [&plan](const QJsonObject&) { return plan.text; });
}

} // namespace

QList<QCommandLineOption> Confirmation::options() {
    return {{u"dry-run"_s, u"only list what would go"_s}, {u"yes"_s, u"do not ask"_s}};
}

std::optional<ExitStatus> Confirmation::settle(Run& run, const Plan& plan) {
    if (plan.isEmpty || run.options.isSet(u"dry-run"_s)) {
        show(run, plan);
        return ExitStatus::done;
    }
    if (run.options.isSet(u"yes"_s))
        return std::nullopt;
    if (run.output.terminal().canAsk()) {
        run.output.terminal().writeError(plan.text.toUtf8()); // where the question is, whatever the output is
        if (agrees(run, plan.question))
            return std::nullopt;
        run.output.complain(u"nothing was done"_s);
        return ExitStatus::refused;
    }
    show(run, plan);
    run.output.complain(u"nothing was done: there is no terminal to ask on; say --yes if you mean it"_s);
    return ExitStatus::refused;
}

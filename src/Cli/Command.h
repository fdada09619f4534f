#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class Machine;
class Output;
class QCommandLineParser;
struct Environment;

/// The exit statuses, which docs/cli.md describes.
enum class ExitStatus {
    done = 0,
    notDone = 1, ///< an alert is in force, or an action did not succeed
    misuse = 2,
    refused = 3,   ///< nobody agreed
    unwritten = 4, ///< the output could not be written
};

/// One run of a command.
struct Run {
    const Environment& environment;
    const QCommandLineParser& options;
    QStringList arguments;
    Machine& machine;
    Output& output;
};

/// A command as the command line names it.
struct Command {
    QString name;
    QString arguments; ///< in the usage, such as "ID"
    QString summary;
    QList<QCommandLineOption> options;
    int minArguments = 0;
    int maxArguments = 0;
    ExitStatus (*run)(Run& run) = nullptr;
};

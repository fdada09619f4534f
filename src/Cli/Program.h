#pragma once

#include "Cli/Environment.h"

#include <QStringList>

/// The program tavrinctl, without the main function.
namespace Program {

/// Runs the command that the arguments name, without the program's name, and returns the exit status.
int run(const Environment& environment, const QStringList& arguments);

} // namespace Program

#pragma once

#include <string>

/// Dropping what the kernel keeps of files only to be quicker.
namespace Tools {

/// Writes out changed files, then writes "1" to `dropFile` (proc(5), /proc/sys/vm/drop_caches: clean pages of
/// files, nothing that is in use). Returns the exit status; explains a failure on standard error.
int dropCleanCaches(const std::string& dropFile);

/// Why `program` must not run as the administrator: it, or a folder above it, can be changed by somebody
/// else, or it lies where it was built. Empty when nothing speaks against it.
std::string distrust(const std::string& program);

/// Becomes `program` run by `pkexec` as the administrator, after the desktop's prompt, and so never returns
/// when both are there and `program` is to be trusted: the status is that of the prompt or the program.
/// Where no desktop could ask, `pkexec` refuses at once. Otherwise explains on standard error and returns the
/// exit status.
int runAsAdministrator(const std::string& program, const std::string& pkexec);

} // namespace Tools

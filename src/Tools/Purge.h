#pragma once

#include <string>

/// Drops the kernel's clean file caches.
namespace Tools {

/// Writes out changed files, then writes "1" to `dropFile` (proc(5), /proc/sys/vm/drop_caches: unused clean
/// pages of files). Returns the exit status and explains a failure on standard error.
int dropCleanCaches(const std::string& dropFile);

/// Returns why `program` must not run as the administrator: others can change it or a folder above it, or it
/// is in a build tree. Returns an empty text for a trusted program.
std::string whyUntrusted(const std::string& program);

/// Replaces this process by `program`, run by `pkexec` as the administrator after the desktop's prompt, whose
/// status is then that of the prompt or the program. When either is missing or `program` is not trusted it
/// explains so on standard error and returns the exit status.
int runAsAdministrator(const std::string& program, const std::string& pkexec);

} // namespace Tools

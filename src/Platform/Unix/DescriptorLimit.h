#pragma once

#include <QtGlobal>

#include <sys/resource.h>

/// How many descriptors this program may have open (getrlimit(2), RLIMIT_NOFILE).
namespace DescriptorLimit {

/// Raises the soft limit to the hard one; the limit now in force.
qsizetype raised();

/// Makes room for as many descriptors as a large process table needs, 32 KiB in the kernel. In a program with
/// threads the kernel waits each time it enlarges that room, some 8 ms (measured: 35 ms for the first 1,000
/// descriptors); so this is to be called before there are any.
void reserve();

/// The limits this program was started with. Programs that we start get these back: a soft limit above 1,024
/// breaks those that use select(2), and slows those that close every possible descriptor.
const rlimit& atStart();

} // namespace DescriptorLimit

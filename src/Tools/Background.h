#pragma once

namespace Tools {

/// Puts this program, and threads that it starts later, behind all others: at the lowest priority, and with
/// the disk only while no other program needs it.
void workBehindAll();

} // namespace Tools

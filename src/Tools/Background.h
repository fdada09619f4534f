#pragma once

namespace Tools {

/// Gives this program, and threads that it starts later, the disk only while no other program needs it.
void yieldTheDisk();

} // namespace Tools

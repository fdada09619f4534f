#pragma once

/// Makes scroll areas answer a screen reader that asks for a child which has gone meanwhile. Qt 6.4 reads
/// past the end of its list then. Call it once, after QApplication is made.
void installAccessibleScrollAreas();

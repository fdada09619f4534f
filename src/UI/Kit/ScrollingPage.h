#pragma once

class QMargins;
class QScrollArea;
class QVBoxLayout;

/// Makes the area a page that scrolls up and down, and gives back the column of what stands on it.
QVBoxLayout* makeScrollingPage(QScrollArea* area, const QMargins& margins, int spacing);

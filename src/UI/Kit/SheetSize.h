#pragma once

#include "UI/Style/Theme.h"

/// Returns the size of a sheet for the text in use, given that for the default size: no larger than the
/// smallest main window, which it stands above.
inline QSize fittingSheet(const QSize& usual) {
    constexpr QSize most(960, 640);
    return Theme::scaled(usual).boundedTo(most);
}

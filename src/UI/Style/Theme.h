#pragma once

#include <QColor>
#include <QFont>
#include <QMargins>

#include <optional>

/// Every colour, text style, radius and spacing of the program. Screens use these, not numbers of their own.
namespace Theme {

enum class Role {
    accent,
    green,
    yellow,
    orange,
    red,
    blue,
    purple,
    indigo,
    gray,
    primaryText,
    secondaryText,
    windowFill,
    sidebarFill,
    cardFill,
    cardBorder,
    separator,
    hoverFill,
    trackFill, ///< the empty part of a progress bar
    lime,      ///< a background of black text, the same in both schemes
};

enum class TextStyle { largeTitle, title, title2, title3, headline, body, callout, caption, caption2 };

// Points at 1x, which are device-independent pixels here.
inline constexpr int pagePadding = 20;
inline constexpr int scrollBarRoom = 12;
/// For a scrolling page: its scroll bar stands in the right padding.
inline constexpr QMargins pageMargins(pagePadding, pagePadding, pagePadding - scrollBarRoom, pagePadding);
inline constexpr QMargins sheetMargins(pagePadding, pagePadding, pagePadding, pagePadding);
/// For a card around a table, which has square corners.
inline constexpr QMargins tableCardMargins(3, 5, 1, 5);
inline constexpr int pageSpacing = 20;
inline constexpr int gridSpacing = 16;
inline constexpr int cardPadding = 14;
inline constexpr int rowSpacing = 8;
inline constexpr int textGap = 2;
inline constexpr double tileRadius = 12;
inline constexpr double cardRadius = 10;
inline constexpr double controlRadius = 7;
inline constexpr double disabledOpacity = 0.45; ///< of a control's text and fill
inline constexpr int controlHeight = 28;
inline constexpr int smallControlHeight = 24;
inline constexpr int iconColumn = 24;
inline constexpr int iconSize = 18;

/// Returns the role's colour in the current scheme, light or dark, at `opacity` from 0 to 1.
QColor color(Role role, double opacity = 1);

/// Returns the role's colour as the background of white text, the same in both schemes.
QColor tileColor(Role role, double opacity = 1);

/// Returns the style scaled from the desktop's own font. `weight` replaces the style's own.
QFont font(TextStyle style, std::optional<QFont::Weight> weight = std::nullopt);

bool isDark();

/// Sets the scheme's palette on the application. Every widget receives a palette change.
void apply(bool dark);

} // namespace Theme

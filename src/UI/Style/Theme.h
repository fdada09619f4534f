#pragma once

#include <QColor>
#include <QFont>
#include <QMargins>
#include <QSize>

#include <optional>

class QWidget;

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
    controlBorder, ///< of what can be clicked or typed into
    separator,
    hoverFill,
    trackFill, ///< the empty part of a progress bar
    lime,      ///< a background of black text, the same in both schemes
};

enum class TextStyle { title, title2, title3, headline, body, callout, caption, caption2 };

/// Returns how much larger the desktop's text is than the size that lengths are given for; 1 at least.
double scale();

/// Returns a length given for the default size of text, for the text in use.
int scaled(double pixels);
QSize scaled(const QSize& size);

/// The height of a row, the width of a column or the size of a symbol: it grows with the desktop's text.
struct Length {
    int pixels;                                     ///< at the default size of text
    operator int() const { return scaled(pixels); } // NOLINT: it stands for the number
};

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
inline constexpr Length controlHeight{28};      ///< the least height of what can be clicked
inline constexpr Length iconColumn{24};
inline constexpr Length iconSize{18};
inline constexpr Length maxContentWidth{1100}; ///< of a page

/// Returns the role's colour in the current scheme, light or dark, at `opacity` from 0 to 1.
QColor color(Role role, double opacity = 1);

/// Returns the role's colour as the background of white text, the same in both schemes.
QColor tileColor(Role role, double opacity = 1);

/// Returns the role's colour as text on a ground of the same colour at up to 0.18.
QColor textOnTint(Role role);

/// Returns the contrast ratio of the web accessibility guidelines, 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// Returns the style scaled from the desktop's own font. `weight` replaces the style's own.
QFont font(TextStyle style, std::optional<QFont::Weight> weight = std::nullopt);

/// Gives the widget the style's font, now and when the desktop's font changes.
void useFont(QWidget* widget, TextStyle style, std::optional<QFont::Weight> weight = std::nullopt);

/// Sets the application's font. The widgets that got fonts and sizes here follow.
void applyFont(const QFont& font);

/// Gives the widget a size that grows with the desktop's text.
void fixHeight(QWidget* widget, Length height);
void fixWidth(QWidget* widget, Length width);
void fixSize(QWidget* widget, Length width, Length height);
void setLeastSize(QWidget* widget, Length width, Length height);
void limitWidth(QWidget* widget, Length most);

bool isDark();

/// Returns whether the desktop asks for no motion.
bool reducesMotion();
void reduceMotion(bool reduce);

/// What the desktop chose.
struct Look {
    bool dark = false;
    std::optional<QColor> accent = std::nullopt; ///< in place of ours; made readable where it is not
    bool highContrast = false;
};

/// Sets the scheme's palette on the application. Every widget receives a palette change.
void apply(const Look& look);

} // namespace Theme

#include "UI/Style/Theme.h"

#include <QApplication>
#include <QPalette>

#include <array>

namespace Theme {
namespace {

struct Shades {
    Role role;
    QRgb light;
    QRgb dark;
};

// In the order of Role. The light tints are dark enough to be read as text on a card.
constexpr std::array shades = {
    Shades{Role::accent, 0xff2b67d9, 0xff5b9bff},        Shades{Role::green, 0xff1e8a4a, 0xff3fcf7f},
    Shades{Role::yellow, 0xffa37400, 0xfff2c744},        Shades{Role::orange, 0xffc65a0a, 0xffffa24a},
    Shades{Role::red, 0xffcb2431, 0xffff6961},           Shades{Role::blue, 0xff1f6fc9, 0xff5aa9f7},
    Shades{Role::purple, 0xff8348b5, 0xffbd8cf0},        Shades{Role::indigo, 0xff4f4cc4, 0xff8d8bff},
    Shades{Role::gray, 0xff82828a, 0xff8f8f98},          Shades{Role::primaryText, 0xff1b1c1f, 0xfff1f1f4},
    Shades{Role::secondaryText, 0xff62636b, 0xffa3a4ad}, Shades{Role::windowFill, 0xfff5f5f7, 0xff1c1d20},
    Shades{Role::sidebarFill, 0xffeaebef, 0xff232529},   Shades{Role::cardFill, 0xffffffff, 0xff26282c},
    Shades{Role::cardBorder, 0x4d82828a, 0x4d8f8f98},    Shades{Role::separator, 0x3382828a, 0x338f8f98},
    Shades{Role::hoverFill, 0x1482828a, 0x1e8f8f98},     Shades{Role::trackFill, 0x2882828a, 0x3a8f8f98},
    Shades{Role::lime, 0xffbff747, 0xffbff747},
};

struct Style {
    TextStyle style;
    double size; ///< in a scale where body is 13
    QFont::Weight weight;
};

constexpr double bodySize = 13;
constexpr std::array styles = {
    Style{TextStyle::largeTitle, 26, QFont::Normal}, Style{TextStyle::title, 22, QFont::Normal},
    Style{TextStyle::title2, 17, QFont::Normal},     Style{TextStyle::title3, 15, QFont::Normal},
    Style{TextStyle::headline, 13, QFont::DemiBold}, Style{TextStyle::body, 13, QFont::Normal},
    Style{TextStyle::callout, 12, QFont::Normal},    Style{TextStyle::caption, 10, QFont::Normal},
    Style{TextStyle::caption2, 10, QFont::Normal},
};

bool dark = false;

QPalette palette() {
    QPalette result;
    const QColor text = color(Role::primaryText);
    const QColor secondary = color(Role::secondaryText);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        result.setColor(role, text);
    result.setColor(QPalette::PlaceholderText, secondary);
    result.setColor(QPalette::Window, color(Role::windowFill));
    result.setColor(QPalette::Button, color(Role::windowFill));
    result.setColor(QPalette::Base, color(Role::cardFill));
    result.setColor(QPalette::AlternateBase, color(Role::windowFill));
    result.setColor(QPalette::ToolTipBase, color(Role::cardFill));
    result.setColor(QPalette::Highlight, color(Role::accent));
    result.setColor(QPalette::HighlightedText, dark ? QColor(Qt::black) : QColor(Qt::white));
    result.setColor(QPalette::Mid, color(Role::separator));
    result.setColor(QPalette::Link, color(Role::accent));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        result.setColor(QPalette::Disabled, role, color(Role::secondaryText, 0.6));
    return result;
}

} // namespace

QColor color(Role role, double opacity) {
    const Shades& row = shades[static_cast<std::size_t>(role)];
    QColor result = QColor::fromRgba(dark ? row.dark : row.light);
    result.setAlphaF(static_cast<float>(result.alphaF() * opacity));
    return result;
}

QColor tileColor(Role role, double opacity) {
    QColor result = QColor::fromRgba(shades[static_cast<std::size_t>(role)].light);
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

QFont font(TextStyle style, std::optional<QFont::Weight> weight) {
    const Style& row = styles[static_cast<std::size_t>(style)];
    QFont result = QApplication::font();
    const double scale = row.size / bodySize;
    if (result.pointSizeF() > 0)
        result.setPointSizeF(result.pointSizeF() * scale);
    else
        result.setPixelSize(qRound(result.pixelSize() * scale));
    result.setWeight(weight.value_or(row.weight));
    return result;
}

bool isDark() {
    return dark;
}

void apply(bool useDark) {
    dark = useDark;
    QApplication::setPalette(palette());
}

} // namespace Theme

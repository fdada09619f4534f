#include "UI/Style/Theme.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPalette>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Theme {
namespace {

struct Shades {
    Role role;
    QRgb light;
    QRgb dark;
    QRgb tile = 0; ///< the background of white text, in both schemes
};

// In the order of Role. As text each has a contrast of 4.5 on every fill, as a symbol 3 on a selection.
constexpr std::array shades = {
    Shades{Role::accent, 0xff2861cc, 0xff5e9dff, 0xff265bbf},
    Shades{Role::green, 0xff1a753f, 0xff3fcf7f, 0xff186d3a},
    Shades{Role::yellow, 0xff865f00, 0xfff2c744, 0xff7c5800},
    Shades{Role::orange, 0xffa64c08, 0xffffa24a, 0xff9e4808},
    Shades{Role::red, 0xffc3232f, 0xffff6f67, 0xffc3232f},
    Shades{Role::blue, 0xff1d66b9, 0xff5aa9f7, 0xff1b5fad},
    Shades{Role::purple, 0xff8348b5, 0xffbd8cf0, 0xff7c44ac},
    Shades{Role::indigo, 0xff4f4cc4, 0xff9391ff, 0xff4f4cc4},
    Shades{Role::gray, 0xff76767e, 0xff8f8f98, 0xff5c5c62},
    Shades{Role::primaryText, 0xff1b1c1f, 0xfff1f1f4},
    Shades{Role::secondaryText, 0xff5a5b62, 0xffa3a4ad},
    Shades{Role::windowFill, 0xfff5f5f7, 0xff1c1d20},
    Shades{Role::sidebarFill, 0xffeaebef, 0xff232529},
    Shades{Role::cardFill, 0xffffffff, 0xff26282c},
    Shades{Role::cardBorder, 0x4d82828a, 0x4d8f8f98},
    Shades{Role::controlBorder, 0xff85858d, 0xff76767f},
    Shades{Role::separator, 0x3382828a, 0x338f8f98},
    Shades{Role::hoverFill, 0x1482828a, 0x1e8f8f98},
    Shades{Role::trackFill, 0x2882828a, 0x3a8f8f98},
    Shades{Role::lime, 0xffbff747, 0xffbff747},
};

struct Style {
    TextStyle style;
    double size; ///< in a scale where body is 13
    QFont::Weight weight;
};

constexpr double bodySize = 13;
constexpr std::array styles = {
    Style{TextStyle::title, 22, QFont::Normal},   Style{TextStyle::title2, 17, QFont::Normal},
    Style{TextStyle::title3, 15, QFont::Normal},  Style{TextStyle::headline, 13, QFont::DemiBold},
    Style{TextStyle::body, 13, QFont::Normal},    Style{TextStyle::callout, 12, QFont::Normal},
    Style{TextStyle::caption, 10, QFont::Normal}, Style{TextStyle::caption2, 10, QFont::Normal},
};

constexpr auto styleProperty = "textStyle";
constexpr auto weightProperty = "textWeight";
constexpr auto heightProperty = "heightAtDefaultText";
constexpr auto widthProperty = "widthAtDefaultText";
constexpr auto leastProperty = "leastSizeAtDefaultText";
constexpr auto limitProperty = "mostWidthAtDefaultText";

constexpr double smallestText = 11; // pixels at the default size
constexpr double pointsPerPixel = 0.75;

Look look;
bool motionIsReduced = false;
QRgb accentTile = shades.front().tile; ///< of the desktop's accent, or ours

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Returns `one` mixed with `share` (0 to 1) of `other`.
QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto part = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {part(one.red(), other.red()), part(one.green(), other.green()), part(one.blue(), other.blue())};
}

/// Returns the colour moved towards black or white until it has that contrast to the ground, or hardly more.
QColor readable(const QColor& color, const QColor& ground, double least) {
    constexpr double most = 1.08; // times the least; a selection in the colour has to stay pale
    const bool isLight = luminance(ground) > 0.18;
    const bool isFaint = contrast(color, ground) < least;
    const QColor end = isFaint == isLight ? Qt::black : Qt::white;
    for (int percent = 0; percent < 100; percent += 2) {
        const QColor tried = mixed(color, end, percent / 100.0);
        const double reached = contrast(tried, ground);
        if (isFaint ? reached >= least : reached <= least * most)
            return tried;
    }
    return end;
}

QRgb shade(Role role) {
    const Shades& row = shades[static_cast<std::size_t>(role)];
    return look.dark ? row.dark : row.light;
}

/// Returns the shades of a desktop's accent colour that can be read here.
void adoptAccent() {
    const double onEveryFill = look.dark ? 5.4 : 5.7; // to a card; less to its selected and hovered parts
    accentTile = shades.front().tile;
    if (!look.accent)
        return;
    const QColor ground = QColor::fromRgba(shade(Role::cardFill));
    look.accent = readable(*look.accent, ground, onEveryFill);
    accentTile = readable(*look.accent, Qt::white, onEveryFill).rgba();
}

/// Gives a widget the font and the sizes that it was given for the default size of text.
void adoptSizes(QWidget& widget) {
    const QVariant style = widget.property(styleProperty);
    const QVariant weight = widget.property(weightProperty);
    const QVariant height = widget.property(heightProperty);
    const QVariant width = widget.property(widthProperty);
    const QVariant least = widget.property(leastProperty);
    const QVariant limit = widget.property(limitProperty);
    if (style.isValid())
        widget.setFont(font(static_cast<TextStyle>(style.toInt()),
                            weight.isValid() ? std::optional(static_cast<QFont::Weight>(weight.toInt()))
                                             : std::nullopt));
    if (height.isValid())
        widget.setFixedHeight(Length{height.toInt()});
    if (width.isValid())
        widget.setFixedWidth(Length{width.toInt()});
    if (least.isValid())
        widget.setMinimumSize(scaled(least.toSize()));
    if (limit.isValid())
        widget.setMaximumWidth(Length{limit.toInt()});
}

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
    result.setColor(QPalette::HighlightedText, look.dark ? QColor(Qt::black) : QColor(Qt::white));
    result.setColor(QPalette::Mid, color(Role::separator));
    result.setColor(QPalette::Link, color(Role::accent));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        result.setColor(QPalette::Disabled, role, color(Role::secondaryText, 0.6));
    return result;
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor color(Role role, double opacity) {
    QColor result = QColor::fromRgba(shade(role));
    if (role == Role::accent && look.accent)
        result = *look.accent;
    if (look.highContrast && role == Role::secondaryText)
        result = QColor::fromRgba(shade(Role::primaryText));
    if (look.highContrast && (role == Role::cardBorder || role == Role::separator))
        result = QColor::fromRgba(shade(Role::controlBorder));
    result.setAlphaF(static_cast<float>(result.alphaF() * opacity));
    return result;
}

QColor tileColor(Role role, double opacity) {
    QColor result =
        QColor::fromRgba(role == Role::accent ? accentTile : shades[static_cast<std::size_t>(role)].tile);
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

QColor textOnTint(Role role) {
    return mixed(color(role), color(Role::primaryText), 0.35);
}

QFont font(TextStyle style, std::optional<QFont::Weight> weight) {
    const Style& row = styles[static_cast<std::size_t>(style)];
    QFont result = QApplication::font();
    const double ratio = row.size / bodySize;
    if (result.pointSizeF() > 0)
        result.setPointSizeF(std::max(result.pointSizeF() * ratio, smallestText * pointsPerPixel));
    else
        result.setPixelSize(std::max(qRound(result.pixelSize() * ratio), int(smallestText)));
    result.setWeight(weight.value_or(row.weight));
    return result;
}

void useFont(QWidget* widget, TextStyle style, std::optional<QFont::Weight> weight) {
    widget->setProperty(styleProperty, static_cast<int>(style));
    widget->setProperty(weightProperty, weight ? QVariant(static_cast<int>(*weight)) : QVariant());
    widget->setFont(font(style, weight));
}

void fixHeight(QWidget* widget, Length height) {
    widget->setProperty(heightProperty, height.pixels);
    widget->setFixedHeight(height);
}

void fixWidth(QWidget* widget, Length width) {
    widget->setProperty(widthProperty, width.pixels);
    widget->setFixedWidth(width);
}

void fixSize(QWidget* widget, Length width, Length height) {
    fixWidth(widget, width);
    fixHeight(widget, height);
}

void setLeastSize(QWidget* widget, Length width, Length height) {
    widget->setProperty(leastProperty, QSize(width.pixels, height.pixels));
    widget->setMinimumSize(width, height);
}

void limitWidth(QWidget* widget, Length most) {
    widget->setProperty(limitProperty, most.pixels);
    widget->setMaximumWidth(most);
}

void applyFont(const QFont& applicationFont) {
    if (applicationFont == QApplication::font())
        return;
    QApplication::setFont(applicationFont);
    for (QWidget* widget : QApplication::allWidgets())
        adoptSizes(*widget);
}

double scale() {
    constexpr double bodyHeight = 17; // of a line of 13 pixels, in the tallest of common fonts
    static std::pair<QFont, double> last{QFont(), 0}; // of the font that was measured
    const QFont body = QApplication::font();
    if (last.second == 0 || last.first != body)
        last = {body, std::max({1.0, QFontInfo(body).pixelSize() / bodySize,
                                QFontMetricsF(body).height() / bodyHeight})};
    return last.second;
}

int scaled(double pixels) {
    return qRound(pixels * scale());
}

QSize scaled(const QSize& size) {
    return {scaled(size.width()), scaled(size.height())};
}

bool isDark() {
    return look.dark;
}

bool reducesMotion() {
    return motionIsReduced;
}

void reduceMotion(bool reduce) {
    motionIsReduced = reduce;
}

void apply(const Look& wanted) {
    look = wanted;
    adoptAccent();
    QApplication::setPalette(palette());
}

} // namespace Theme

#include "UI/Style/Theme.h"

#include "UI/Kit/TextLabel.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <cmath>

using Theme::Role;

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Returns the contrast ratio of the web accessibility guidelines, 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

TEST(Theme, TextAndTintsCanBeReadOnEveryFill) {
    for (const bool dark : {false, true}) {
        Theme::apply(dark);
        for (const Role fill : {Role::windowFill, Role::sidebarFill, Role::cardFill}) {
            for (const Role text : {Role::primaryText, Role::secondaryText})
                EXPECT_GE(contrast(Theme::color(text), Theme::color(fill)), 4.5)
                    << dark << int(text) << int(fill);
        }
        for (const Role tint : {Role::accent, Role::green, Role::yellow, Role::orange, Role::red, Role::blue,
                                Role::purple, Role::indigo})
            EXPECT_GE(contrast(Theme::color(tint), Theme::color(Role::cardFill)), 4) << dark << int(tint);
    }
}

TEST(Theme, SchemeReachesTheApplicationsPalette) {
    Theme::apply(true);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), Theme::color(Role::windowFill));
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 60);
    Theme::apply(false);
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200);
}

TEST(Theme, ATintedLabelFollowsTheScheme) {
    QWidget window;
    auto* label = new TextLabel(Theme::TextStyle::body, {}, &window);
    label->tinted(Role::red);
    window.show();
    for (const bool dark : {true, false}) {
        Theme::apply(dark);
        QCoreApplication::processEvents();
        EXPECT_EQ(label->palette().color(QPalette::WindowText), Theme::color(Role::red)) << dark;
    }
}
